#include "planner/minutewalk.h"

#include <algorithm>

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

bool MinuteWalk::oneway(long from, long to) const {
    bool rises = true, falls = true;
    for (long minute = from; minute < to; ++minute) {
        if ((minute + 1) % minutesofday == 0) continue;
        rises = rises && height(minute + 1) > height(minute);
        falls = falls && height(minute + 1) < height(minute);
    }
    return rises || falls;
}

std::vector<WalkedWindow> MinuteWalk::withoutsteps(const std::vector<WalkedWindow>& windows) const {
    std::vector<WalkedWindow> found;
    for (const WalkedWindow& each : windows) {
        const long before = found.empty() ? -1 : found.back().last;
        const bool opens = each.first % minutesofday == 0, closes = (before + 1) % minutesofday == 0;
        const long midnight = opens ? each.first : before + 1;
        const bool bystep = !found.empty() && (opens || closes) && each.first - before < minutesofday &&
                            oneway(std::min(before, midnight - 2), std::max(each.first, midnight + 1));
        if (!bystep)
            found.push_back(each);
        else if (opens && !oneway(before, each.last + 1))
            found.back().last = each.last;
        else if (closes && oneway(found.back().first - 1, each.first))
            found.back() = each;
        else if (closes)
            found.back().last = each.last;
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
    return withoutsteps(found);
}

}  // namespace tarvane::tests
