// The commands of the "&Print" menu about tides: each asks first, prints to the default printer or the PDF that stands
// in for it, and answers. Must not know any control.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnudayprint_Click`: the curve of the day on show, which is drawn anew on the screen afterwards.
void printcurve(MainContext& context);

/// `mnuhrprint_Click`: the day's heights every 10 minutes.
void printtenminutes(MainContext& context);

/// `mnumonthprint_Click`: the month's tides, calculated first when none are there.
void printmonth(MainContext& context);

}  // namespace tarvane
