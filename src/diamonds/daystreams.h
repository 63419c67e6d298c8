// The tidal stream at a diamond through the hours of a day's high waters at its reference port. Rates are in the unit
// of the diamond's file, as means over an hour, and approximate. Must not read files or show anything.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "diamonds/diamondfile.h"
#include "engine/prediction.h"

namespace tarvane {

/// A port's mean ranges, metres.
struct MeanRanges {
    double neap = 0, spring = 0;
};

/// Twice the difference and twice the sum of M2 and S2, the annual amplitudes. Nothing where the two ranges don't
/// differ, or an amplitude is negative or no number.
std::optional<MeanRanges> meanranges(const HarmonicRecord& port);

/// Where a range lies: between the means, or beyond one of them, so that rates are extrapolated.
enum class Beyond { nothing, springs, neaps };

Beyond beyondmeans(double range, const MeanRanges& means);

/// "", "springs" or "neaps".
const char* beyondword(Beyond beyond);

/// The rate of an hour for a range: on the straight line through the neap and the spring rate, not below 0.
double streamrate(const Stream& stream, double range, const MeanRanges& means);

/// A clock time with its date.
struct ClockMoment {
    Date date{};
    double time = 0;  ///< hours, 0 to below 24
};

struct StreamRow {
    int hour = 0;  ///< from high water, -6 to 6
    ClockMoment moment;
    double direction = 0;  ///< degrees, as the diamond's file has it
    double rate = 0;
};

/// The streams from six hours before to six after one high water.
struct TideStreams {
    ClockMoment highwater;
    double height = 0;  ///< of high water, metres
    std::array<StreamRow, streamhours> rows{};
};

struct DayStreams {
    std::string whynot;  ///< why there are no streams, a sentence; empty when there are
    MeanRanges means;
    double range = 0;  ///< the day's, metres
    Beyond beyond = Beyond::nothing;
    int hoursahead = 0;              ///< of universal time, the day's summer time included
    std::vector<TideStreams> tides;  ///< one a high water that the day's table lists, in time order
};

/// The streams of the day that the prediction, with its turning points, is of. All its high waters go by the one range
/// of the day; their hours run into the days before and after, on the clock of the day itself.
DayStreams daystreams(const DiamondRecord& diamond, const Prediction& prediction);

/// The hour from high water as it is written: "-6", "HW", "+1".
std::string hourtext(int hour);

/// A direction with three figures, "045"; empty for what is no number.
std::string directiontext(double direction);

/// The columns of the table: "highwater,hour,moment,direction,rate,beyond".
std::vector<std::string> streamcolumns();

/// Its rows, a cell a column; moments with the hours that they are ahead of universal time.
std::vector<std::vector<std::string>> streamcells(const DayStreams& day);

}  // namespace tarvane
