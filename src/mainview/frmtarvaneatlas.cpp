// The windows about all the world's ports that the main window opens: the finder, the map, what is known of a port.
#include "atlas/frmaboutport.h"
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"
#include "portdata/recordfiles.h"

namespace tarvane {

void frmtarvane::openfinder() {}

void frmtarvane::openmap() {}

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
