#include <algorithm>
#include <cmath>

#include "planner/almanacyear.h"
#include "planner/pageparts.h"
#include "planner/planpicture.h"
#include "planner/plantexts.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

using std::chrono::minutes;

constexpr int monthsayear = 12;
constexpr double stripheight = 102;
constexpr std::size_t leastcolumns = 4, mostcolumns = 6;
constexpr int mostdays = 31;  // all months have rows of one height

/// Where the columns of a month's table stand, and how high its rows are.
struct AlmanacTable {
    double waters = 0, water = 0;  ///< where the first begins, and each one's width
    std::size_t columns = leastcolumns;
    double sunrise = 0, sunset = 0, moon = 0, tide = 0;  ///< right, right, middle, left
    double top = 0, row = 0;
    double size = pagetype::body;  ///< of the waters
    double heightend = 0;          ///< from a water's left
};

std::size_t mostwaters(const PagePlan& pages) {
    std::size_t most = leastcolumns;
    for (const DayFacts& day : pages.days)
        most = std::max(most, day.waters.size());
    return most;
}

AlmanacTable tableof(const Canvas& canvas, const Area& area, const PagePlan& pages) {
    AlmanacTable table;
    const std::size_t most = mostwaters(pages);
    table.columns = most <= mostcolumns ? most : std::min(mostcolumns, (most + 1) / 2);
    table.waters = area.left + 62;
    table.tide = area.right - 78;
    table.moon = table.tide - 16;
    table.sunset = table.moon - 16;
    table.sunrise = table.sunset - 44;
    table.water = (table.sunrise - 40 - table.waters) / static_cast<double>(table.columns);
    table.top = area.top;
    table.row = area.height() / mostdays;
    const auto fit = [&] { return canvas.textwidth("00:00*  -00.0", {0, table.size, true}); };
    while (table.size > pagetype::least && fit() + 12 > table.water)
        --table.size;
    table.heightend = std::min(fit(), table.water - 4);
    return table;
}

/// A row's waters in as many lines as they need; what has no room is counted at the end.
void paintrowwaters(Canvas& canvas, const AlmanacTable& table, double top, const PagePlan& pages, const DayFacts& day) {
    const std::size_t wanted = (day.waters.size() + table.columns - 1) / table.columns;
    double size = wanted > 1 ? std::min(table.size, pagetype::lesser) : table.size;
    if (wanted > 1 && 2 * canvas.textheight({0, size, true}) > table.row) size = pagetype::least;
    const double line = canvas.textheight({0, size, true});
    const auto lines =
        std::clamp<std::size_t>(static_cast<std::size_t>(table.row / line), 1, std::max<std::size_t>(wanted, 1));
    const double first = top + (table.row - static_cast<double>(lines) * line) / 2;
    const std::size_t room = lines * table.columns;
    for (std::size_t i = 0; i < day.waters.size(); ++i) {
        const PlannedWater& each = day.waters[i];
        TextLook look = waterlook(each.water, size);
        const double left = table.waters + static_cast<double>(i % table.columns) * table.water;
        const double y = first + static_cast<double>(i / table.columns) * line;
        if (i + 1 == room && day.waters.size() > room)
            return canvas.text({left, y}, std::to_string(day.waters.size() - i) + " more", look);
        canvas.text({left, y}, watertime(pages, day, each.moment), look);
        look.anchor = Anchor::right;
        canvas.text({left + table.heightend, y}, waterheight(each.water), look);
    }
}

void paintsun(Canvas& canvas, const AlmanacTable& table, double y, const PagePlan& pages, const DayFacts& day) {
    const TextLook look{coloursof(Lighting::day).faint, pagetype::lesser, false, Anchor::right};
    if (!day.sunrise && !day.sunset)
        return canvas.text({table.sunset, y}, day.sunatnoon ? "up all day" : "down all day", look);
    if (day.sunrise) canvas.text({table.sunrise, y}, watertime(pages, day, *day.sunrise), look);
    if (day.sunset) canvas.text({table.sunset, y}, watertime(pages, day, *day.sunset), look);
}

std::string tidewords(const SpringTide& tide) {
    return std::string(tide.springs ? "springs " : "neaps ") + std::to_string(std::lround(100 * tide.springshare)) +
           " %";
}

void paintrow(Canvas& canvas, const Area& area, const AlmanacTable& table, double top, const PagePlan& pages,
              const DayFacts& day) {
    const Colours& look = coloursof(Lighting::day);
    if (day.weekend()) canvas.fill({area.left, top, area.right, top + table.row}, look.twilight);
    const bool monday = weekdayof(day.date) == 1;
    hairline(canvas, {area.left, top}, {area.right, top}, monday ? look.faint : look.grid);
    const auto middled = [&](double size) { return top + (table.row - canvas.textheight({0, size})) / 2; };
    const double y = middled(pagetype::body), lesser = middled(pagetype::lesser);
    canvas.text({area.left + 20, y}, std::to_string(dayof(day.date)), {look.text, pagetype::body, true, Anchor::right});
    fittedtext(canvas, {area.left + 25, lesser},
               pages.locale.dayabbreviation(weekdayof(day.date)) + (day.change ? "*" : ""),
               {look.text, pagetype::lesser}, table.waters - area.left - 29);
    paintrowwaters(canvas, table, top, pages, day);
    if (!day.missing.empty()) {
        const auto behind = static_cast<double>(std::min(day.waters.size(), table.columns - 1));
        fittedtext(canvas, {table.waters + behind * table.water, lesser}, day.missing, {look.faint, pagetype::lesser},
                   (static_cast<double>(table.columns) - behind) * table.water - 4);
    }
    paintsun(canvas, table, lesser, pages, day);
    if (day.moon) paintmoon(canvas, {table.moon, top + table.row / 2}, 5.5, *day.moon, look);
    if (!day.tide) return;
    const bool springs = day.tide->springs;
    fittedtext(canvas, {table.tide, lesser}, tidewords(*day.tide),
               {springs ? look.curve : look.faint, pagetype::lesser, springs}, area.right - table.tide);
}

void paintheadings(Canvas& canvas, const Area& area, const AlmanacTable& table) {
    const TextLook left{coloursof(Lighting::day).faint, pagetype::least};
    TextLook right = left;
    right.anchor = Anchor::right;
    const double y = table.top - canvas.textheight(left) - 2;
    canvas.text({table.waters, y}, "Waters: time and height, high waters bold", left);
    canvas.text({table.sunrise, y}, "Sunrise", right);
    canvas.text({table.sunset, y}, "Sunset", right);
    fittedtext(canvas, {table.tide, y}, "Of mean springs", left, area.right - table.tide);
}

/// The month's tides, on the year's scale, with its weekends, moons, springs and neaps.
void paintstrip(Canvas& canvas, const Area& area, const PagePlan& pages, std::size_t first, std::size_t last) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook number{look.faint, pagetype::least, false, Anchor::middle};
    const double day = area.width() / static_cast<double>(last - first);
    const double numbers = area.bottom - canvas.textheight(number);
    const Area plot{area.left, area.top + 26, area.right, numbers - 2};
    for (std::size_t i = first; i < last; ++i) {
        const DayFacts& facts = pages.days[i];
        const double left = area.left + static_cast<double>(i - first) * day, middle = left + day / 2;
        if (facts.weekend()) canvas.fill({left, plot.top, left + day, plot.bottom}, look.twilight);
        canvas.text({middle, numbers}, std::to_string(dayof(facts.date)), number);
        if (facts.moon) paintmoon(canvas, {middle, area.top + 6}, 4.5, *facts.moon, look);
        if (!facts.tide) continue;
        TextLook mark{facts.tide->springs ? look.curve : look.faint, pagetype::least, facts.tide->springs,
                      Anchor::middle};
        const std::string word = facts.tide->springs ? "springs" : "neaps";
        const double half = canvas.textwidth(word, mark) / 2;
        canvas.text({std::clamp(middle, area.left + half, area.right - half), area.top + 13}, word, mark);
    }
    smallcurve(canvas, plot, pages, pages.days[first].begins, pages.days[last - 1].ends, minutes(20));
    hairline(canvas, {plot.left, plot.bottom}, {plot.right, plot.bottom}, look.grid);
}

void paintalmanacmonth(Canvas& canvas, const Area& area, const PagePlan& pages, int month) {
    const Date from = makedate(yearof(pages.days.front().date), month, 1);
    const auto first = static_cast<std::size_t>((from - pages.days.front().date).count());
    const std::size_t last = first + static_cast<std::size_t>(DaysInMonth(yearof(from), month));
    const std::string title = pages.locale.monthname(month) + " " + std::to_string(yearof(from));
    const double top = pagehead(canvas, area, pages, title);
    const std::string page = "page " + std::to_string(month) + " of " + std::to_string(monthsayear + 1);
    const double bottom = pagefoot(canvas, area, pages, {first, last, "", page, true});
    paintstrip(canvas, {area.left, top, area.right, top + stripheight}, pages, first, last);
    const Area rows{area.left, top + stripheight + 20, area.right, bottom};
    const AlmanacTable table = tableof(canvas, rows, pages);
    paintheadings(canvas, rows, table);
    for (std::size_t i = first; i < last; ++i)
        paintrow(canvas, rows, table, table.top + static_cast<double>(i - first) * table.row, pages, pages.days[i]);
    const double end = table.top + static_cast<double>(last - first) * table.row;
    hairline(canvas, {rows.left, end}, {rows.right, end}, coloursof(Lighting::day).faint);
}

}  // namespace

Booklet almanac(const PageOf& of, int year, const Zones& zones, const Locale& locale) {
    const auto pages = std::make_shared<PagePlan>(of, makedate(year, 1, 1), daysinyear(year), zones, locale);
    return {trimmedname(of.port) + ", " + std::to_string(year), false, monthsayear + 1,
            [pages](int page, Canvas& canvas, const Area& area) {
                if (page < monthsayear)
                    paintalmanacmonth(canvas, area, *pages, page + 1);
                else
                    paintalmanacyear(canvas, area, *pages);
            }};
}

}  // namespace tarvane
