// Every printout as a PDF in a folder, made by the program's own commands and its own printer. Must not ask anything.
#pragma once

#include <string>

namespace tarvane::shots {

/// One PDF for each printout and for the odd days and months that are laid out otherwise. False, and a line on the
/// error stream, for one that can't be made.
bool takepages(const std::string& folder, const std::string& area);

}  // namespace tarvane::shots
