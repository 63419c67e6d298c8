// "&Months Tide": the month's tides as a list over the day table. Must not know any control.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnumonth_Click`: leaves the constituents view, builds the month table of the date on show, draws the day on show
/// anew and shows the list. The clock time is left corrected for the port's zone.
void calculatemonth(MainContext& context);

/// Sees to a table before it is saved or copied: a list of fewer than 10 rows is calculated. False, the user having
/// been told, when it holds 10 rows or fewer then.
bool havemonthtable(MainContext& context);

}  // namespace tarvane
