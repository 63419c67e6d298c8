// The whole of the terminal companion but for its `main`: arguments in, text out. Must not ask the system anything that
// isn't in the environment handed in, nor write a file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tides/environment.h"

namespace tarvane {

/// Runs the companion on the arguments behind the program's name. Returned: the exit status, 0; or 2 with one line on
/// `err` and nothing on `out` (but what a full disk cut off).
int runtides(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
             std::ostream& err);

}  // namespace tarvane
