// What the list of lunar phases leaves to be misread: phases of other days than it says, and those of the month that it
// lacks. Must not know any control, nor change the list.
#pragma once

#include <string>
#include <vector>

#include "dates/dateformats.h"
#include "sunmoon/lunarphases.h"

namespace tarvane {

/// A sentence a phase that `LunarPhases` listed under this month (1 to 12) with a date that isn't its own, in the order
/// of the phases, then one a phase of the month that isn't listed; none when the list says it all. Days are those of
/// universal time.
std::vector<std::string> phasenotes(const LunarTexts& listed, int month, int year, const Locale& locale);

}  // namespace tarvane
