// The four commands of the "Clip&board" menu.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnuCopyDaysTides_Click`: the day table with the kind of time and the tide's age.
void copydaystides(MainContext& context);

/// `mnuCopyMonth_Click`: the month's tides, calculated first when none are there.
void copymonthstides(MainContext& context);

/// `mnuCopySunTimes_Click`: sunrise and sunset of the day on show; changes the day table's first lines.
void copydayssuntimes(MainContext& context);

/// `mnuCopyMonthSunTimes_Click`: the month's sun times, calculated anew for the port's own position.
void copymonthssuntimes(MainContext& context);

}  // namespace tarvane
