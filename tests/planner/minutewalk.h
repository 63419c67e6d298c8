// A year of a port's heights minute by minute, straight from the height formula, and what a plain look along them
// finds. Must not share anything with the planner.
#pragma once

#include <vector>

#include "dates/calendar.h"
#include "portdata/records.h"

namespace tarvane::tests {

struct WalkedWater {
    long minute = 0;  ///< from 00:00 of the first day; of equal heights on end the first
    double height = 0;
    bool high = false;
};

struct WalkedWindow {
    long first = 0, last = 0;  ///< minutes at which the height suffices
};

class MinuteWalk {
  public:
    MinuteWalk(const HarmonicRecord& port, Date first, int days);

    /// Turns with three minutes of one day on them.
    std::vector<WalkedWater> waters() const;
    std::vector<WalkedWindow> windows(double floor, double ceiling) const;
    double height(long minute) const { return heights[static_cast<std::size_t>(minute)]; }

  private:
    std::vector<double> heights;
};

}  // namespace tarvane::tests
