// What the main window does when a window beside it asks for it, and the present tide in its status bar. Must not know
// any control.
#pragma once

#include "planner/presenttide.h"
#include "session/session.h"

namespace tarvane {

/// Makes a port of the sea area current, by its number, as choosing it in the list of ports does.
void chooseport(MainContext& context, std::int16_t number);

/// Makes a port of any sea area current, by the path of the area's file, as choosing that area and then the port in its
/// list does.
void chooseport(MainContext& context, const std::string& area, std::int16_t number);

/// Shows a day, as entering its date does.
void showdate(MainContext& context, Date date);

/// The present tide on the port's own clock; both empty without a prediction.
struct PresentTexts {
    std::string brief;  ///< "Now 3.4 m, rising 0.6 m/h, HW 17:02 BST"
    std::string whole;  ///< with both next waters, the time to go to them, and which clock that is
};

PresentTexts presenttidetexts(const MainContext& context, PresentTide& present);

}  // namespace tarvane
