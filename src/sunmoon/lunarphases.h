// The four moon phases of a month from a mean-lunation series with periodic corrections.
#pragma once

#include <array>
#include <string>

namespace tarvane {

struct LunarTexts {
    std::array<std::string, 11> lunarlist;  ///< one line a phase, from index 2; index 1 stays empty
    int lunarcount = 1;                     ///< highest index filled
    std::string lunartext;                  ///< all lines, a carriage return behind each
};

/// Fills `texts` for the month (1 to 12) and year. A phase that falls just outside the month is listed under it with
/// its own day number.
void LunarPhases(int month, int year, LunarTexts& texts);

/// Exchanges two texts.
void SwapText(std::string& first, std::string& second);

}  // namespace tarvane
