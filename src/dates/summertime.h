// The program's one rule of summer time: European, by last Sundays, whole days. Must not ask the system's time zone.
#pragma once

#include <cstdint>
#include <string>

#include "dates/calendar.h"

namespace tarvane {

/// The Saturday before the last Sunday of March of that year.
Date SummerStart(std::int16_t year);

/// The last Sunday of October of that year.
Date SummerEnd(std::int16_t year);

/// -1 when the date lies strictly after the start and strictly before the end of its year's summer period, else 0.
std::int16_t IsSummerDate(Date date);

/// The shift that a computation on `date` takes: `IsSummerDate`, forced to 0 when `summerflag2` is 0.
std::int16_t summershift(Date date, std::int16_t summerflag2);

/// True from April to October: the rule of the texts that go by the month's number alone, whatever the date's shift.
bool issummermonth(double month);

/// The correction line under the main curve for a shift (-1 or 0) and the date on show.
std::string correctionline(std::int16_t shift, Date date);

/// The three wordings of the correction line.
extern const char* const adjustedline;        ///< "Times are from midnight local time - ADJUSTED FOR SUMMER TIME"
extern const char* const uncorrectedline;     ///< "Times are from midnight local time - WITHOUT SUMMER TIME CORRECTION"
extern const char* const uncorrectedoffline;  ///< the same without "are"

}  // namespace tarvane
