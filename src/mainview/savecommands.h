// The commands of the "&Save" menu about tides. What stood at the chosen place stays when it can't be replaced.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnusavmonth_Click`: the month's tides, calculated first when none are there.
void savemonth(MainContext& context);

/// `mnusaveday_Click`: the heights of the day on show every 10 minutes.
void saveday(MainContext& context);

}  // namespace tarvane
