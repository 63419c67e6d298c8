// The four moon phases of a month from a mean-lunation series with periodic corrections.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dates/calendar.h"

namespace tarvane {

struct LunarTexts {
    std::array<std::string, 11> lunarlist;  ///< one line a phase, from index 2; index 1 stays empty
    int lunarcount = 1;                     ///< highest index filled
    std::string lunartext;                  ///< all lines, a carriage return behind each
    std::array<double, 4> phasejulians{};   ///< Julian dates of the four, from the new moon on
};

/// Fills `texts` for the month (1 to 12) and year. A phase that falls just outside the month is listed under it with
/// its own day number.
void LunarPhases(int month, int year, LunarTexts& texts);

/// A phase at its own moment, to some minutes: 0 new moon, 1 first quarter, 2 full moon, 3 last quarter.
struct MoonPhase {
    std::chrono::sys_seconds moment;
    int phase = 0;
};

/// The phases from `from` up to `until`, in order of time, by the same series.
std::vector<MoonPhase> phasesbetween(std::chrono::sys_seconds from, std::chrono::sys_seconds until);

/// Exchanges two texts.
void SwapText(std::string& first, std::string& second);

}  // namespace tarvane
