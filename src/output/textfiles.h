// The plain text files of the "&Save" menu as bytes: Windows-1252, CR LF. Must not ask for a name or write anything.
#pragma once

#include <cstdint>
#include <string>

#include "dates/calendar.h"
#include "engine/curvelimits.h"
#include "output/monthtable.h"
#include "sunmoon/suntable.h"

namespace tarvane {

/// The name proposed for a month's file: "Alder Quay_Apr_2024", the month in English under every locale.
std::string monthfilename(const std::string& portname, const DateOnShow& onshow);

/// "," when the file's name (without its folder) contains ".csv", else a tab.
std::string tableseparator(const std::string& path);

/// The month's tides, a line for each pair of the two columns, and a last line on the kind of time.
std::string monthfile(const MonthTable& table, const std::string& separator, std::int16_t currentsummer,
                      const DateOnShow& onshow);

/// The day's 144 heights, 10 minutes apart, under the captions of the port and the date.
std::string dayfile(const CurveOnShow& curve, const std::string& portbox, const std::string& tidedatebox);

/// The captions and the one line that says why the day has no prediction.
std::string undefineddayfile(const std::string& whynot, const std::string& portbox, const std::string& tidedatebox);

/// The month's sun times.
std::string sunfile(const SunTable& table);

/// "Summer Time" when the option is on and the month of the date on show is from 4 to 10, else "Standard Time".
const char* timeofmonth(std::int16_t currentsummer, const DateOnShow& onshow);

}  // namespace tarvane
