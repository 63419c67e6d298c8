// Pictures of the manual's window. They stand apart from those of the other windows, which the manual itself is made
// of.
#pragma once

#include <string>

namespace tarvane::shots {

/// Pictures of the built manual as its window shows it; false if one can't be written.
bool takereader(const std::string& folder);

}  // namespace tarvane::shots
