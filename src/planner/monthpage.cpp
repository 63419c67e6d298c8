#include <algorithm>

#include "planner/pageparts.h"
#include "planner/planpicture.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

using std::chrono::minutes;

constexpr int weekdays = 7;
constexpr double cellinset = 4;
constexpr double kindsapart = 12;  // high waters and low waters
constexpr double dayhead = 19;     // number, moon and springs of a day
constexpr double leastcurve = 14;  // less isn't worth its lines

/// How the month lies on its page.
struct MonthLayout {
    Area weeks;  ///< all cells
    double cellwidth = 0, cellheight = 0;
    double size = pagetype::least;  ///< of the waters
    double line = 0;                ///< from water to water
    double water = 0;               ///< width of the widest
    std::size_t lines = 0;          ///< of waters at most

    Area cell(int week, int weekday) const {
        const double left = weeks.left + weekday * cellwidth, top = weeks.top + week * cellheight;
        return {left, top, left + cellwidth, top + cellheight};
    }
    double waterstop(const Area& cell) const { return cell.bottom - 3 - static_cast<double>(lines) * line; }
};

/// From 0, Monday.
int columnof(Date date) {
    return (weekdayof(date) + 6) % weekdays;
}

int weeksof(const PagePlan& pages) {
    const int days = static_cast<int>(pages.days.size());
    return (columnof(pages.days.front().date) + days + weekdays - 1) / weekdays;
}

/// Of one kind of water.
std::size_t mostofaday(const PagePlan& pages) {
    std::size_t most = 2;
    for (const DayFacts& day : pages.days)
        for (const bool high : {false, true})
            most = std::max(most, static_cast<std::size_t>(std::count_if(
                                      day.waters.begin(), day.waters.end(),
                                      [high](const PlannedWater& each) { return each.water.high == high; })));
    return most;
}

/// Of one kind, so that its heights end in line.
double widestwater(const Canvas& canvas, const PagePlan& pages, double size) {
    double time = 0, height = 0;
    for (const DayFacts& day : pages.days)
        for (const PlannedWater& each : day.waters) {
            const TextLook look = waterlook(each.water, size);
            time = std::max(time, canvas.textwidth(watertime(pages, day, each.moment), look));
            height = std::max(height, canvas.textwidth(waterheight(each.water), look));
        }
    return time + height + size / 2;
}

/// The waters in the greatest type that leaves the curve its room and both kinds a column.
MonthLayout layoutof(const Canvas& canvas, const Area& weeks, const PagePlan& pages) {
    MonthLayout layout{weeks, weeks.width() / weekdays, weeks.height() / weeksof(pages)};
    const double column = (layout.cellwidth - 2 * cellinset - kindsapart) / 2;
    for (layout.size = pagetype::body; layout.size > pagetype::least; --layout.size) {
        layout.line = canvas.textheight({0, layout.size, true});
        const double waters = static_cast<double>(mostofaday(pages)) * layout.line;
        if (widestwater(canvas, pages, layout.size) <= column && waters + 2 * leastcurve + dayhead <= layout.cellheight)
            break;
    }
    layout.line = canvas.textheight({0, layout.size, true});
    layout.water = std::min(column, widestwater(canvas, pages, layout.size));
    const auto room = static_cast<std::size_t>((layout.cellheight - dayhead - 3) / layout.line);
    layout.lines = std::min(mostofaday(pages), room);
    return layout;
}

void paintdayhead(Canvas& canvas, const Area& cell, const DayFacts& day) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook number{look.text, pagetype::heading, true};
    const std::string text = std::to_string(dayof(day.date)) + (day.change ? "*" : "");
    canvas.text({cell.left + cellinset, cell.top + 1}, text, number);
    if (day.moon) paintmoon(canvas, {cell.left + 46, cell.top + dayhead / 2 + 0.5}, 5.5, *day.moon, look);
    if (!day.tide) return;
    const TextLook mark{day.tide->springs ? look.curve : look.faint, pagetype::lesser, day.tide->springs,
                        Anchor::right};
    canvas.text({cell.right - cellinset, cell.top + 3}, day.tide->springs ? "springs" : "neaps", mark);
}

/// The curve with its nights, and a bar where she can pass.
void paintdaycurve(Canvas& canvas, const Area& area, const PagePlan& pages, const DayFacts& day) {
    const Colours& look = coloursof(Lighting::day);
    const double length = static_cast<double>((day.ends - day.begins).count());
    const auto x = [&](Moment moment) {
        const Moment within = std::clamp(moment, day.begins, day.ends);
        return area.left + area.width() * static_cast<double>((within - day.begins).count()) / length;
    };
    canvas.fill(area, look.night);
    for (const auto& [from, to] : pages.plan.light(false))
        if (from < day.ends && to > day.begins) canvas.fill({x(from), area.top, x(to), area.bottom}, look.paper);
    smallcurve(canvas, area, pages, day.begins, day.ends, minutes(15));
    if (!pages.access) return;
    for (const PlannedWindow& each : pages.access->windows)
        if (each.opens < day.ends && each.closes > day.begins)
            canvas.fill({x(each.opens), area.bottom - 3, x(each.closes), area.bottom}, look.needed);
}

/// A column of the waters of one kind; those beyond its last line are counted there.
void paintwaters(Canvas& canvas, Place top, const MonthLayout& layout, const PagePlan& pages, const DayFacts& day,
                 bool high) {
    std::vector<PlannedWater> waters = day.waters;
    std::erase_if(waters, [high](const PlannedWater& each) { return each.water.high != high; });
    for (std::size_t i = 0; i < waters.size(); ++i) {
        TextLook look = waterlook(waters[i].water, layout.size);
        const double y = top.y + static_cast<double>(i) * layout.line;
        if (i + 1 == layout.lines && waters.size() > layout.lines)
            return canvas.text({top.x, y}, std::to_string(waters.size() - i) + " more", look);
        canvas.text({top.x, y}, watertime(pages, day, waters[i].moment), look);
        look.anchor = Anchor::right;
        canvas.text({top.x + layout.water, y}, waterheight(waters[i].water), look);
    }
}

void paintday(Canvas& canvas, const Area& cell, const MonthLayout& layout, const PagePlan& pages, const DayFacts& day) {
    const Colours& look = coloursof(Lighting::day);
    if (day.weekend()) canvas.fill(cell, look.twilight);
    paintdayhead(canvas, cell, day);
    const double top = layout.waterstop(cell);
    const Place lows{(cell.left + cell.right + kindsapart) / 2, top};
    paintwaters(canvas, {cell.left + cellinset, top}, layout, pages, day, true);
    paintwaters(canvas, lows, layout, pages, day, false);
    const Area curve{cell.left + cellinset, cell.top + dayhead, cell.right - cellinset, layout.waterstop(cell) - 2};
    const bool words = !day.missing.empty();
    if (curve.height() >= leastcurve && day.exists() && day.missing != "no prediction")
        paintdaycurve(canvas, curve, pages, day);
    const TextLook missing{look.faint, pagetype::lesser, false, Anchor::middle};
    if (words) canvas.text({(cell.left + cell.right) / 2, curve.top}, day.missing, missing);
}

void paintgrid(Canvas& canvas, const MonthLayout& layout, double top, const PagePlan& pages) {
    const Colours& look = coloursof(Lighting::day);
    for (int i = 0; i < weekdays; ++i) {
        const TextLook name{look.text, pagetype::body, i >= 5, Anchor::middle};
        const double middle = layout.weeks.left + (i + 0.5) * layout.cellwidth;
        canvas.text({middle, top}, pages.locale.dayname((i + 1) % weekdays), name);
    }
    for (int i = 0; i <= weeksof(pages); ++i) {
        const double y = layout.weeks.top + i * layout.cellheight;
        hairline(canvas, {layout.weeks.left, y}, {layout.weeks.right, y}, look.faint);
    }
    for (int i = 0; i <= weekdays; ++i) {
        const double x = layout.weeks.left + i * layout.cellwidth;
        hairline(canvas, {x, layout.weeks.top}, {x, layout.weeks.bottom}, look.grid);
    }
}

void paintmonth(Canvas& canvas, const Area& area, const PagePlan& pages, const std::string& title) {
    const std::string marks =
        "High waters bold at the left, low waters at the right; nights are tinted." +
        (pages.of.passage ? " Bars under the curves: she can pass. " + passagewords(pages) : std::string());
    const double top = pagehead(canvas, area, pages, title);
    const double bottom = pagefoot(canvas, area, pages, {0, pages.days.size(), marks, "", true});
    const double names = canvas.textheight({0, pagetype::body, true}) + 3;
    const MonthLayout layout = layoutof(canvas, {area.left, top + names, area.right, bottom}, pages);
    const int ahead = columnof(pages.days.front().date);
    for (std::size_t i = 0; i < pages.days.size(); ++i) {
        const int place = ahead + static_cast<int>(i);
        paintday(canvas, layout.cell(place / weekdays, place % weekdays), layout, pages, pages.days[i]);
    }
    paintgrid(canvas, layout, top, pages);
}

}  // namespace

Booklet monthpage(const PageOf& of, int year, int month, const Zones& zones, const Locale& locale) {
    const auto pages =
        std::make_shared<PagePlan>(of, makedate(year, month, 1), DaysInMonth(year, month), zones, locale);
    const std::string title = locale.monthname(month) + " " + std::to_string(year);
    return {trimmedname(of.port) + ", " + title, true, 1,
            [pages, title](int, Canvas& canvas, const Area& area) { paintmonth(canvas, area, *pages, title); }};
}

}  // namespace tarvane
