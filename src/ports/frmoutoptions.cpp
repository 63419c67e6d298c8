#include "ports/frmoutoptions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/named.h"

namespace tarvane {
namespace {

const char* const maintenancetip =
    "Shows the Maintenance menu, whose commands change the harmonic constants of the ports.\n"
    "The menu stays until the program ends; the next start hides it again, so that the\n"
    "constants aren't changed by accident.";

}  // namespace

frmoutoptions::frmoutoptions(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmoutoptions", "Program Settings", parent),
      context(maincontext),
      options(openoptions(maincontext.session)) {
    buildlayout();
    showoptions();
    connectcontrols();
    settle(optionsok, displayoption());
}

void frmoutoptions::buildlayout() {
    buildframe1();
    buildframe2();
    buildframe3();
    Check1 = named<QCheckBox>("Check1", "&Enable Harmonic Correction Menu");
    Check1->setToolTip(maintenancetip);
    optionsok = named<QPushButton>("optionsok", "&O.K.");
    Command1 = named<QPushButton>("Command1", "&Cancel");

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(optionsok);
    buttons->addWidget(Command1);
    auto* column = new QVBoxLayout(this);
    for (QWidget* part : {static_cast<QWidget*>(Frame1), static_cast<QWidget*>(Frame2), static_cast<QWidget*>(Frame3),
                          static_cast<QWidget*>(Check1)})
        column->addWidget(part);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmoutoptions::buildframe1() {
    Frame1 = named<QGroupBox>("Frame1", "Display Options");
    Option1 = named<QRadioButton>("Option1", "Heights to chart &datum only");
    Option2 = named<QRadioButton>("Option2", "Heights to &include users charted depth");
    Option3 = named<QRadioButton>("Option3", "As above with &allowance for Draught and Under Keel clearance  ");
    Label2 = named<QLabel>("Label2", "(Second dotted curve)");
    // Under the text of Option3, not under its mark.
    Label2->setIndent(style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                      style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
    auto* rows = new QVBoxLayout(Frame1);
    for (QRadioButton* option : {Option1, Option2, Option3})
        rows->addWidget(option);
    rows->addWidget(Label2);
}

void frmoutoptions::buildframe2() {
    Frame2 = named<QGroupBox>("Frame2", "Daylight Savings");
    optNonDaylightsavings = named<QRadioButton>("optNonDaylightsavings", "Results Displayed for &Standard Time");
    optDaylightSavings = named<QRadioButton>("optDaylightSavings", "&Results Adjusted for Summer Time ");
    auto* rows = new QVBoxLayout(Frame2);
    rows->addWidget(optNonDaylightsavings);
    rows->addWidget(optDaylightSavings);
}

void frmoutoptions::buildframe3() {
    Frame3 = named<QGroupBox>("Frame3", "Draft && Underkeel Clearance");
    Label3 = named<QLabel>("Label3", "&Vessel Draft");
    draughttext = named<FilteredBox>("draughttext", metreskey, context.services.messages);
    Label4 = named<QLabel>("Label4", "M");
    draftlabel = named<QLabel>("draftlabel", "&Under Keel Clearance");
    ukctext = named<FilteredBox>("ukctext", metreskey, context.services.messages);
    Label1 = named<QLabel>("Label1", "M");
    Label3->setBuddy(draughttext);
    draftlabel->setBuddy(ukctext);
    for (QLineEdit* box : {draughttext, ukctext})
        box->setFixedWidth(12 * box->fontMetrics().horizontalAdvance('0'));

    auto* grid = new QGridLayout(Frame3);
    grid->addWidget(Label3, 0, 0);
    grid->addWidget(draughttext, 0, 1);
    grid->addWidget(Label4, 0, 2);
    grid->addWidget(draftlabel, 1, 0);
    grid->addWidget(ukctext, 1, 1);
    grid->addWidget(Label1, 1, 2);
    grid->setColumnStretch(2, 1);
}

void frmoutoptions::connectcontrols() {
    int number = 0;
    for (QRadioButton* option : {Option1, Option2, Option3}) {
        ++number;
        connect(option, &QRadioButton::clicked, this,
                [this, number] { chooseoutput(context.session, options, number); });
    }
    connect(Check1, &QCheckBox::clicked, this, [this] { offermaintenance(context.session); });
    connect(optionsok, &QPushButton::clicked, this, &frmoutoptions::optionsok_Click);
    connect(Command1, &QPushButton::clicked, this, &frmoutoptions::reject);
}

QRadioButton* frmoutoptions::displayoption() const {
    QRadioButton* const display[] = {Option1, Option2, Option3};
    return display[options.displayoption - 1];
}

void frmoutoptions::showoptions() {
    displayoption()->setChecked(true);
    optNonDaylightsavings->setChecked(options.optNonDaylightsavings);
    optDaylightSavings->setChecked(options.optDaylightSavings);
    draughttext->setText(QString::fromStdString(options.draughttext));
    ukctext->setText(QString::fromStdString(options.ukctext));
}

void frmoutoptions::optionsok_Click() {
    options.optNonDaylightsavings = optNonDaylightsavings->isChecked();
    options.optDaylightSavings = optDaylightSavings->isChecked();
    options.draughttext = draughttext->text().toStdString();
    options.ukctext = ukctext->text().toStdString();
    confirmoptions(context, options);
    accept();
}

}  // namespace tarvane
