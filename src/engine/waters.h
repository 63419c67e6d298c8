// High and low waters of a span to the minute, each once, with its share of the mean spring range. Must not know
// clocks.
#pragma once

#include <vector>

#include "engine/springs.h"
#include "engine/tidespan.h"
#include "portdata/records.h"

namespace tarvane {

struct Water {
    double hours = 0;   ///< of zone time from 00:00 of the span's first day
    double height = 0;  ///< metres above chart datum
    bool high = false;
    bool stand = false;   ///< one of two less than 2 hours and 0.1 m apart, or the turn between two such of a kind
    bool slight = false;  ///< of a stand, and another of its kind of it or beside it goes beyond: no turn of the tide
    double springshare =
        0;  ///< mean of the ranges on both sides, each the greatest to a water of the other kind within
            ///< 12.42 hours or else to the next, over the port's mean spring range; 0 without either
};

/// The waters of `days` days from `first` on, in order of time. The day ahead and the day behind are looked at for
/// their ranges and for what turns at midnight.
std::vector<Water> watersof(const HarmonicRecord& port, Date first, int days);

/// The same of a span at hand, by what lies in it alone; `springrange` in metres.
std::vector<Water> watersof(const TideSpan& span, double springrange);

}  // namespace tarvane
