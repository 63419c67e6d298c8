#include "planner/minutewalk.h"

#include "engine/height.h"

namespace tarvane::tests {

constexpr long minutesofday = 24 * 60;

MinuteWalk::MinuteWalk(const HarmonicRecord& port, Date first, int days) {
    for (int i = 0; i < days; ++i) {
        const Date date = first + std::chrono::days(i);
        const auto inputs = heightinputs(port, monthof(date), yearof(date), dayofyear(date) - 1);
        for (long minute = 0; minute < minutesofday; ++minute)
            heights.push_back(heightformula(*inputs, 24 + static_cast<double>(minute) / 60).height);
    }
}

std::vector<WalkedWater> MinuteWalk::waters() const {
    std::vector<WalkedWater> found;
    for (long minute = 1; minute + 1 < static_cast<long>(heights.size()); ++minute) {
        const long ofday = minute % minutesofday;
        if (ofday == 0 || ofday == minutesofday - 1) continue;
        const double before = height(minute - 1), at = height(minute), after = height(minute + 1);
        if (before < at && at >= after) found.push_back({minute, at, true});
        if (before > at && at <= after) found.push_back({minute, at, false});
    }
    return found;
}

std::vector<WalkedWindow> MinuteWalk::windows(double floor, double ceiling) const {
    std::vector<WalkedWindow> found;
    bool open = false;
    for (long minute = 0; minute < static_cast<long>(heights.size()); ++minute) {
        const bool passable = height(minute) >= floor && height(minute) <= ceiling;
        if (passable && !open) found.push_back({minute, minute});
        if (passable) found.back().last = minute;
        open = passable;
    }
    return found;
}

}  // namespace tarvane::tests
