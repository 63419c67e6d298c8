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

/// Open water, and the first and the last minute of it at which the tide itself suffices.
struct OpenWater {
    Stretch stretch;
    long first = 0, last = 0;

    bool lasts() const { return first <= last; }
};

/// Cut to minutes; opening later and closing earlier, never the other way round.
OpenWater cuttominutes(const TideSpan& span, const Stretch& open, double floor, double ceiling) {
    constexpr double aside = 0.01;  // minutes, more than a passing is out
    const auto suffices = [&](long minute) {
        const auto height = span.height(static_cast<double>(minute) / 60);
        return height && *height >= floor && *height <= ceiling;
    };
    OpenWater water{open, std::lround(std::ceil(open.from * 60 - aside)),
                    std::lround(std::floor(open.to * 60 + aside))};
    while (water.lasts() && !suffices(water.first))
        ++water.first;
    while (water.lasts() && !suffices(water.last))
        --water.last;
    return water;
}

enum class Parting { tide, step, ghostbefore, ghostbehind };

/// What parts two stretches. Where the tide goes the same way on both sides of the midnight that ends or begins the
/// gap, the step has made the gap. When that beside the midnight only rises or falls through the level as well, the
/// tide passes the level once, and the step shows that twice: what is left of it is a ghost.
Parting partingof(const TideSpan& span, const Stretch& before, const Stretch& behind) {
    const std::vector<TideRun>& runs = span.runs();
    const auto lastof = std::lower_bound(runs.begin(), runs.end(), before.to - touching,
                                         [](const TideRun& run, double at) { return run.to < at; });
    if (lastof == runs.end() || lastof + 1 == runs.end()) return Parting::tide;
    const TideRun &run = *lastof, &next = *(lastof + 1);
    const double midnight = run.to;
    if (next.from != midnight || next.day == run.day || (run.first < run.last) != (next.first < next.last))
        return Parting::tide;
    const bool stepcloses = before.to > midnight - touching, stepopens = std::abs(behind.from - midnight) < touching;
    if (stepopens) return behind.to < next.to - touching ? Parting::ghostbehind : Parting::step;
    if (!stepcloses || behind.from > next.to) return Parting::tide;
    return before.from > run.from + touching ? Parting::ghostbefore : Parting::step;
}

/// All that is passable at some minute: water that midnight's step alone parts, or that no minute does, is one; of a
/// passing that the step shows twice what closes earlier or opens later is left. A day on both sides of the time looked
/// at tells what lies at its ends.
std::vector<OpenWater> openwater(const TideSpan& span, Stretch between, double floor, double ceiling) {
    constexpr double day = 24;
    std::vector<OpenWater> waters;
    for (const Stretch& each : passable(span, {between.from - day, between.to + day}, floor, ceiling)) {
        const OpenWater water = cuttominutes(span, each, floor, ceiling);
        if (!water.lasts()) continue;
        if (waters.empty()) {
            waters.push_back(water);
            continue;
        }
        OpenWater& last = waters.back();
        const Parting parting = partingof(span, last.stretch, each);
        if (water.first - last.last <= 1 || parting == Parting::step)
            last = {{last.stretch.from, each.to}, last.first, water.last};
        else if (parting == Parting::ghostbefore)
            last = water;
        else if (parting == Parting::tide)
            waters.push_back(water);
    }
    return waters;
}

/// Of open water what lies within a time; nothing when that is no minute.
std::optional<Window> windowwithin(const TideSpan& span, Stretch between, const OpenWater& water, double floor,
                                   double ceiling) {
    const Stretch open{std::max(water.stretch.from, between.from), std::min(water.stretch.to, between.to)};
    if (open.to <= open.from) return std::nullopt;
    const OpenWater cut = cuttominutes(span, open, floor, ceiling);
    if (!cut.lasts()) return std::nullopt;
    Window window;
    window.opens = cut.first;
    window.closes = cut.last;
    window.cutatstart = open.from < between.from + touching || !span.height(open.from - touching);
    window.cutatend = open.to > between.to - touching || !span.height(open.to + touching);
    return window;
}

std::vector<Window> windowsof(const TideSpan& span, Stretch between, double floor, double ceiling) {
    std::vector<Window> windows;
    for (const OpenWater& each : openwater(span, between, floor, ceiling))
        if (const auto window = windowwithin(span, between, each, floor, ceiling)) windows.push_back(*window);
    return windows;
}

/// What a window that is cut at an edge goes on for in a stretch beyond it.
Window::Beyond beyondof(const TideSpan& span, Stretch stretch, double edge, double floor, double ceiling,
                        const Stretches& daylight) {
    for (const OpenWater& each : openwater(span, stretch, floor, ceiling)) {
        if (each.stretch.from > edge + touching || each.stretch.to < edge - touching) continue;
        const auto window = windowwithin(span, stretch, each, floor, ceiling);
        if (!window) continue;
        const double from = static_cast<double>(window->opens) / 60, to = static_cast<double>(window->closes) / 60;
        return {window->minutes(), std::lround(60 * sharedhours(daylight, from, to))};
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
            window.before = beyondof(span, {between.from - day, between.from}, between.from, floor, ceiling, daylight);
        if (window.cutatend)
            window.after = beyondof(span, {between.to, between.to + day}, between.to, floor, ceiling, daylight);
        if (!wished(window, wishes)) continue;
        const Heights heights = heightswithin(span, from, to);
        window.greatestheight = heights.greatest;
        window.leastmargin = std::min(heights.least - floor, ceiling - heights.greatest);
        access.windows.push_back(window);
    }
    return access;
}

}  // namespace tarvane
