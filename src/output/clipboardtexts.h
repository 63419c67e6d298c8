// The texts that the "Clip&board" menu copies: tabs between columns, CR LF between lines. Must not touch the clipboard.
#pragma once

#include <cstdint>
#include <string>

#include "dates/calendar.h"
#include "output/daytable.h"
#include "output/monthtable.h"
#include "portdata/records.h"
#include "sunmoon/suntable.h"
#include "sunmoon/suntimes.h"

namespace tarvane {

/// The lines of the day table, the kind of time and the day's place between springs and neaps. `springslag` in hours.
std::string daystidestext(const DayTable& table, double springslag, std::int16_t currentsummer,
                          const DateOnShow& onshow);

/// The rows of both columns and the kind of time.
std::string monthstidestext(const MonthTable& table, std::int16_t currentsummer, const DateOnShow& onshow);

/// Sunrise and sunset of the day. Leaves its own first three lines in the day table.
std::string dayssuntext(DayTable& table, const std::string& portname, const SunHours& sun, std::int16_t currentsummer,
                        const DateOnShow& onshow);

/// What a month's sun times are computed for.
struct SunMonth {
    std::string portname;
    HarmonicRecord port;  ///< its position
    std::int16_t zonehours = 0;
    std::int16_t shift = 0;  ///< -1 or 0, the same for all days
    std::int16_t currentsummer = 0;
};

/// Sun times of the month of `tidemonth` and `tideyear`. Leaves dates and hours in `table`, which is emptied first.
std::string monthssuntext(SunTable& table, const SunMonth& month, const DateOnShow& onshow);

}  // namespace tarvane
