// The entries of the special menu: raw figures of the method as files in the program's folder, for analysis elsewhere.
// They ask for nothing. Must not know any control.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnuAnglesAndFactors`: each day's constants of the fixed years, with an id in front of each row.
void exportanglesandfactors(MainContext& context);

/// `mnuCalcOrbitalConst`: the same without the id, into the same files.
void exportorbitalconstants(MainContext& context);

/// `mnuYears`: the high waters of the current port over the year on show and the next. It leaves the day's number
/// changed and the curve in memory blank; a run that the user cancels or that can't go on leaves everything as it was.
void exportyears(MainContext& context);

}  // namespace tarvane
