// Lines of official tables as they are copied from elsewhere. Must not guess: a line that can be meant in two ways
// isn't read, and keeps its text.
#pragma once

#include <string>
#include <vector>

#include "atlas/tablefields.h"
#include "portdata/ownports.h"

namespace tarvane {

/// How this machine writes dates.
struct DateReading {
    const DateConventions& conventions;
    const Locale& locale;
    Date today;
};

/// A date in the system's order as "2026-07-14", whatever name of a weekday stands with it; months and weekdays may
/// have their names in the system's language or in English. What can't be read as it is; a date that isn't on the
/// weekday named as "Sun 2026-07-14".
std::string tidydate(const std::string& typed, const DateReading& dates);

/// Why that isn't the date of a line, "2026-07-14 is a Tuesday", or that a time before it is later; empty when it is
/// one.
std::string datefault(const std::string& tidied);

/// Stands behind a height whose unit isn't known.
inline constexpr const char* doubtfulheight = " ?";

/// Bytes of a text that can be a table.
inline constexpr std::size_t longestpaste = 1'000'000;

/// Why a line isn't read that stands as its own date.
std::string linefault(const std::string& left);

/// Lines copied from elsewhere, "Sat 14/07/2026 0612 5.4 1130 0.9" or parts of it, between blanks, tabs, semicolons,
/// or commas that are no decimal ones: one of each water. A line without a date has that of the line before, `before`
/// at first, be it understood or not, with a "?" behind it where its time is earlier; a date alone is that of the lines
/// behind it. What can't be read stands as the date of its line. "PM" is a half of the day or high water, whichever the
/// whole text shows; the order of day and month is the system's unless dates or weekdays hold only in the other one.
/// Heights without a unit are in the one that headings name, or metres; where one can't be, or headings contradict each
/// other, all of them have `doubtfulheight` behind them.
/// Reads no further than `longestpaste` and gives more than `room` lines where there may be more than those.
std::vector<TableWater> pastedwaters(const std::string& text, const DateReading& dates, const TableWater& before,
                                     std::size_t room);

}  // namespace tarvane
