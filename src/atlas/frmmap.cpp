#include "atlas/frmmap.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "atlas/maptexts.h"
#include "paint/frmlightpalette.h"
#include "platform/qt/appearance.h"
#include "platform/qt/modaldialog.h"
#include "platform/qt/named.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/screentext.h"
#include "world/frmtrusticon.h"

namespace tarvane {
namespace {

constexpr double zoomstep = 1.6;

QPushButton* button(const char* name, const char* caption, const char* hint) {
    auto* made = named<QPushButton>(name, caption);
    made->setToolTip(hint);
    made->setAutoDefault(false);
    return made;
}

}  // namespace

frmmap::frmmap(MainContext& maincontext) : context(maincontext) {
    setObjectName("frmmap");
    setProperty(ownlight, true);
    setWindowTitle("Map");
    QFont own = font();
    own.setPointSizeF(std::max(own.pointSizeF(), desktoplook().fontpoints));
    setFont(own);
    buildlayout();
    connectcontrols();
    shownight(false);
    follow();
    resize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 44);
    fitscreen(*this);
    centreon(*this, nullptr);
    map->setFocus();
}

void frmmap::buildlayout() {
    map = new MapBox(context.session.folders.programfolder);
    map->setMinimumSize(fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 12);
    lblPointed = namedlabel("lblPointed", nullptr);
    lblPointed->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = font();
    bold.setBold(true);
    lblPointed->setFont(bold);
    lblPosition = namedlabel("lblPosition", nullptr);
    cmdZoomIn = button("cmdZoomIn", "Zoom &In", "Closer (+, or the wheel)");
    cmdZoomOut = button("cmdZoomOut", "Zoom &Out", "Farther away (-, or the wheel)");
    cmdThisPort = button("cmdThisPort", "This &Port", "The port in hand into the middle (Home)");
    cmdArea = button("cmdArea", "This A&rea", "All ports of the sea area in hand");
    cmdAll = button("cmdAll", "&All", "The whole world");
    cmdClose = button("cmdClose", "&Close", "Closes the map (Escape)");

    auto* told = new QHBoxLayout;
    told->addWidget(lblPointed, 1);
    told->addLayout(buildlegend());
    auto* foot = new QHBoxLayout;
    foot->addWidget(lblPosition, 1);
    for (QPushButton* each : {cmdZoomIn, cmdZoomOut, cmdThisPort, cmdArea, cmdAll, cmdClose})
        foot->addWidget(each);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(8, 8, 8, 8);
    whole->addWidget(map, 1);
    whole->addLayout(told);
    whole->addLayout(foot);
}

QLayout* frmmap::buildlegend() {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    for (std::size_t i = 0; i < legend.size(); ++i) {
        const auto trust = static_cast<Trust>(i);
        legend[i] = named<QLabel>("legend");
        auto* word = new QLabel(trustword(trust));
        for (QLabel* each : {legend[i], word}) {
            each->setToolTip(QString::fromStdString(trusthint(trust)));
            row->addWidget(each);
        }
        row->addSpacing(6);
    }
    return row;
}

void frmmap::connectcontrols() {
    map->onpointed = [this] { showpointed(); };
    map->onport = [this](std::size_t place) {
        if (place != map->inhand()) choose(place);
    };
    connect(cmdZoomIn, &QPushButton::clicked, this, [this] { map->zoom(zoomstep); });
    connect(cmdZoomOut, &QPushButton::clicked, this, [this] { map->zoom(1 / zoomstep); });
    connect(cmdThisPort, &QPushButton::clicked, this, [this] { map->goinhand(); });
    connect(cmdArea, &QPushButton::clicked, this, [this] { showarea(); });
    connect(cmdAll, &QPushButton::clicked, this, [this] { map->wholeworld(); });
    connect(cmdClose, &QPushButton::clicked, this, [this] { close(); });
    connect(new QShortcut(QKeySequence("Ctrl+W"), this), &QShortcut::activated, this, [this] { close(); });
}

/// The areas are read anew first: their files may hold other ports than the map shows.
void frmmap::choose(std::size_t place) {
    const WorldPort wanted = map->world().ports[place];
    const std::string path = map->world().areas[wanted.area].path;
    follow();
    if (!worldplace(files, path, wanted.number, wanted.name))
        return lblPointed->setText(screentext(goneport(path, wanted.name)));
    if (onport) onport(path, wanted.number);
}

void frmmap::follow() {
    const Settings& settings = context.session.settings;
    const bool changed = rereadworld(context.session.folders, files, settings.hcfile);
    if (changed || area != settings.hcfile) map->setports(files, settings.hcfile);
    area = settings.hcfile;
    map->setinhand(worldplace(files, settings.hcfile, settings.currentport));
    const bool known = map->inhand().has_value();
    setWindowTitle(known ? screentext(files.ports[*map->inhand()].name + " - Map") : QStringLiteral("Map"));
    cmdThisPort->setEnabled(known);
    cmdArea->setEnabled(known);
    showpointed();
}

void frmmap::showarea() {
    if (!map->inhand()) return;
    map->fitarea(files.ports[*map->inhand()].area);
}

/// What is pointed at, else the port in hand; and where the mouse is.
void frmmap::showpointed() {
    const std::optional<std::size_t> place = map->pointed() ? map->pointed() : map->inhand();
    lblPointed->setText(place ? screentext(mapporttext(map->world(), *place, map->inhand())) : QString());
    const std::optional<MapPoint> at = map->mouseat();
    lblPosition->setText(at ? screentext(latitudetext(latitudeof(*at)) + " " + longitudetext(longitudeof(*at)))
                            : QString());
}

void frmmap::showport(const std::string& hcfile, std::int16_t number) {
    if (const auto place = worldplace(map->world(), hcfile, number)) map->goport(*place);
}

void frmmap::shownight(bool night) {
    night_ = night;
    const Colours& look = coloursof(lightingof(night));
    setPalette(paletteof(look));
    map->setlook(look);
    showlegend();
}

void frmmap::showlegend() {
    const int size = fontMetrics().height();
    const Colours& look = coloursof(lightingof(night_));
    for (std::size_t i = 0; i < legend.size(); ++i)
        legend[i]->setPixmap(
            trusticon(static_cast<Trust>(i), look, size).pixmap(QSize(size, size), devicePixelRatioF()));
}

void frmmap::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (std::exchange(shownbefore_, true)) return;
    // The waters about the port in hand; the whole world without one.
    map->goinhand();
}

void frmmap::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        shownight(night_);
        follow();
    }
    QWidget::changeEvent(event);
}

void frmmap::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace tarvane
