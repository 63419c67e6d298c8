// A day's tides: samples every ten minutes, each constituent's part, and the high and low waters picked out of the
// samples. Times are decimal hours of the day, heights metres. Must not draw or show anything.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "portdata/configuration.h"

namespace tarvane {

struct TimedValue {
    double time = 0;
    double height = 0;
};

/// One constituent's part of the height, or the mean level, on the rows of the samples. Row 0 is unused.
using Layer = std::array<TimedValue, 201>;

/// The day that a prediction is for.
struct TideDay {
    int tideyear = 0;
    int tidemonth = 0;  ///< month of the date on show: it chooses the seasonal values for the whole curve
    std::int16_t dayofyear = 0;
    std::int16_t summer = 0;  ///< -1 when summer time applies
    bool operator==(const TideDay&) const = default;
};

/// The port that a prediction is for, as its files have it, and what its heights include.
struct PredictedPort {
    HarmonicRecord record;
    std::int16_t number = 0;  ///< its record number, from 1
    float userdepth = 0;      ///< the user's charted depth, metres
    float currentoutput = 1;  ///< 1 leaves the depth out of the heights
    std::string depthname{};  ///< name of the port that the depth's record was made for; empty when not known
    std::string area{};       ///< path of the sea area file that the record stands in
};

/// The name of the port that the record of the depth in the heights was made for, when it is another than this one;
/// else empty.
std::string depthofanother(const PredictedPort& port);

/// What a prediction leaves behind; each overwrites it. Row 0 of every array is unused.
struct Prediction {
    std::array<TimedValue, 501> curvesamples{};
    Layer m2layer{}, s2layer{}, k1layer{}, o1layer{}, f4layer{}, f6layer{}, sumlayer{};
    double z0level = 0;
    int samplecount = 0;  ///< 147 after predictday, 148 after predictdaylinked, whatever was filled
    std::array<TimedValue, 16> turningpoints{};
    int turningcount = 0;
    double dayrange = 0;
    /// False where there is no prediction: all samples are then 0 and nothing but `whynot` is to be shown.
    bool defined = true;
    const char* whynot = "";  ///< a sentence for the user
    PredictedPort port;       ///< what it was made for
    TideDay day;
};

/// Leaves a prediction without samples and layers, and why.
void leaveundefined(Prediction& prediction, const char* whynot);

/// Why there is no prediction.
inline constexpr const char* noconstants = "The method has no constants for this day";
inline constexpr const char* brokenrecord = "The port's record holds values that are no numbers";

/// The port of `settings.currentport` as a prediction takes it: its two records read now.
PredictedPort predictedport(const Settings& settings);

/// Predicts a day of a port: the heights from 00:00 of the day before, of which those of the day are copied out. Rows 1
/// to 149 (152 in summer time) of the samples and layers are filled, row k holding clock time (k - 1)/6 hours; the
/// samples' other rows are cleared, the layers' stay as they were.
void predictday(const PredictedPort& port, const TideDay& day, Prediction& prediction);

/// The same for the current port, whose two files are read.
void predictday(const Settings& settings, const TideDay& day, Prediction& prediction);

/// The variant of the adjust workspace: constants of the day itself, 147 samples from 00:00, the height of the next
/// morning as row 148. `before` and `after` come from `heightat`.
// kept: that workspace is its one caller
void predictdaylinked(const PredictedPort& port, const TideDay& day, double before, double after,
                      Prediction& prediction);

/// The adjust workspace's own copy of it, for constants in hand: their annual values alone, the heights of the evening
/// before and of the morning after reckoned from them, and row 1 left as a mark at -99 hours with the height of row 2.
void predictworkspace(const HarmonicRecord& constants, int year, int dayofyear, Prediction& prediction);

/// Picks the high and low waters out of all rows of a workspace's curve, 15 at most; one past 24.0844 hours is dropped.
void findworkspacepoints(Prediction& prediction);

/// True if the method has constants for a day's prediction: those of the day before and of the day.
bool haspredictions(int year, int dayofyear);

/// Picks the high and low waters out of rows 2 to 145 by strict comparison, 15 at most, and the range over rows 1 to
/// 145.
void findturningpoints(Prediction& prediction);

/// True if the turning point of that index (from 1) is a high water, told by the sample before it.
bool ishighwater(const Prediction& prediction, int turningpoint);

}  // namespace tarvane
