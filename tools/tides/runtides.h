// The whole of the terminal companion but for its `main`: arguments in, text out. Must not ask the system anything that
// isn't in the environment handed in, nor write a file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tides/environment.h"

namespace tarvane {

/// The exit status of a call that was refused.
inline constexpr int refused = 2;

/// Runs the companion on the arguments behind the program's name. Returned: the exit status, 0; or 2 with one line on
/// `err` and nothing on `out` (but what a full disk cut off). Days that a table leaves out for want of a prediction are
/// told on `err`, a line a port and reason; a table of none but such days is not written, and the status is 2.
int runtides(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
             std::ostream& err);

}  // namespace tarvane
