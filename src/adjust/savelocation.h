// Saving the intermediate location's constants as a port of an area file. Must not know any control.
#pragma once

#include <string>

#include "adjust/workspace.h"

namespace tarvane {

struct SaveChoice {
    std::string areaname;    ///< `txtAreaName`
    std::string location;    ///< `Text1`
    bool replace = false;    ///< `Option1`
    int highlighted = -1;    ///< place in the list of locations
    std::string listedfile;  ///< the file that the list shows; empty for none
};

struct LocationSaved {
    std::string message;  ///< what stopped it; empty when it was saved
    std::string answer;   ///< what the file holds now
};

/// Writes the boxes' constants: the monthly levels 0, the monthly M2 amplitudes alike. Number, position and zone stay
/// zero bytes, but for what the place was given. That the port is the user's own is noted as of today.
LocationSaved savelocation(AdjustWorkspace& workspace, Session& session, const SaveChoice& choice, Date today);

}  // namespace tarvane
