#include "atlas/frmfinder.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include "paint/frmlightpalette.h"
#include "platform/qt/named.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/screentext.h"

namespace tarvane {
namespace {

std::unique_ptr<Finder> finderof(const MainContext& context, const World& world) {
    const Settings& settings = context.session.settings;
    auto finder = std::make_unique<Finder>(world, worldplace(world, settings.hcfile, settings.currentport));
    finder->setkeeps(readfinderkeeps(finderkeepspath(context.session.folders)));
    return finder;
}

/// Keys that move in the list while the box has the focus.
bool movesinlist(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        case Qt::Key_Home:
        case Qt::Key_End:
            return key.modifiers() == Qt::ControlModifier;
        default:
            return false;
    }
}

}  // namespace

frmfinder::frmfinder(MainContext& maincontext, World& everyport, Lighting light, QWidget* parent)
    : ModalDialog("frmfinder", "Find a Port", parent),
      context(maincontext),
      world(everyport),
      colours(coloursof(light)),
      finder(finderof(maincontext, everyport)) {
    setProperty(ownlight, true);
    setPalette(paletteof(colours));
    buildlayout();
    connectcontrols();
    find();
    lblKept->tell(tellfinderkeeps(finderkeepspath(context.session.folders)));
    settle(cmdChoose, txtFind);
}

void frmfinder::buildlayout() {
    txtFind = named<QLineEdit>("txtFind");
    txtFind->setAccessibleName("Find");
    txtFind->setPlaceholderText("Port, area or country; near 50.1 N 1.4 W; near Brest");
    txtFind->setClearButtonEnabled(true);
    lightclearmark(*txtFind, colours);
    txtFind->setMaxLength(80);
    ports = new FinderTable({world, context.services.zones, colours, context.services.clock.moment()});
    lblFound = named<QLabel>("lblFound");
    lblFound->setTextFormat(Qt::PlainText);
    lblFound->setWordWrap(true);
    lblKept = new KeptNote;
    cmdChoose = named<QPushButton>("cmdChoose", "&Choose");
    cmdFavourite = named<QPushButton>("cmdFavourite", "&Favourite");
    cmdFavourite->setCheckable(true);
    cmdFavourite->setToolTip("Lists it first from now on (Ctrl+D)");
    cmdAbout = named<QPushButton>("cmdAbout", "&About");
    cmdAbout->setToolTip("How good this port is (Ctrl+I)");
    cmdMap = named<QPushButton>("cmdMap", "&Map");
    cmdMap->setToolTip("Shows it on the map (Ctrl+M)");
    cancel = named<QPushButton>("cancel", "Close");
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(txtFind);
    rows->addWidget(ports, 1);
    rows->addWidget(lblFound);
    rows->addWidget(lblKept);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdChoose, cmdFavourite, cmdAbout, cmdMap}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    cancel->setAutoDefault(false);
    buttons->addWidget(cancel);
    rows->addLayout(buttons);
}

void frmfinder::connectcontrols() {
    txtFind->installEventFilter(this);
    ports->isfavourite = [this](std::size_t place) { return finder->isfavourite(place); };
    ports->onstar = [this](std::size_t place) { togglefavourite(place); };
    ports->onchoice = [this](std::size_t place) { choose(place); };
    connect(txtFind, &QLineEdit::textChanged, this, [this] { find(); });
    connect(ports->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { showcurrent(); });
    const auto oncurrent = [this](QPushButton* button, const char* key, auto act) {
        const auto run = [this, act] {
            if (const auto place = ports->current()) act(*place);
        };
        connect(button, &QPushButton::clicked, this, run);
        if (*key) connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, run);
    };
    oncurrent(cmdChoose, "", [this](std::size_t place) { choose(place); });
    oncurrent(cmdFavourite, "Ctrl+D", [this](std::size_t place) { togglefavourite(place); });
    oncurrent(cmdAbout, "Ctrl+I", [this](std::size_t place) {
        if (!onabout) return;
        onabout(place);
        renew();
    });
    oncurrent(cmdMap, "Ctrl+M", [this](std::size_t place) {
        if (!onmap) return;
        // The map stands beside the main window, which this one keeps from being used.
        reject();
        onmap(place);
    });
    connect(cancel, &QPushButton::clicked, this, &frmfinder::reject);
}

void frmfinder::type(const std::string& text) {
    txtFind->setText(screentext(text));
}

void frmfinder::find() {
    ports->show(finder->find(txtFind->text().toStdString()));
    lblFound->setText(screentext(ports->found().told));
    showcurrent();
}

void frmfinder::showcurrent() {
    const auto place = ports->current();
    for (QPushButton* button : {cmdChoose, cmdFavourite, cmdAbout, cmdMap})
        button->setEnabled(place.has_value());
    cmdFavourite->setChecked(place && finder->isfavourite(*place));
}

void frmfinder::togglefavourite(std::size_t place) {
    const std::string path = finderkeepspath(context.session.folders);
    const WriteOutcome outcome = tarvane::togglefavourite(path, keptport(world, place));
    // The list stays as it is, so that the port doesn't jump away under the pointer.
    finder->setkeeps(readfinderkeeps(path));
    lblKept->tell(tellfinderkeeps(path));
    ports->showstars();
    showcurrent();
    lblFound->setText(
        screentext(outcome ? ports->found().told : "Favourites can't be kept: " + path + ", " + outcome.reason()));
}

/// The same list of the areas as they are now.
void frmfinder::renew() {
    const int row = ports->currentIndex().row();
    finder = finderof(context, world);
    find();
    ports->gotorow(row);
}

void frmfinder::choose(std::size_t place) {
    const WorldPort wanted = world.ports[place];
    const std::string area = world.areas[wanted.area].path;
    if (rereadworld(context.session.folders, world, context.session.settings.hcfile)) {
        renew();
        const auto now = worldplace(world, area, wanted.number, wanted.name);
        if (!now) return lblFound->setText(screentext(goneport(area, wanted.name)));
        place = *now;
    }
    chosen_ = place;
    accept();
}

bool frmfinder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtFind && event->type() == QEvent::ShortcutOverride) {
        // Where the box would delete a letter by it.
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_D && key.modifiers() == Qt::ControlModifier) {
            event->ignore();
            return true;
        }
    }
    if (watched == txtFind && event->type() == QEvent::KeyPress && movesinlist(static_cast<QKeyEvent&>(*event))) {
        QCoreApplication::sendEvent(ports, event);
        return true;
    }
    return ModalDialog::eventFilter(watched, event);
}

void frmfinder::showEvent(QShowEvent* event) {
    cmdAbout->setVisible(static_cast<bool>(onabout));
    cmdMap->setVisible(static_cast<bool>(onmap));
    ModalDialog::showEvent(event);
}

}  // namespace tarvane
