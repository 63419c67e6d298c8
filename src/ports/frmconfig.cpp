#include "ports/frmconfig.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <functional>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "portdata/recordfiles.h"
#include "ports/portselection.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

const char* const helptext =
    "Double click on an entry or select a port from the list and click OK.\n"
    "Enter part of the ports name and click the Search button.\n"
    "Press Search again for the next occurance.";
const char* const letterhint =
    "Highlight any item and press a letter on the keyboard to jump to the letter group.\n"
    "(e.g. repetitive presses of letter P will scroll through all ports beginning with P).";

/// A list that hands on what is typed into it, letters that quickly follow each other as one text.
class LetterList : public QListWidget {
  public:
    std::function<void(const std::string& typed)> onletters;

    void keyboardSearch(const QString& letter) override {
        const bool goeson = sincelast.isValid() && !sincelast.hasExpired(QApplication::keyboardInputInterval());
        typed = goeson ? typed + letter : letter;
        sincelast.start();
        if (onletters && !typed.isEmpty()) onletters(typed.toStdString());
    }

  private:
    QString typed;
    QElapsedTimer sincelast;
};

/// Room for the longest name that a record holds.
int namewidth(const QWidget& widget) {
    return widget.fontMetrics().averageCharWidth() * 35;
}

}  // namespace

frmconfig::frmconfig(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmconfig", "Select Port", parent), context(maincontext) {
    buildlayout();
    connectcontrols();
    openlist();
    settle(portconfigok, txtSearch);
}

void frmconfig::buildlayout() {
    Label1 = named<QLabel>("Label1", helptext);
    txtSearch = named<QLineEdit>("txtSearch");
    txtSearch->setAccessibleName("Part of the port's name");
    cmdSearch = named<QPushButton>("cmdSearch", "&Search");
    auto* letters = named<LetterList>("portlist2");
    letters->onletters = [this](const std::string& typed) { showhit(stepbyletters(ports, listindex(), typed)); };
    portlist2 = letters;
    portlist2->setMinimumWidth(namewidth(*portlist2) + twips(600));
    portlist2->setAccessibleName("Ports");
    lblhint = named<QLabel>("lblhint", letterhint);
    lblmissing = namedlabel("lblmissing", nullptr);

    auto* search = new QHBoxLayout;
    search->addWidget(txtSearch, 1);
    search->addWidget(cmdSearch);
    auto* middle = new QHBoxLayout;
    middle->addWidget(portlist2, 1);
    middle->addLayout(buildside());
    auto* whole = new QVBoxLayout;
    whole->addWidget(Label1);
    whole->addLayout(search);
    whole->addLayout(middle, 1);
    whole->addWidget(lblhint);
    whole->addWidget(lblmissing);
    // The keys have the list; the picture follows it.
    picture = new MapBox(context.session.folders.programfolder);
    picture->setFocusPolicy(Qt::NoFocus);
    picture->setMinimumWidth(twips(1200));
    auto* both = new QHBoxLayout(this);
    both->addLayout(whole);
    both->addWidget(picture, 1);
}

QLayout* frmconfig::buildside() {
    Frame1 = named<QGroupBox>("Frame1", "Sort");
    optSortbyName = named<QRadioButton>("optSortbyName", "Sort by &name");
    optSortGeog = named<QRadioButton>("optSortGeog", "Sort &geographically");
    cmdSort = named<QPushButton>("cmdSort", "S&ort");
    confselectedport = named<QLabel>("confselectedport", "Selected Port");
    portconfigbox = namedvalue("portconfigbox");
    portconfigbox->setMinimumWidth(namewidth(*portconfigbox));
    portconfigok = named<QPushButton>("portconfigok", "OK");
    portconfigcancel = named<QPushButton>("portconfigcancel", "Cancel");

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
    return side;
}

void frmconfig::connectcontrols() {
    connect(portlist2, &QListWidget::itemSelectionChanged, this, &frmconfig::portlist2_Click);
    connect(portlist2, &QListWidget::itemDoubleClicked, this, &frmconfig::portconfigok_Click);
    connect(txtSearch, &QLineEdit::textChanged, this, &frmconfig::txtSearch_Change);
    connect(cmdSearch, &QPushButton::clicked, this, &frmconfig::cmdSearch_Click);
    connect(cmdSort, &QPushButton::clicked, this, &frmconfig::cmdSort_Click);
    connect(portconfigok, &QPushButton::clicked, this, &frmconfig::portconfigok_Click);
    connect(portconfigcancel, &QPushButton::clicked, this, &frmconfig::reject);
    picture->onport = [this](std::size_t place) { pickonmap(place); };
    txtSearch->installEventFilter(this);
}

/// The list as the configuration has it sorted, the current port in view where it is one of this area.
void frmconfig::openlist() {
    const Settings& settings = context.session.settings;
    loadlist();
    picture->setports(readoneworld(context.session.folders, settings.areafile));
    const bool byname = settings.configrec.sortmode != 0;
    (byname ? optSortbyName : optSortGeog)->setChecked(true);
    if (byname) {
        sortbyname(ports);
        showlist();
    }
    setrowsinview(*portlist2, 22);
    if (trim(settings.areafile) != trim(settings.hcfile)) return;
    // kept: nothing is highlighted at first, so that OK asks for a port; the current one is where the keys start.
    picture->setinhand(worldplace(picture->world(), settings.areafile, settings.currentport));
    if (const auto place = placeofrecord(ports, settings.currentport))
        portlist2->setCurrentRow(static_cast<int>(*place), QItemSelectionModel::NoUpdate);
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
    lblmissing->setText(QString::fromStdString(missingports(ports)));
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
    if (!name) return;
    portconfigbox->setText(QString::fromStdString(*name));
    picture->setinhand(worldplace(picture->world(), context.session.settings.areafile, ports.selectedport));
}

/// A port that the list has lost is told below it, and can't be picked.
void frmconfig::pickonmap(std::size_t place) {
    showhit(placeofrecord(ports, picture->world().ports[place].number));
}

void frmconfig::txtSearch_Change() {
    showhit(searchfromstart(ports, txtSearch->text().toStdString()));
    QPalette colours = palette();
    if (!searchhits(ports, txtSearch->text().toStdString())) colours.setColor(QPalette::Text, Qt::red);
    txtSearch->setPalette(colours);
}

void frmconfig::cmdSearch_Click() {
    const auto hit = searchnext(ports, txtSearch->text().toStdString());
    showhit(hit);
    // Enter then takes the hit instead of searching on.
    if (hit) txtSearch->setFocus();
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
