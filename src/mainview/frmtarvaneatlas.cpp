// The windows about all the world's ports that the main window opens: the finder, the map, what is known of a port.
#include <QApplication>
#include <filesystem>

#include "atlas/frmaboutport.h"
#include "atlas/frmfinder.h"
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"
#include "paint/frmlightpalette.h"
#include "platform/qt/nightlight.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {

/// The ports of all areas as their files are now, the area in hand among them wherever it lies.
World& frmtarvane::worldports() {
    if (!world) world = std::make_unique<World>();
    rereadworld(session.folders, *world, session.settings.hcfile);
    return *world;
}

/// Over the window in use. A port chosen there is chosen as by Sea Area and the list.
void frmtarvane::openfinder(const std::string& text) {
    keeprecent();
    World& ports = worldports();
    QWidget* over = QApplication::activeWindow();
    frmfinder window(context, ports, lightingof(nightison()), over ? over : this);
    window.onabout = [&](std::size_t place) {
        const WorldPort& port = ports.ports[place];
        frmaboutport about(context, ports.areas[port.area].path, port.number, &window);
        context.services.windows.showmodal(about);
    };
    window.onmap = [&](std::size_t place) {
        const WorldPort& port = ports.ports[place];
        openmap();
        map->showport(ports.areas[port.area].path, port.number);
    };
    window.type(text);
    context.services.windows.showmodal(window);
    if (!window.chosen()) return;
    const WorldPort& port = ports.ports[*window.chosen()];
    chooseport(context, ports.areas[port.area].path, port.number);
    showview();
    keeprecent();
}

/// A port that stays on show, however it was chosen, becomes a recent one; those leafed through don't.
void frmtarvane::followrecent() {
    const KeptPort now{std::filesystem::path(session.settings.hcfile).filename().string(), trim(session.port.portname)};
    const bool starts = shownport.area.empty();
    if (now == shownport) return;
    shownport = now;
    if (!starts) recentlater->start();
}

void frmtarvane::keeprecent() {
    if (shownport.name.empty() || !recentlater->isActive()) return;
    recentlater->stop();
    // One that can't be kept is nothing that the user has entered.
    noterecent(finderkeepspath(session.folders), shownport);
}

/// The map stands beside the main window, and each follows the other to another port.
void frmtarvane::openmap() {
    if (!map) {
        map = std::make_unique<frmmap>(context);
        map->onport = [this](const std::string& area, std::int16_t number) {
            chooseport(context, area, number);
            showview();
        };
    }
    map->shownight(planner ? planner->planview().settings.night
                           : readplansettings(plansettingspath(session.folders)).night);
    map->follow();
    map->show();
    map->raise();
    map->activateWindow();
}

void frmtarvane::openabout() {
    const Settings& settings = session.settings;
    if (settings.currentport < 1 || settings.currentport > portcount(settings.hcfile)) {
        session.view.answer = "There is no port in hand: select one";
        return showview();
    }
    QWidget* over = planner && planner->isActiveWindow() ? static_cast<QWidget*>(planner.get()) : this;
    frmaboutport window(context, settings.hcfile, settings.currentport, over);
    context.services.windows.showmodal(window);
}

}  // namespace tarvane
