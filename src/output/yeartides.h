// The high waters of a port over a year and the next, by samples of one minute, as they are written for analysis. Times
// are zone times: there is no summer shift. Must not read or write a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/prediction.h"

namespace tarvane {

struct YearTideRow {
    int daynumber = 0;  ///< of its year; in the first, one less from 2 January on
    int year = 0;
    double range = 0;     ///< metres, as `hightimes` has it
    double firsthw = -1;  ///< Julian date of that moment; -1 when there is none
    double secondhw = -1;
};

/// The heights of a port at one-minute steps over the 50 hours from 00:00 of the day before `julian`, which is 00:00 of
/// a day; hours from there, metres above chart datum. The last element stays empty. Gives the day's number in its year;
/// nothing where the method has no constants for the day.
std::optional<int> yearrun(const HarmonicRecord& port, double julian, std::vector<TimedValue>& samples);

/// The day's high waters out of the samples of `yearrun`, in hours from 00:00 of the day. `range` becomes the greatest
/// less the least of its turning points but the first; -19998 when there is no other.
std::vector<TimedValue> hightimes(const std::vector<TimedValue>& samples, double& range);

/// A run through the years, a day after the other.
struct YearTides {
    HarmonicRecord port;
    int year = 0;           ///< the first of its two years
    double julian = 0;      ///< the day that comes next
    YearTideRow next;       ///< its number and year
    int tidedayofyear = 0;  ///< the number of the day that was run last
    std::vector<YearTideRow> rows;
    const char* whynot = "";  ///< why it can't go on, a sentence
};

YearTides startyeartides(const HarmonicRecord& port, int year);

/// The days that a run has: those of its year and of the next.
int daysofrun(const YearTides& run);

/// Runs the next day. False, `whynot` telling why, when it has no prediction.
bool addday(YearTides& run);

/// The file: its header, and a row a line with ".", CR LF at each end.
std::string yeartidesfile(const std::vector<YearTideRow>& rows);

}  // namespace tarvane
