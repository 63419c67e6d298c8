#include "ports/frmconfig.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "portdata/recordfiles.h"
#include "ports/portselection.h"

namespace tarvane {
namespace {

constexpr int rowsinview = 22;

/// Room for the longest name that a record holds.
int namewidth(const QWidget& widget) {
    return widget.fontMetrics().averageCharWidth() * 35;
}

}  // namespace

frmconfig::frmconfig(MainContext& mainview, QWidget* parent)
    : ModalDialog(parent),
      portlist2(named<QListWidget>("portlist2")),
      txtSearch(named<QLineEdit>("txtSearch")),
      cmdSearch(named<QPushButton>("cmdSearch", "&Search")),
      Frame1(named<QGroupBox>("Frame1", "Sort")),
      optSortbyName(named<QRadioButton>("optSortbyName", "Sort by &name")),
      optSortGeog(named<QRadioButton>("optSortGeog", "Sort &geographically")),
      cmdSort(named<QPushButton>("cmdSort", "S&ort")),
      portconfigok(named<QPushButton>("portconfigok", "OK")),
      portconfigcancel(named<QPushButton>("portconfigcancel", "Cancel")),
      confselectedport(named<QLabel>("confselectedport", "Selected Port")),
      portconfigbox(namedvalue("portconfigbox")),
      Label1(named<QLabel>("Label1",
                           "Double click on an entry or select a port from the list and click OK.\n"
                           "Enter part of the ports name and click the Search button.\n"
                           "Press Search again for the next occurance.")),
      lblhint(named<QLabel>("lblhint",
                            "Highlight any item and press a letter on the keyboard to jump to the letter group.\n"
                            "(e.g. repetitive presses of letter P will scroll through all ports beginning with P).")),
      context(mainview) {
    setObjectName("frmconfig");
    setWindowTitle("Select Port");
    buildlayout();
    connectcontrols();
    loadlist();
    const bool byname = context.session.settings.configrec.sortmode != 0;
    (byname ? optSortbyName : optSortGeog)->setChecked(true);
    if (byname) {
        sortbyname(ports);
        showlist();
    }
    const int rowheight = std::max(portlist2->sizeHintForRow(0), fontMetrics().lineSpacing());
    portlist2->setMinimumHeight(rowsinview * rowheight + 2 * portlist2->frameWidth());
    adjustSize();
    centreon(*this, parent ? parent->window() : nullptr);
}

void frmconfig::buildlayout() {
    portlist2->setMinimumWidth(namewidth(*portlist2) + twips(600));
    portconfigbox->setMinimumWidth(namewidth(*portconfigbox));
    txtSearch->setAccessibleName("Part of the port's name");
    portlist2->setAccessibleName("Ports");

    auto* search = new QHBoxLayout;
    search->addWidget(txtSearch, 1);
    search->addWidget(cmdSearch);

    auto* sort = new QVBoxLayout(Frame1);
    sort->addWidget(optSortbyName);
    sort->addWidget(optSortGeog);
    sort->addWidget(cmdSort, 0, Qt::AlignLeft);

    auto* side = new QVBoxLayout;
    side->addWidget(Frame1);
    side->addSpacing(twips(180));
    side->addWidget(confselectedport);
    side->addWidget(portconfigbox);
    side->addStretch(1);
    side->addWidget(portconfigok);
    side->addWidget(portconfigcancel);

    auto* middle = new QHBoxLayout;
    middle->addWidget(portlist2, 1);
    middle->addLayout(side);

    auto* whole = new QVBoxLayout(this);
    whole->addWidget(Label1);
    whole->addLayout(search);
    whole->addLayout(middle, 1);
    whole->addWidget(lblhint);

    QWidget* order[] = {txtSearch,   cmdSearch, portlist2,    optSortbyName,
                        optSortGeog, cmdSort,   portconfigok, portconfigcancel};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    portconfigok->setDefault(true);
    txtSearch->setFocus();
}

void frmconfig::connectcontrols() {
    connect(portlist2, &QListWidget::itemSelectionChanged, this, &frmconfig::portlist2_Click);
    connect(portlist2, &QListWidget::itemDoubleClicked, this, &frmconfig::portconfigok_Click);
    connect(txtSearch, &QLineEdit::textChanged, this, &frmconfig::txtSearch_Change);
    connect(cmdSearch, &QPushButton::clicked, this, &frmconfig::cmdSearch_Click);
    connect(cmdSort, &QPushButton::clicked, this, &frmconfig::cmdSort_Click);
    connect(portconfigok, &QPushButton::clicked, this, &frmconfig::portconfigok_Click);
    connect(portconfigcancel, &QPushButton::clicked, this, &frmconfig::reject);
    txtSearch->installEventFilter(this);
}

void frmconfig::loadlist() {
    const Settings& settings = context.session.settings;
    loadportlist(ports, settings.areafile);
    portconfigbox->setText(QString::fromStdString(trimmedname(readport(settings.areafile, settings.currentport))));
    showlist();
}

void frmconfig::showlist() {
    portlist2->clear();
    for (const std::string& name : portnames(ports))
        portlist2->addItem(QString::fromStdString(name));
}

void frmconfig::showhit(std::optional<std::size_t> index) {
    if (!index) return;
    portlist2->setCurrentRow(static_cast<int>(*index), QItemSelectionModel::ClearAndSelect);
}

int frmconfig::listindex() const {
    // A row can be current without being selected: the list makes one so when it gets the focus.
    const auto selected = portlist2->selectedItems();
    return selected.isEmpty() ? -1 : portlist2->row(selected.first());
}

void frmconfig::portlist2_Click() {
    if (listindex() < 0) return;
    const auto name = pickport(ports, portlist2->item(listindex())->text().toStdString());
    if (name) portconfigbox->setText(QString::fromStdString(*name));
}

void frmconfig::txtSearch_Change() {
    showhit(searchfromstart(ports, txtSearch->text().toStdString()));
    QPalette colours = palette();
    if (!searchhits(ports, txtSearch->text().toStdString())) colours.setColor(QPalette::Text, Qt::red);
    txtSearch->setPalette(colours);
}

void frmconfig::cmdSearch_Click() {
    showhit(searchnext(ports, txtSearch->text().toStdString()));
}

void frmconfig::cmdSort_Click() {
    if (optSortbyName->isChecked()) {
        sortbyname(ports);
        showlist();
    } else {
        loadlist();
    }
}

void frmconfig::portconfigok_Click() {
    if (tarvane::portconfigok(context, ports, listindex(), optSortbyName->isChecked())) accept();
}

void frmconfig::reject() {
    tarvane::portconfigcancel(context);
    ModalDialog::reject();
}

bool frmconfig::searchkey(QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(portlist2, &key);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // The entry still highlighted is that of an earlier text, and Enter would take a port that wasn't asked
            // for.
            if (searchhits(ports, txtSearch->text().toStdString())) return false;
            context.services.messages.beep();
            txtSearch->selectAll();
            return true;
        default:
            return false;
    }
}

bool frmconfig::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtSearch && event->type() == QEvent::KeyPress && searchkey(static_cast<QKeyEvent&>(*event)))
        return true;
    return ModalDialog::eventFilter(watched, event);
}

}  // namespace tarvane
