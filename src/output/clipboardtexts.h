// The texts that the "Clip&board" menu copies: tabs between columns, CR LF between
// lines. Must not touch the clipboard.
#pragma once

#include <cstdint>
#include <string>

#include "dates/calendar.h"
#include "output/daytable.h"
#include "output/monthtable.h"
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

}  // namespace tarvane
