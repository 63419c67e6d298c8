// The orbital constants of two years, a day a row, as they are written for analysis. They depend on no port. Must not
// write a file.
#pragma once

#include <string>
#include <vector>

#include "engine/orbital.h"

namespace tarvane {

struct DayConstantsRow {
    double julian = 0;
    int day = 0;  ///< of the year, from 1
    int year = 0;
    AnglesAndFactors constants;
    SpeedsAndRates rates;
};

/// The years that have a file of their own, each with the year behind it.
inline constexpr int firstconstantsyear = 2016, lastconstantsyear = 2018;

/// A row for each day of the year and of the next. Days without constants (1990) have none.
std::vector<DayConstantsRow> dayconstants(int year);

/// The file: its header, and a row a line with ".", CR LF at each end; with its place from 0 in front if asked for.
std::string dayconstantsfile(const std::vector<DayConstantsRow>& rows, bool withid);

}  // namespace tarvane
