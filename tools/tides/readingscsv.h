// A table of heights read on the spot on one day. Must not read files or judge whether a tide can be fitted to them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "dates/calendar.h"
#include "portdata/heightfiles.h"

namespace tarvane {

struct DayOfReadings {
    Date date{};  ///< of all of them
    std::vector<HeightRecord> readings;
    std::vector<std::size_t> lines;  ///< where each stands, from 1
    std::string fault;               ///< set: the table is refused, "line 7: ..."
};

/// Reads a table with the columns date, time and height under a header line: yyyy-mm-dd, hh:mm from 00:00 to 24:00, and
/// metres with a point. Refused: another header, a row that is not of this form, readings of two dates.
DayOfReadings readingsof(std::string_view csv);

}  // namespace tarvane
