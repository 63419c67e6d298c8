// The month table: every day's high and low waters as list rows, as two parallel lists of texts for saving, printing
// and copying, and as cells by day. Must not show anything.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "engine/prediction.h"
#include "platform/locale.h"
#include "portdata/configuration.h"
#include "portdata/currentport.h"

namespace tarvane {

struct MonthTable {
    std::vector<std::string> monthspredictions;  ///< the rows of the list box; empty until a month is asked for
    std::vector<std::string> monthcolumn1;       ///< from 0; row i of the table is the pair of both columns' i
    std::vector<std::string> monthcolumn2;
    /// By day of the month, column (1 time, 2 height, 3 number of turning points at turning point 1) and turning point.
    std::array<std::array<std::array<std::string, 16>, 4>, 33> monthcells;
    std::string monthtitle;
    std::string monthheading;
};

/// Empties the cells; the lists stay.
void clearmonthcells(MonthTable& table);

/// Rebuilds the whole table for the month of `onshow.tidedate`, one summer shift (that of the day on show) serving for
/// all its days.
void buildmonthtable(MonthTable& table, const Settings& settings, const CurrentPort& port, const DateOnShow& onshow,
                     const Locale& locale);

}  // namespace tarvane
