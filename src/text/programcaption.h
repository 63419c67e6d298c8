// The program's name and version, as its windows' captions carry them.
#pragma once

#include <string>

namespace tarvane {

inline constexpr const char* programname = "Tarvane Tides";
inline constexpr const char* programversion = "   (v9.5.0)";

inline std::string programcaption() {
    return std::string(programname) + programversion;
}

}  // namespace tarvane
