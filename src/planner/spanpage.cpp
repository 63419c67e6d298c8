#include <algorithm>

#include "planner/pageparts.h"
#include "planner/planpicture.h"
#include "planner/plantexts.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

constexpr double gap = 8;
constexpr double goodpicture = 230, leastpicture = 165;
constexpr double columnsapart = 14;
constexpr std::size_t crowded = 10;  // days, from which on the picture has small type

/// Behind the height of a water about which the tide stands.
constexpr const char* standmark = "st";

bool anystand(const PagePlan& pages) {
    const auto stands = [](const PlannedWater& each) { return each.water.stand; };
    return std::any_of(pages.days.begin(), pages.days.end(),
                       [&](const DayFacts& day) { return std::any_of(day.waters.begin(), day.waters.end(), stands); });
}

/// One column of the waters: the days from one to behind another.
struct WaterColumn {
    std::size_t first = 0, last = 0;
};

/// The waters of all days under one another in columns.
struct WaterList {
    std::vector<WaterColumn> columns;
    std::size_t lines = 0;  ///< of the longest
    std::size_t days = 0;   ///< that are told
    double width = 0;       ///< of one column
    double size = pagetype::least;
};

constexpr double sizes[] = {pagetype::body, pagetype::lesser, pagetype::least};

/// A heading and its waters, or in words why there are none.
std::size_t linesof(const DayFacts& day) {
    return 1 + std::max<std::size_t>(day.waters.size() + (day.missing.empty() ? 0 : 1), 1);
}

WaterList filled(const PagePlan& pages, std::size_t columns, std::size_t lines) {
    WaterList list;
    std::size_t used = 0;
    for (std::size_t i = 0; i < pages.days.size(); ++i) {
        const std::size_t wanted = linesof(pages.days[i]);
        if (wanted > lines) break;
        if (list.columns.empty() || used + wanted > lines) {
            if (list.columns.size() == columns) break;
            list.columns.push_back({i, i});
            used = 0;
        }
        used += wanted;
        list.columns.back().last = i + 1;
        list.lines = std::max(list.lines, used);
        list.days = i + 1;
    }
    return list;
}

/// In one size of type, as flat as the columns that fit side by side allow, within `height`.
WaterList waterlist(const Canvas& canvas, const PagePlan& pages, double size, double width, double height) {
    const TextLook bold{0, size, true};
    double widest = canvas.textwidth("00:00*  -00.0", bold);
    if (anystand(pages)) widest += 3 + canvas.textwidth(standmark, {0, size});
    for (const DayFacts& day : pages.days)
        widest = std::max({widest, canvas.textwidth(daytext(pages.locale, day.date) + "*", bold),
                           canvas.textwidth(day.missing, {0, size})});
    const auto most = static_cast<std::size_t>(std::max(0.0, height / canvas.textheight(bold)));
    const auto columns = static_cast<std::size_t>(std::max(1.0, width / (widest + columnsapart)));
    WaterList list;
    for (std::size_t lines = 2; lines <= most && list.days < pages.days.size(); ++lines)
        list = filled(pages, columns, lines);
    list.width = std::min(150.0, width / static_cast<double>(std::max<std::size_t>(list.columns.size(), 1)));
    list.size = size;
    return list;
}

/// In the greatest type that has room for all of it, the greatest one only where it leaves most of that to the picture.
/// Days side by side are worth a smaller type.
WaterList waterlist(const Canvas& canvas, const PagePlan& pages, double width, double height) {
    WaterList list;
    for (const bool sidebyside : {true, false})
        for (const double size : sizes) {
            list = waterlist(canvas, pages, size, width, size > pagetype::lesser ? height / 2 : height);
            if (list.days == pages.days.size() && (!sidebyside || list.columns.size() == list.days)) return list;
        }
    return list;
}

void paintcolumn(Canvas& canvas, Place top, const WaterList& list, const WaterColumn& column, const PagePlan& pages) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook head{look.curve, list.size, true}, lesser{look.faint, list.size};
    const double line = canvas.textheight(head);
    const double heightend = canvas.textwidth("00:00*  -00.0", head);
    double y = top.y;
    for (std::size_t i = column.first; i < column.last; ++i, y += line) {
        const DayFacts& day = pages.days[i];
        canvas.text({top.x, y}, daytext(pages.locale, day.date) + (day.change ? "*" : ""), head);
        for (const PlannedWater& each : day.waters) {
            y += line;
            TextLook water = waterlook(each.water, list.size);
            canvas.text({top.x, y}, watertime(pages, day, each.moment), water);
            water.anchor = Anchor::right;
            canvas.text({top.x + heightend, y}, waterheight(each.water), water);
            if (each.water.stand) canvas.text({top.x + heightend + 3, y}, standmark, lesser);
        }
        if (day.missing.empty()) continue;
        y += line;
        fittedtext(canvas, {top.x, y}, day.missing, lesser, list.width - 4);
    }
}

double heightof(const Canvas& canvas, const WaterList& list, const PagePlan& pages) {
    const bool all = list.days == pages.days.size();
    return canvas.textheight({0, list.size, true}) * static_cast<double>(list.lines) +
           (all ? 0 : canvas.textheight({0, pagetype::lesser})) + gap;
}

void paintlist(Canvas& canvas, const Area& area, const WaterList& list, const PagePlan& pages) {
    double left = area.left;
    for (const WaterColumn& each : list.columns) {
        paintcolumn(canvas, {left, area.top}, list, each, pages);
        left += list.width;
    }
    if (list.days == pages.days.size()) return;
    const TextLook look{coloursof(Lighting::day).faint, pagetype::lesser};
    const std::string words = "No room here for the waters of the last " +
                              std::to_string(pages.days.size() - list.days) + " days: the almanac has them.";
    canvas.text({area.left, area.bottom - gap - canvas.textheight(look)}, words, look);
}

/// The answer in a sentence where there is nothing to list, else the windows as a table in groups side by side.
struct WindowList {
    std::string answer;
    PlanTable table;
    std::size_t boldcells = 2;   ///< of each row: when a window opens and closes
    std::vector<double> widths;  ///< of its columns
    std::size_t groups = 1, lines = 0;
    double size = pagetype::lesser;

    bool whole() const { return groups * lines >= table.rows.size(); }
};

/// "Sat 18 Jul 22:32 to Sun 03:26"
std::string closewords(const PagePlan& pages, const PlannedWindow& window) {
    const PortClock& clock = pages.plan.clock();
    const Date from = clock.at(window.opens).date, until = clock.at(window.closes).date;
    const WindowClocks times = windowclocks(clock, window);
    const std::string opens = daytext(pages.locale, from) + " " + times.opens, closes = times.closes,
                      last = daytext(pages.locale, until);
    const bool openbefore = window.window.cutatstart, openafter = window.window.cutatend;
    if (openbefore && !openafter) return "until " + last + " " + closes;
    if (openafter && !openbefore) return "from " + opens + " on";
    if (from == until) return opens + " to " + closes;
    const bool next = until - from == std::chrono::days(1);
    return opens + " to " + (next ? pages.locale.dayabbreviation(weekdayof(until)) : last) + " " + closes;
}

/// Of so many windows that there is no room for more.
PlanTable closetable(const PagePlan& pages) {
    PlanTable table{{"Passable", "Depth"}, {}};
    for (const PlannedWindow& each : pages.access->windows)
        table.rows.push_back({each.opens,
                              {closewords(pages, each), metres(each.window.greatestheight + pages.of.passage->bottom)},
                              {},
                              {}});
    return table;
}

WindowList windowlist(const Canvas& canvas, const PagePlan& pages, bool close, double size, double width,
                      double height) {
    WindowList list;
    list.size = size;
    const PlannedAccess& access = *pages.access;
    if (access.windows.empty() || access.always) {
        list.answer = accesstext(pages.plan, access, *pages.of.passage, pages.locale);
        return list;
    }
    list.boldcells = close ? 1 : 2;
    list.table = close ? closetable(pages) : accesstable(pages.plan, access, *pages.of.passage, pages.locale);
    double group = columnsapart;
    for (std::size_t i = 0; i < list.table.headings.size(); ++i) {
        double widest = canvas.textwidth(list.table.headings[i], {0, pagetype::least});
        for (const PlanTable::Row& row : list.table.rows)
            widest = std::max(widest, canvas.textwidth(row.cells[i], {0, size, i < list.boldcells}));
        list.widths.push_back(widest > 0 ? widest + columnsapart : 0);
        group += list.widths.back();
    }
    list.groups = static_cast<std::size_t>(std::max(1.0, width / group));
    list.groups = std::min(list.groups, list.table.rows.size());
    const auto most = static_cast<std::size_t>(std::max(1.0, height / canvas.textheight({0, size, true})));
    list.lines = std::min(most, (list.table.rows.size() + list.groups - 1) / list.groups);
    return list;
}

/// In a quarter of the page, or if need be in fewer words in a third of it.
WindowList windowlist(const Canvas& canvas, const PagePlan& pages, double width, double page) {
    WindowList list;
    for (const bool close : {false, true})
        for (const double size : sizes) {
            const double height = close ? page / 3 : size > pagetype::lesser ? page / 8 : page / 4;
            list = windowlist(canvas, pages, close, size, width, height);
            if (list.whole()) return list;
        }
    return list;
}

double paintwindows(Canvas& canvas, const Area& area, const WindowList& list, const PagePlan& pages) {
    const Colours& look = coloursof(Lighting::day);
    double y = paragraph(canvas, area, passagewords(pages), {look.text, pagetype::body, true}) + 4;
    if (!list.answer.empty())
        return paragraph(canvas, {area.left, y, area.right, area.bottom}, list.answer,
                         {look.needed, pagetype::body, true}) +
               gap;
    const TextLook head{look.faint, pagetype::least}, cell{look.text, list.size};
    const double line = canvas.textheight({0, list.size, true}), headline = canvas.textheight(head);
    const double group = area.width() / static_cast<double>(list.groups);
    const std::size_t room = list.groups * list.lines, rows = list.table.rows.size();
    for (std::size_t i = 0; i < std::min(rows, room); ++i) {
        double left = area.left + static_cast<double>(i / list.lines) * group;
        const double top = y + headline + static_cast<double>(i % list.lines) * line;
        if (i + 1 == room && rows > room) {
            fittedtext(canvas, {left, top}, "and " + std::to_string(rows - i) + " more: see the planner's table", cell,
                       group - columnsapart);
            break;
        }
        for (std::size_t j = 0; j < list.widths.size(); ++j) {
            if (i % list.lines == 0) canvas.text({left, y}, list.table.headings[j], head);
            TextLook shown = cell;
            shown.bold = j < list.boldcells;
            canvas.text({left, top}, list.table.rows[i].cells[j], shown);
            left += list.widths[j];
        }
    }
    y += headline + static_cast<double>(list.lines) * line;
    return y + gap;
}

/// "Tue 14 Jul to Mon 20 Jul 2026"
std::string spantitle(const PagePlan& pages) {
    const Date first = pages.days.front().date, last = pages.days.back().date;
    std::string title;
    if (first != last) title = daytext(pages.locale, first);
    if (first != last && yearof(first) != yearof(last)) title += " " + std::to_string(yearof(first));
    return title + (title.empty() ? "" : " to ") + daytext(pages.locale, last) + " " + std::to_string(yearof(last));
}

void paintspan(Canvas& canvas, const Area& area, const PagePlan& pages) {
    double top = pagehead(canvas, area, pages, spantitle(pages));
    const std::string marks = std::string("High waters are bold") + (anystand(pages) ? ", st: the tide stands." : ".");
    const double bottom = pagefoot(canvas, area, pages, {0, pages.days.size(), marks, "", true});
    if (pages.access) {
        const WindowList windows = windowlist(canvas, pages, area.width(), bottom - top);
        top = paintwindows(canvas, {area.left, top, area.right, bottom}, windows, pages);
    }
    const auto listbeside = [&](double picture) {
        const double room = bottom - top - picture - 2 * gap - canvas.textheight({0, pagetype::lesser});
        return waterlist(canvas, pages, area.width(), room);
    };
    WaterList waters = listbeside(goodpicture);
    if (waters.days < pages.days.size())
        if (const WaterList more = listbeside(leastpicture); more.days == pages.days.size()) waters = more;
    const double list = bottom - heightof(canvas, waters, pages);
    paintlist(canvas, {area.left, list, area.right, bottom}, waters, pages);
    const PlanPicture picture{
        pages.plan,          pages.locale,      coloursof(Lighting::day), {area.left, top, area.right, list - gap},
        pages.plan.begins(), pages.plan.ends(), pages.of.passage,         pages.access ? &*pages.access : nullptr,
        pagetype::lesser};
    paintplan(canvas, picture, scaleof(picture, canvas));
}

}  // namespace

Booklet spanpage(const PageOf& of, Date first, int days, const Zones& zones, const Locale& locale) {
    const auto pages = std::make_shared<PagePlan>(of, first, days, zones, locale);
    return {trimmedname(of.port) + ", " + spantitle(*pages), true, 1,
            [pages](int, Canvas& canvas, const Area& area) { paintspan(canvas, area, *pages); }};
}

}  // namespace tarvane
