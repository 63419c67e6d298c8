// The three commands of the "&Save" menu. What stood at the chosen place stays when it can't be replaced.
#pragma once

#include "mainview/session.h"

namespace tarvane {

/// `mnusavmonth_Click`: the month's tides, calculated first when none are there.
void savemonth(MainContext& context);

/// `mnusaveday_Click`: the heights of the day on show every 10 minutes.
void saveday(MainContext& context);

/// `mnusavesun_Click`: the sun table, which must have been calculated.
void savesun(MainContext& context);

}  // namespace tarvane
