#include "engine/waters.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tarvane {
namespace {

constexpr double standhours = 2;
constexpr double standmetres = 0.1;
constexpr double nearmidnight = 1;     // hours
constexpr double tidehours = 12.4206;  // from one to the next, of the moon's

bool rising(const TideRun& run) {
    return run.first < run.last;
}

bool flat(const TideRun& run) {
    return run.first == run.last;
}

/// Whether the heights of either day turn so within an hour of the midnight between them, beyond their own day's end.
bool turnsnear(const TideSpan& span, const TideRun& before, const TideRun& after, bool high) {
    return span.turnsbeyond(before.day, after.from, after.from + nearmidnight, high) ||
           span.turnsbeyond(after.day, after.from - nearmidnight, after.from, high);
}

/// Adds a water, or puts it in place of the last when that is of its kind and the lesser one: both are one water then,
/// seen from the two sides of a midnight.
void add(std::vector<Water>& waters, const Water& water) {
    if (waters.empty() || waters.back().high != water.high) return waters.push_back(water);
    const bool greater = water.high ? water.height > waters.back().height : water.height < waters.back().height;
    if (greater) waters.back() = water;
}

/// The turns between runs on end. At a midnight where the day before rises to its end and the day behind falls from its
/// start both have the turn on the other's side: it is told as of midnight. Where a turn is near and neither day has
/// one of the other kind, the step alone makes that.
void findwaters(const TideSpan& span, std::vector<Water>& waters) {
    const std::vector<TideRun>& runs = span.runs();
    for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
        const TideRun &before = runs[i], &after = runs[i + 1];
        if (before.to != after.from || flat(before) || flat(after) || rising(before) == rising(after)) continue;
        const bool high = rising(before);
        const bool nearit = std::min(before.to - before.from, after.to - after.from) < nearmidnight;
        if (before.day != after.day && nearit && !turnsnear(span, before, after, high)) continue;
        add(waters, {after.from, after.first, high});
    }
}

/// So near that nobody would tell them apart.
bool near(const Water& first, const Water& second) {
    return second.hours - first.hours < standhours && std::abs(second.height - first.height) < standmetres;
}

/// Within a stand, and with the waters on its two sides, only the highest high and the lowest low are turns of the
/// tide.
void markslight(std::vector<Water>& waters, std::size_t from, std::size_t to) {
    const std::size_t first = from - std::min<std::size_t>(from, 1), last = std::min(to + 1, waters.size() - 1);
    for (std::size_t i = from; i <= to; ++i)
        for (std::size_t j = first; j <= last; ++j) {
            if (j == i || waters[j].high != waters[i].high) continue;
            const double beyond = (waters[j].height - waters[i].height) * (waters[i].high ? 1 : -1);
            // Of equal ones the first counts.
            waters[i].slight = waters[i].slight || beyond > 0 || (beyond == 0 && j < i);
        }
}

/// A high and a low with little water between them are a tide that stands; so are two of a kind and the turn between.
void markstands(std::vector<Water>& waters) {
    for (std::size_t i = 0; i < waters.size();) {
        std::size_t last = i;
        for (std::size_t j = i; j <= last; ++j)
            for (const std::size_t aside : {std::size_t{1}, std::size_t{2}})
                if (j + aside < waters.size() && near(waters[j], waters[j + aside])) last = std::max(last, j + aside);
        for (std::size_t j = i; last > i && j <= last; ++j)
            waters[j].stand = true;
        if (last > i) markslight(waters, i, last);
        i = last + 1;
    }
}

/// The range from a water to those ahead of it, `step` -1, or behind: where tides double, to the one that ends the
/// tide.
std::optional<double> rangebeside(const std::vector<Water>& waters, std::size_t of, std::size_t step) {
    std::optional<double> greatest;
    for (std::size_t i = of + step; i < waters.size(); i += 2 * step) {
        if (greatest && std::abs(waters[i].hours - waters[of].hours) > tidehours) break;
        const double rise = waters[of].height - waters[i].height;
        greatest = std::max(greatest.value_or(0), waters[of].high ? rise : -rise);
    }
    return greatest;
}

void setshares(std::vector<Water>& waters, double springrange) {
    if (springrange <= 0) return;
    for (std::size_t i = 0; i < waters.size(); ++i) {
        const auto ahead = rangebeside(waters, i, std::size_t(-1)), behind = rangebeside(waters, i, 1);
        if (ahead || behind)
            waters[i].springshare = (ahead.value_or(*behind) + behind.value_or(*ahead)) / 2 / springrange;
    }
}

}  // namespace

std::vector<Water> watersof(const TideSpan& span, double springrange) {
    std::vector<Water> waters;
    waters.reserve(span.runs().size());
    findwaters(span, waters);
    markstands(waters);
    setshares(waters, springrange);
    return waters;
}

std::vector<Water> watersof(const HarmonicRecord& port, Date first, int days) {
    const TideSpan span(port, first - std::chrono::days(1), days + 2);
    std::vector<Water> waters = watersof(span, meanspringrange(port));
    std::erase_if(waters, [&](const Water& water) { return water.hours < 24 || water.hours >= 24 * (days + 1); });
    for (Water& water : waters)
        water.hours -= 24;
    return waters;
}

}  // namespace tarvane
