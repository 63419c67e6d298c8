#include "planner/access.h"

#include <algorithm>
#include <cmath>

namespace tarvane {
namespace {

constexpr double touching = 1e-6;  // hours: runs on end, whose ends are reckoned apart

/// The part of a run between the two heights; empty when it has none.
std::optional<Stretch> within(const TideSpan& span, const TideRun& run, double floor, double ceiling) {
    const double low = std::min(run.first, run.last), high = std::max(run.first, run.last);
    if (high < floor || low > ceiling) return std::nullopt;
    const double atfloor = low >= floor ? (run.first < run.last ? run.from : run.to) : span.passing(run, floor);
    const double atceiling = high <= ceiling ? (run.first < run.last ? run.to : run.from) : span.passing(run, ceiling);
    return Stretch{std::min(atfloor, atceiling), std::max(atfloor, atceiling)};
}

/// Midnight steps that lie within the water that is wanted close no window.
Stretches passable(const TideSpan& span, Stretch between, double floor, double ceiling) {
    Stretches open;
    for (const TideRun& run : span.runs()) {
        if (run.to < between.from || run.from > between.to) continue;
        const std::optional<Stretch> part = within(span, run, floor, ceiling);
        if (!part) continue;
        addstretch(open, std::max(part->from, between.from), std::min(part->to, between.to));
    }
    return open;
}

/// The least and the greatest height from `from` to `to` hours.
struct Heights {
    double least, greatest;
};
Heights heightswithin(const TideSpan& span, double from, double to) {
    Heights heights{HUGE_VAL, -HUGE_VAL};
    const auto take = [&](double height) {
        heights.least = std::min(heights.least, height);
        heights.greatest = std::max(heights.greatest, height);
    };
    auto run = std::lower_bound(span.runs().begin(), span.runs().end(), from,
                                [](const TideRun& each, double at) { return each.to < at; });
    for (; run != span.runs().end() && run->from <= to; ++run) {
        if (run->from >= from) take(run->first);
        if (run->to > from && run->to <= to) take(run->last);
    }
    for (const double end : {from, to})
        if (const auto height = span.height(end)) take(*height);
    return heights;
}

/// Cut to minutes at which the tide itself suffices; opening later and closing earlier, never the other way round.
Window cuttominutes(const TideSpan& span, Stretch between, const Stretch& open, double floor, double ceiling) {
    constexpr double aside = 0.01;  // minutes, more than a passing is out
    const auto suffices = [&](long minute) {
        const auto height = span.height(static_cast<double>(minute) / 60);
        return height && *height >= floor && *height <= ceiling;
    };
    Window window;
    window.opens = std::lround(std::ceil(open.from * 60 - aside));
    window.closes = std::lround(std::floor(open.to * 60 + aside));
    while (window.opens <= window.closes && !suffices(window.opens))
        ++window.opens;
    while (window.closes >= window.opens && !suffices(window.closes))
        --window.closes;
    window.cutatstart = open.from < between.from + touching || !span.height(open.from - touching);
    window.cutatend = open.to > between.to - touching || !span.height(open.to + touching);
    return window;
}

/// A window that a step at midnight parts for less than a minute is one.
std::vector<Window> windowsof(const TideSpan& span, Stretch between, double floor, double ceiling) {
    std::vector<Window> windows;
    for (const Stretch& open : passable(span, between, floor, ceiling)) {
        const Window window = cuttominutes(span, between, open, floor, ceiling);
        if (window.closes < window.opens) continue;
        if (!windows.empty() && window.opens - windows.back().closes <= 1) {
            windows.back().closes = window.closes;
            windows.back().cutatend = window.cutatend;
        } else {
            windows.push_back(window);
        }
    }
    return windows;
}

/// What a window that is cut at an edge goes on for in a stretch beyond it.
Window::Beyond beyondof(const TideSpan& span, Stretch stretch, long edge, double floor, double ceiling,
                        const Stretches& daylight) {
    for (const Window& each : windowsof(span, stretch, floor, ceiling)) {
        if (each.opens > edge + 1 || each.closes < edge - 1) continue;
        const double from = static_cast<double>(each.opens) / 60, to = static_cast<double>(each.closes) / 60;
        return {each.minutes(), std::lround(60 * sharedhours(daylight, from, to))};
    }
    return {};
}

/// From one end to the other, but for less than a minute.
bool spans(const Window& window, Stretch between) {
    return static_cast<double>(window.opens) < between.from * 60 + 1 &&
           static_cast<double>(window.closes) > between.to * 60 - 1;
}

}  // namespace

std::optional<double> Passage::ceiling() const {
    if (!bridge) return std::nullopt;
    return bridgelevel + *bridge - airdraught;
}

bool wished(const Window& window, const WindowWishes& wishes) {
    const long minutes = window.before.minutes + window.minutes() + window.after.minutes;
    const long light = window.before.daylight + window.daylightminutes + window.after.daylight;
    if (window.minutes() < 1 || minutes < wishes.leastminutes) return false;
    if (wishes.daylight == Daylight::part && light == 0) return false;
    return wishes.daylight != Daylight::whole || light >= minutes;
}

Access accessof(const TideSpan& span, Stretch between, const Passage& passage, const Stretches& daylight,
                const WindowWishes& wishes) {
    const double floor = passage.needed(), ceiling = passage.ceiling().value_or(HUGE_VAL);
    Access access;
    const std::vector<Window> windows = windowsof(span, between, floor, ceiling);
    access.never = windows.empty();
    access.always = windows.size() == 1 && spans(windows[0], between);
    // Without the last moment, which is of the day behind.
    const Heights all = heightswithin(span, between.from, between.to - touching);
    if (all.least <= all.greatest) {
        access.greatestheight = all.greatest;
        access.leastheight = all.least;
    }
    for (Window window : windows) {
        const double from = static_cast<double>(window.opens) / 60, to = static_cast<double>(window.closes) / 60;
        window.daylight = sharedhours(daylight, from, to);
        window.daylightminutes = std::lround(60 * window.daylight);
        constexpr double day = 24;
        if (window.cutatstart)
            window.before = beyondof(span, {between.from - day, between.from}, window.opens, floor, ceiling, daylight);
        if (window.cutatend)
            window.after = beyondof(span, {between.to, between.to + day}, window.closes, floor, ceiling, daylight);
        if (!wished(window, wishes)) continue;
        const Heights heights = heightswithin(span, from, to);
        window.greatestheight = heights.greatest;
        window.leastmargin = std::min(heights.least - floor, ceiling - heights.greatest);
        access.windows.push_back(window);
    }
    return access;
}

}  // namespace tarvane
