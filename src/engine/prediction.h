// A day's tides: samples every ten minutes, each constituent's part, and the high and low waters picked out of the
// samples. Times are decimal hours of the day, heights metres. Must not draw or show anything.
#pragma once

#include <array>
#include <cstdint>

#include "engine/height.h"
#include "portdata/configuration.h"

namespace tarvane {

struct TimedValue {
    double time = 0;
    double height = 0;
};

/// What a prediction leaves behind; each overwrites it. Row 0 of every array is unused.
struct Prediction {
    std::array<TimedValue, 501> curvesamples{};
    std::array<TimedValue, 201> m2layer{}, s2layer{}, k1layer{}, o1layer{}, f4layer{}, f6layer{}, sumlayer{};
    double z0level = 0;
    int samplecount = 0;  ///< 147 after predictday, 148 after predictdaylinked, whatever was filled
    std::array<TimedValue, 16> turningpoints{};
    int turningcount = 0;
    double dayrange = 0;
    /// False where the day's constants divide by zero: all samples are then 0 and nothing is to be shown.
    bool defined = true;
    HarmonicRecord port;  ///< the record as read, for the labels of the constituents view
};

/// The day that a prediction is for.
struct TideDay {
    int tideyear = 0;
    int tidemonth = 0;  ///< month of the date on show: it chooses the seasonal values for the whole curve
    std::int16_t dayofyear = 0;
    std::int16_t summer = 0;  ///< -1 when summer time applies
};

/// Predicts a day of `settings.currentport`. Reads both files and leaves `settings.userdepth` set. Rows 1 to 149 (152
/// in summer time) of the samples and layers are filled, row k holding clock time (k - 1)/6 hours; the samples' other
/// rows are cleared, the layers' stay as they were.
void predictday(Settings& settings, const TideDay& day, Prediction& prediction);

/// The variant of the adjust workspace: constants of the day itself, 147 samples from 00:00, the height of the next
/// morning as row 148. `before` and `after` come from `heightat`.
void predictdaylinked(Settings& settings, const TideDay& day, double before, double after, Prediction& prediction);

/// Picks the high and low waters out of rows 2 to 145 by strict comparison, 15 at most, and the range over rows 1 to
/// 145.
void findturningpoints(Prediction& prediction);

}  // namespace tarvane
