// `tides streams`: the tidal streams at a diamond on a day, as the program's window shows them. Must not write a file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tides/environment.h"

namespace tarvane {

/// Runs the command on the arguments behind "streams". Returned: the exit status, 0; or 2 with one line on `err` and
/// nothing on `out` (but what a full disk cut off). A letter that several diamonds have is told on `err`.
int runstreams(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
               std::ostream& err);

}  // namespace tarvane
