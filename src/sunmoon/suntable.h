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

/// Columns of the sun table.
namespace suncolumn {
enum Number : std::size_t { date = 1, nautdawn, civildawn, sunrise, sunset, civildusk, nautdusk };
}

/// The times in the order in which they are printed, saved and copied: the sun, civil twilights, nautical twilights.
inline constexpr std::array<suncolumn::Number, 6> suntimeorder{suncolumn::sunrise,   suncolumn::sunset,
                                                               suncolumn::civildawn, suncolumn::civildusk,
                                                               suncolumn::nautdawn,  suncolumn::nautdusk};

/// Rows by day of the month (0 unused) and column; the date's column holds the day's number among the values. An empty
/// date in row 1 tells that no month was computed.
struct SunTable {
    std::array<std::array<std::string, 9>, 32> suntext;
    std::array<std::array<double, 9>, 32> sunvalues{};
    std::array<std::string, 4> titles;  ///< from 1: port, longitude, latitude, as the results show them
    int year = 0, month = 0;            ///< that it was filled for
};

/// Empties texts, values and titles.
void clearsuntable(SunTable& table);

/// Days that the table holds: its rows from 1 that have a date.
int daysofsuntable(const SunTable& table);

}  // namespace tarvane
