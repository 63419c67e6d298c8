// The windows about all the world's ports that the main window opens: the finder, the map, what is known of a port.
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"

namespace tarvane {

/// The ports of all areas as their files are now, the area in hand among them wherever it lies.
World& frmtarvane::worldports() {
    if (!world) world = std::make_unique<World>();
    rereadworld(session.folders, *world, session.settings.hcfile);
    return *world;
}

void frmtarvane::openfinder() {}

void frmtarvane::openmap() {}

void frmtarvane::openabout() {}

}  // namespace tarvane
