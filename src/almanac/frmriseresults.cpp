#include "almanac/frmriseresults.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <array>

#include "almanac/phasenotes.h"
#include "almanac/sunoutput.h"
#include "almanac/sunview.h"
#include "platform/qt/named.h"
#include "platform/qt/screentext.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int wheelnotch = 120;

QLabel* plain(const char* name) {
    auto* label = named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* heading(const char* text) {
    auto* label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

/// A time in a frame, wide enough for "None" and any hour.
QLabel* timevalue(const char* name) {
    QLabel* label = namedvalue(name);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 12);
    return label;
}

}  // namespace

Frmriseresults::Frmriseresults(MainContext& maincontext, QWidget* parent)
    : ModalDialog("Frmriseresults", "Sunrise, Sunset and Lunar Phases", parent), context(maincontext) {
    const auto& titles = context.session.suntable.titles;
    buildlayout();
    port->setText(QString::fromStdString(titles[1]));
    longitude->setText(QString::fromStdString(titles[2]));
    latitude->setText(QString::fromStdString(titles[3]));
    Label2->setText(screentext(context.session.lunar.lunartext));
    shownotes();
    setscroll();
    connect(VScroll1, &QScrollBar::valueChanged, this, &Frmriseresults::VScroll1_Change);
    connect(cmdsunprint, &QPushButton::clicked, this, &Frmriseresults::cmdsunprint_Click);
    connect(Command1, &QPushButton::clicked, this, &Frmriseresults::Command1_Click);
    connect(cancel, &QPushButton::clicked, this, &Frmriseresults::reject);
    for (QWidget* control : std::initializer_list<QWidget*>{VScroll1, cmdsunprint, Command1, cancel})
        control->installEventFilter(this);
    VScroll1_Change();
    settle(cancel, VScroll1);
}

void Frmriseresults::buildlayout() {
    VScroll1 = named<QScrollBar>("VScroll1", Qt::Vertical);
    VScroll1->setFocusPolicy(Qt::StrongFocus);
    VScroll1->setFixedHeight(twips(3300));
    VScroll1->setAccessibleName("Day of the month");
    VScroll1->setToolTip("Day of the month");
    cmdsunprint = named<QPushButton>("cmdsunprint", "&Print");
    Command1 = named<QPushButton>("Command1", "&Save to CSV");
    cancel = named<QPushButton>("cancel", "E&xit");

    auto* upper = new QHBoxLayout;
    upper->setSpacing(twips(360));
    upper->addLayout(buildday());
    upper->addWidget(VScroll1, 0, Qt::AlignTop);
    upper->addLayout(buildlunar());
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {cmdsunprint, Command1, cancel})
        buttons->addWidget(button);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(twips(240), twips(240), twips(240), twips(180));
    whole->setSpacing(twips(240));
    whole->addLayout(upper);
    whole->addLayout(buttons);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

QGridLayout* Frmriseresults::buildday() {
    port = namedvalue("port");
    latlabel = named<QLabel>("latlabel", "Latitude");
    latitude = namedvalue("latitude");
    longlabel = named<QLabel>("longlabel", "Longitude");
    longitude = namedvalue("longitude");
    risedate = namedvalue("risedate");
    QFont bold = font();
    bold.setBold(true);
    risedate->setFont(bold);
    Label1 = plain("Label1");
    daylighthours = plain("daylighthours");
    twilighthours = plain("twilighthours");
    Label4 = plain("Label4");

    struct Pair {
        const char* caption;
        QLabel*& first;
        const char* firstname;
        QLabel*& second;
        const char* secondname;
    };
    const std::array<Pair, 3> pairs{{{"SUN RISE/SET", risetime, "risetime", settime, "settime"},
                                     {"Civil Twilights", civildawn, "civildawn", civildusk, "civildusk"},
                                     {"Nautical Twilights", nautdawn, "nautdawn", nautdusk, "nautdusk"}}};
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(twips(180));
    grid->setVerticalSpacing(twips(120));
    int row = 0;
    const auto addvalue = [&](QLabel* caption, QLabel* value) {
        grid->addWidget(caption, row, 0);
        grid->addWidget(value, row++, 1, 1, 2);
    };
    addvalue(new QLabel("Port"), port);
    addvalue(latlabel, latitude);
    addvalue(longlabel, longitude);
    addvalue(heading("Date"), risedate);
    for (const Pair& pair : pairs) {
        pair.first = timevalue(pair.firstname);
        pair.second = timevalue(pair.secondname);
        grid->addWidget(heading(pair.caption), row, 0);
        grid->addWidget(pair.first, row, 1);
        grid->addWidget(pair.second, row++, 2);
    }
    auto* lengths = new QHBoxLayout;
    lengths->setSpacing(twips(90));
    for (QLabel* label : {Label1, daylighthours, twilighthours, Label4})
        lengths->addWidget(label);
    lengths->addStretch(1);
    grid->addLayout(lengths, row, 0, 1, 3);
    grid->setRowMinimumHeight(row, fontMetrics().height());
    grid->setRowStretch(row + 1, 1);
    return grid;
}

QLayout* Frmriseresults::buildlunar() {
    Label2 = namedvalue("Label2");
    // The lines are made of columns of blanks.
    Label2->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Label2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* column = new QVBoxLayout;
    column->setSpacing(twips(120));
    column->addWidget(heading("LUNAR PHASES"));
    column->addWidget(Label2, 1);
    lblphasenotes = plain("lblphasenotes");
    column->addWidget(lblphasenotes);
    return column;
}

void Frmriseresults::shownotes() {
    const DateOnShow& onshow = context.session.onshow;
    QStringList lines;
    for (const std::string& note : phasenotes(context.session.lunar, static_cast<int>(onshow.tidemonth),
                                              static_cast<int>(onshow.tideyear), context.services.locale))
        lines << screentext(note);
    lblphasenotes->setText(lines.join('\n'));
    lblphasenotes->setVisible(!lines.isEmpty());
}

void Frmriseresults::setscroll() {
    const DayScroll scroll = opensunresults(context.session, VScroll1->height());
    VScroll1->setSingleStep(scroll.smallchange);
    VScroll1->setPageStep(scroll.largechange);
    VScroll1->setRange(0, scroll.maximum);
    VScroll1->setValue(scroll.value);
}

void Frmriseresults::VScroll1_Change() {
    const Session& session = context.session;
    const int day = dayfromscroll(VScroll1->value(), VScroll1->maximum(), daysonshow(session));
    const SunDay shown = sundayonshow(session.suntable, day);
    const std::array<std::pair<QLabel*, const std::string*>, 11> texts{{{risedate, &shown.risedate},
                                                                        {nautdawn, &shown.nautdawn},
                                                                        {civildawn, &shown.civildawn},
                                                                        {risetime, &shown.risetime},
                                                                        {settime, &shown.settime},
                                                                        {civildusk, &shown.civildusk},
                                                                        {nautdusk, &shown.nautdusk},
                                                                        {Label1, &shown.Label1},
                                                                        {daylighthours, &shown.daylighthours},
                                                                        {Label4, &shown.Label4},
                                                                        {twilighthours, &shown.twilighthours}}};
    for (const auto& [label, text] : texts)
        label->setText(QString::fromStdString(*text));
}

bool Frmriseresults::eventFilter(QObject* watched, QEvent* event) {
    if (watched == VScroll1 && event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    if (watched == VScroll1 || event->type() != QEvent::KeyPress) return ModalDialog::eventFilter(watched, event);
    // The arrows step days also while a button has the focus.
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
            VScroll1->triggerAction(QScrollBar::SliderSingleStepSub);
            return true;
        case Qt::Key_Down:
            VScroll1->triggerAction(QScrollBar::SliderSingleStepAdd);
            return true;
        case Qt::Key_PageUp:
            VScroll1->triggerAction(QScrollBar::SliderPageStepSub);
            return true;
        case Qt::Key_PageDown:
            VScroll1->triggerAction(QScrollBar::SliderPageStepAdd);
            return true;
        default:
            return ModalDialog::eventFilter(watched, event);
    }
}

void Frmriseresults::wheelEvent(QWheelEvent* event) {
    turned += event->angleDelta().y();
    for (; turned >= wheelnotch; turned -= wheelnotch)
        VScroll1->triggerAction(QScrollBar::SliderSingleStepSub);
    for (; turned <= -wheelnotch; turned += wheelnotch)
        VScroll1->triggerAction(QScrollBar::SliderSingleStepAdd);
    event->accept();
}

void Frmriseresults::cmdsunprint_Click() {
    printsun(context);
}

void Frmriseresults::Command1_Click() {
    savesuncsv(context);
    VScroll1_Change();
}

void Frmriseresults::reject() {
    leavesunresults(context.session);
    ModalDialog::reject();
}

}  // namespace tarvane
