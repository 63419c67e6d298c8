#include "planner/almanacyear.h"

#include <algorithm>
#include <cmath>

#include "planner/planpicture.h"
#include "planner/plantexts.h"
#include "portdata/aboutwords.h"
#include "sunmoon/lunarphases.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr int phasekinds = 4;
constexpr const char* nosprings =
    "There are no springs and neaps to be told: they take two tides a day, and predictions for all days about them.";
constexpr auto besidehigh = std::chrono::hours(15);  // a low water of its tide is at most so far off

/// The high water of springs or neaps and the greater range on its two sides.
struct RangeOfTide {
    const PlannedWater* high = nullptr;
    double range = 0;
};

RangeOfTide rangeof(const Plan& plan, const SpringTide& tide) {
    RangeOfTide found;
    for (const PlannedWater& each : plan.waters())
        if (each.water.high && each.moment == tide.moment) found.high = &each;
    for (const PlannedWater& each : plan.waters())
        if (found.high && !each.water.high && std::chrono::abs(each.moment - tide.moment) <= besidehigh)
            found.range = std::max(found.range, found.high->water.height - each.water.height);
    return found;
}

bool changes(const PagePlan& pages) {
    return std::any_of(pages.days.begin(), pages.days.end(),
                       [](const DayFacts& day) { return day.change.has_value(); });
}

std::string timewords(const ClockTime& time, bool offset) {
    return clocktext(time) + (offset ? " " + utname(time.ahead) : "");
}

void painttablehead(Canvas& canvas, const Area& area, const std::string& title, const std::string& note) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook head{look.text, pagetype::heading, true};
    canvas.text({area.left, area.top}, title, head);
    const double left = area.left + canvas.textwidth(title, head) + 8;
    fittedtext(canvas, {left, area.top + 4}, note, {look.faint, pagetype::least}, area.right - left);
}

/// One column of dates: day, high water, range and its share of mean springs.
void painttides(Canvas& canvas, const Area& area, const PagePlan& pages, const std::vector<SpringTide>& tides,
                bool springs, double line) {
    const Colours& look = coloursof(Lighting::day);
    painttablehead(canvas, area, springs ? "Springs" : "Neaps", "high water, range, of mean springs");
    const TextLook left{look.text, pagetype::lesser};
    const TextLook right{look.text, pagetype::lesser, false, Anchor::right};
    const bool offset = changes(pages);
    const double aside = (line - canvas.textheight(left)) / 2;
    double y = area.top + 22 + aside;
    for (const SpringTide& each : tides) {
        if (each.springs != springs) continue;
        const ClockTime time = pages.plan.clock().at(each.moment);
        const RangeOfTide tide = rangeof(pages.plan, each);
        hairline(canvas, {area.left, y - aside}, {area.right, y - aside}, look.grid);
        fittedtext(canvas, {area.left, y}, daytext(pages.locale, time.date), left, 80);
        fittedtext(canvas, {area.left + 84, y}, timewords(time, offset), left, 72);
        if (tide.high) canvas.text({area.left + 200, y}, metres(tide.high->water.height), right);
        const TextLook bold{look.text, pagetype::lesser, true, Anchor::right};
        if (tide.range > 0) canvas.text({area.left + 258, y}, metres(tide.range), bold);
        canvas.text({area.right, y}, std::to_string(std::lround(100 * each.springshare)) + " %", right);
        y += line;
    }
}

/// A row a lunation, from new moon to last quarter.
double paintmoons(Canvas& canvas, const Area& area, const PagePlan& pages, double line) {
    const Colours& look = coloursof(Lighting::day);
    static constexpr const char* names[phasekinds] = {"New moon", "First quarter", "Full moon", "Last quarter"};
    painttablehead(canvas, area, "Moon", "");
    const double width = area.width() / phasekinds;
    const TextLook text{look.text, pagetype::lesser}, name{look.faint, pagetype::lesser};
    const bool offset = changes(pages);
    const double aside = (line - canvas.textheight(text)) / 2;
    double y = area.top + 22;
    for (int i = 0; i < phasekinds; ++i) {
        paintmoon(canvas, {area.left + i * width + 6, y + 6}, 5.5, i, look);
        fittedtext(canvas, {area.left + i * width + 17, y}, names[i], name, width - 20);
    }
    int before = -1;
    for (const MoonPhase& each : phasesbetween(pages.plan.begins(), pages.plan.ends())) {
        if (each.phase <= before || before < 0) {
            y += line;
            hairline(canvas, {area.left, y - aside}, {area.right, y - aside}, look.grid);
        }
        before = each.phase;
        const ClockTime time = pages.plan.clock().at(each.moment);
        fittedtext(canvas, {area.left + each.phase * width, y},
                   daytext(pages.locale, time.date) + "  " + timewords(time, offset), text, width - 6);
    }
    return y + line;
}

}  // namespace

void paintalmanacyear(Canvas& canvas, const Area& area, const PagePlan& pages) {
    const Colours& look = coloursof(Lighting::day);
    const double top = pagehead(canvas, area, pages, std::to_string(yearof(pages.days.front().date)));
    const double bottom = pagefoot(canvas, area, pages, {0, pages.days.size(), "", "page 13 of 13"});
    const std::vector<SpringTide> tides = pages.plan.springsandneaps();
    const auto springs = static_cast<std::size_t>(
        std::count_if(tides.begin(), tides.end(), [](const SpringTide& each) { return each.springs; }));
    const auto rows = static_cast<double>(std::max(springs, tides.size() - springs));
    constexpr double heads = 22, gap = 14, lunations = 15;
    const TextLook body{look.text, pagetype::body};
    const double trust = 24 + 5 * canvas.textheight(body);
    const double room = bottom - top - trust - 2 * heads - 2 * gap;
    const double line = std::min(19.0, room / (rows + lunations));
    const double middle = (area.left + area.right) / 2;
    double moons = top + heads + rows * line + gap;
    if (tides.empty()) {
        moons = paragraph(canvas, {area.left, top, area.right, bottom}, nosprings, body) + gap;
    } else {
        painttides(canvas, {area.left, top, middle - 16, bottom}, pages, tides, true, line);
        painttides(canvas, {middle + 16, top, area.right, bottom}, pages, tides, false, line);
    }
    const double words = paintmoons(canvas, {area.left, moons, area.right, bottom}, pages, line) + gap;
    painttablehead(canvas, {area.left, words, area.right, bottom}, "How good these tides are", "");
    paragraph(canvas, {area.left, words + heads, area.right, bottom}, trustwords(pages.of.known), body);
}

}  // namespace tarvane
