// The choice of a sea area and of a port in it, as far as it isn't controls: what comes before the dialog, and what its
// OK and Cancel do. The caller shows the dialog and, when it is closed, draws the curve anew.
#pragma once

#include "ports/portlist.h"
#include "session/session.h"

namespace tarvane {

/// `mnuPortList` up to the dialog: settings come from the configuration, as they stood there last. Without a
/// configuration file the settings in force stay.
void reloadforportlist(MainContext& context);

/// `mnuArea` up to the dialog: asks for an area file and makes it the one that the dialog lists. False, nothing being
/// changed, when the user cancelled or the file can't be opened; the latter is told.
bool choosesearea(MainContext& context);

/// OK of the dialog: stores the choice and makes the port current, with a first look at its day. `listindex` is the
/// entry selected in the list, negative for none. True when the dialog is to close; else the user was told why not.
bool portconfigok(MainContext& context, const PortList& list, int listindex, bool sortedbyname);

/// Cancel of the dialog: what the configuration holds is in force again. The area listed isn't restored.
void portconfigcancel(MainContext& context);

}  // namespace tarvane
