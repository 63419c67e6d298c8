// "&Months Tide": the month's tides as a list over the day table. Must not know any control.
#pragma once

#include "mainview/session.h"

namespace tarvane {

/// `mnumonth_Click`: leaves the constituents view, builds the month table of the date on show, draws the day on show
/// anew and shows the list. The clock time is left corrected for the port's zone.
void calculatemonth(MainContext& context);

/// Sees to a month table before it is saved or copied: one that has fewer than `fewest` rows is calculated. False, the user having
/// been told, when it has ten rows or fewer after that.
bool havemonthtable(MainContext& context);

}  // namespace tarvane
