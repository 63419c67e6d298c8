// The planner's pages as PDFs in a folder: a span, months and an almanac, for ports whose tides differ, on both papers.
// Must not ask anything.
#pragma once

#include <string>

namespace tarvane::shots {

/// False, and a line on the error stream, for one that can't be written.
bool takebooklets(const std::string& folder, const std::string& area);

}  // namespace tarvane::shots
