// The conditions of use that every start shows. Text alone; nothing here decides anything.
#pragma once

#include <string>
#include <vector>

namespace tarvane {

/// An empty line, then 25 lines in six blocks with an empty line between two blocks; every text line is indented by 16
/// blanks. UTF-8.
std::vector<std::string> conditionslines();

}  // namespace tarvane
