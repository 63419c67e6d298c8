// The windows about all the world's ports that the main window opens: the finder, the map, what is known of a port.
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"

namespace tarvane {

void frmtarvane::openfinder() {}

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

void frmtarvane::openabout() {}

}  // namespace tarvane
