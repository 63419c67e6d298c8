// The program that is killed: edits the files of a trial in a random order until it is. Ahead of each edit it writes
// into the log what every file will hold, reckoned apart from the routines that do it.
#pragma once

#include <string>

namespace tarvane::killtrial {

/// Edits until killed or a minute has passed. The exit status: 1 when an edit failed or left something else than was
/// foretold, else 0.
int runwriter(const std::string& folder, unsigned seed);

}  // namespace tarvane::killtrial
