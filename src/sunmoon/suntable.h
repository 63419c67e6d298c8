// The month's sun times as the sun view, the printout, the saved text and the clipboard take them: by day of the month and
// column. Must not show anything.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "dates/calendar.h"
#include "platform/locale.h"
#include "sunmoon/suntimes.h"

namespace tarvane {

/// Rows by day of the month (0 unused, as row 1 being empty tells that nothing was computed), columns 1 to 7: date or day, nautical
/// dawn, civil dawn, sunrise, sunset, civil dusk, nautical dusk. Row 0 of `suntext` is kept for titles.
struct SunTable {
    std::array<std::array<std::string, 10>, 33> suntext;
    std::array<std::array<double, 10>, 33> sunvalues{};
};

void clearsuntable(SunTable& table);

}  // namespace tarvane
