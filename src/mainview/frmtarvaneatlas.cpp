// The windows about all the world's ports that the main window opens: the finder, the map, what is known of a port.
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"

namespace tarvane {

void frmtarvane::openfinder() {}

void frmtarvane::openmap() {}

void frmtarvane::openabout() {}

}  // namespace tarvane
