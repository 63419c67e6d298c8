// The month's sun times as the sun view, the printout, the saved text and the clipboard take them: by day of the month
// and column. Must not show anything.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "dates/calendar.h"
#include "platform/locale.h"
#include "sunmoon/suntimes.h"

namespace tarvane {

/// Rows by day of the month (0 unused), columns 1 to 7: date or day, nautical dawn, civil dawn, sunrise, sunset, civil
/// dusk, nautical dusk. An empty row 1 column 1 tells that no month was computed.
struct SunTable {
    std::array<std::array<std::string, 9>, 32> suntext;
    std::array<std::array<double, 9>, 32> sunvalues{};
    std::array<std::string, 4> titles;  ///< from 1: port, longitude, latitude, as the results show them
};

/// Empties texts, values and titles.
void clearsuntable(SunTable& table);

}  // namespace tarvane
