// The month table: every day's high and low waters as data, as list rows, as two parallel lists of texts for saving and
// copying, and as cells by day. Must not show anything.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "engine/prediction.h"
#include "output/daytable.h"
#include "platform/locale.h"
#include "portdata/configuration.h"
#include "portdata/currentport.h"

namespace tarvane {

/// One day of the table.
struct MonthDay {
    Date date{};
    int weekday = 0;               ///< 0 Sunday to 6 Saturday
    std::string head;              ///< "9 Apr (Tue)", both names the system's
    std::vector<WaterText> tides;  ///< "hh:mm" and metres with two decimals, in time order
    bool defined = true;           ///< false for a day without a prediction, which has no tides
    const char* whynot = "";       ///< why then, a sentence for the user
};

/// What a table holds, or would hold if it were made now: two that are equal have the same tides.
struct MonthMade {
    std::string hcfile;
    std::int16_t portnumber = 0;  ///< its record number, from 1
    std::string portname;
    int year = 0;
    int month = 0;            ///< 1 to 12
    std::int16_t summer = 0;  ///< the shift that serves all days, -1 or 0
    float currentoutput = 0;
    float userdepth = 0;  ///< metres

    bool operator==(const MonthMade&) const = default;
};

struct MonthTable {
    MonthMade made;
    std::vector<MonthDay> days;                  ///< those of the month from its first
    std::vector<std::string> monthspredictions;  ///< the rows of the list box; empty until a month is asked for
    std::vector<std::string> monthcolumn1;       ///< from 0; row i of the table is the pair of both columns' i
    std::vector<std::string> monthcolumn2;
    /// By day of the month, column (1 time, 2 height, 3 number of turning points at turning point 1) and turning point.
    std::array<std::array<std::array<std::string, 16>, 4>, 33> monthcells;
    std::string monthtitle;
    std::string monthheading;
};

/// Empties the cells; the days and lists stay.
void clearmonthcells(MonthTable& table);

/// What a table made now for the month of `onshow.tidedate` would hold; `settings.userdepth` is that of the port.
MonthMade monthmadenow(const Settings& settings, const CurrentPort& port, const DateOnShow& onshow);

/// Rebuilds the whole table for the month of `onshow.tidedate`, one summer shift (that of the day on show) serving for
/// all its days.
void buildmonthtable(MonthTable& table, const Settings& settings, const CurrentPort& port, const DateOnShow& onshow,
                     const Locale& locale);

}  // namespace tarvane
