// The month's sun times to the second in columns, as the clipboard takes them and as the sun view saves them. Must not
// compute a time.
#pragma once

#include <cstdint>
#include <string>

#include "sunmoon/suntable.h"

namespace tarvane {

/// What the first line tells: the port with its own position, also over the times of a typed one.
struct SunHeading {
    std::string portname;
    float portlat = 0;   ///< degrees, north positive
    float portlong = 0;  ///< degrees, east positive
    std::int16_t currentsummer = 0;
};

/// The whole month's option, whatever the date.
std::string timezonetext(std::int16_t currentsummer);

/// The heading, the names of the columns and a line for each day of the month from the table's hours, `separator`
/// between columns and CR LF behind each line. Leaves the dates in column 1 of the table's texts as day/month/year.
std::string suntimestext(SunTable& table, const SunHeading& heading, int year, int month, const std::string& separator);

}  // namespace tarvane
