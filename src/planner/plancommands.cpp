#include "planner/plancommands.h"

#include <algorithm>
#include <cctype>

#include "dates/dateformats.h"
#include "dates/isomoments.h"
#include "files/filenames.h"
#include "planner/plancalendar.h"
#include "planner/planfiles.h"
#include "planner/planpages.h"
#include "portdata/aboutwords.h"
#include "session/documents.h"

namespace tarvane {
namespace {

constexpr double pngscale = 2;

PlanPort planport(const PlanView& view) {
    return {view.area.substr(view.area.find_last_of('/') + 1), view.number, view.portname, view.known.datum(),
            trustclause(view.known)};
}

std::string datedname(const PlanView& view, const std::string& kind, const std::string& date,
                      const std::string& ending) {
    return safefilename(view.portname + " " + kind + " " + date + ending);
}

/// "Cherbourg tides 2026-07-18.csv", of a year "Cherbourg tides 2026.csv"
std::string proposedname(const PlanView& view, const std::string& kind, const std::string& ending) {
    const std::string day = isodate(view.first);
    return datedname(view, kind, view.settings.days > mostplandays ? day.substr(0, 4) : day, ending);
}

/// "Cherbourg month 2026-07.pdf", "Cherbourg almanac 2026.pdf"
std::string sheetname(const PlanView& view, Sheet sheet) {
    const std::string day = isodate(view.first);
    if (sheet == Sheet::month) return datedname(view, "month", day.substr(0, day.rfind('-')), ".pdf");
    if (sheet == Sheet::almanac) return datedname(view, "almanac", day.substr(0, day.find('-')), ".pdf");
    return proposedname(view, "tides", ".pdf");
}

std::optional<std::string> choosefile(MainContext& context, const std::string& title, const std::string& name,
                                      const std::string& filter) {
    FileRequest request;
    request.title = title;
    request.folder = context.session.folders.textoutputfolder;
    request.filename = name;
    request.filter = filter;
    request.askoverwrite = true;
    const auto path = context.services.filedialogs.save(request);
    return path && !path->empty() ? path : std::nullopt;
}

struct FileKind {
    const char* title;
    const char* kind;
    const char* ending;
    const char* filter;
};

void savetext(MainContext& context, const PlanView& view, const FileKind& kind, const std::string& text) {
    if (!view.plan) return answer(context, view.whynot);
    if (text.empty()) return answer(context, "There is nothing to save in these days");
    const auto path = choosefile(context, kind.title, proposedname(view, kind.kind, kind.ending), kind.filter);
    if (path) writedocument(context, *path, text);
}

constexpr const char* tables = "Tables (*.csv)|*.csv";
constexpr const char* calendars = "Calendars (*.ics)|*.ics";

/// Of a part of the plan the part: "Cherbourg, 18 July 2026 06:00 to 19 July 2026 14:00, port's clock (Europe/Paris)",
/// without times where it is of whole days.
std::string showntitle(const PlanView& view, const Locale& locale) {
    const PortClock& clock = view.plan->clock();
    if (view.from <= view.plan->begins() && view.to >= view.plan->ends()) return plantitle(view, locale);
    const auto day = [&](Moment moment) { return formatdate(locale, clock.at(moment).date, "d mmmm yyyy"); };
    const auto starts = [&](Moment moment) { return clock.startof(clock.at(moment).date) == moment; };
    std::string from = day(view.from), to = day(view.to - std::chrono::seconds(1));
    if (!starts(view.from) || !starts(view.to)) {
        from += " " + plainclock(clock, view.from);
        to = (day(view.to) == day(view.from) ? "" : day(view.to) + " ") + plainclock(clock, view.to);
    }
    return view.portname + ", " + from + (from == to ? "" : " to " + to) + ", " + clock.description();
}

Drawing drawingof(const MainContext& context, const PlanView& view, double width, double height) {
    const Locale& locale = context.services.locale;
    return {showntitle(view, locale), width, height, [&view, &locale, width, height](Canvas& canvas) {
                const PlanPicture picture{.plan = *view.plan,
                                          .locale = locale,
                                          .look = coloursof(Lighting::day),
                                          .area = {0, 0, width, height},
                                          .from = view.from,
                                          .to = view.to,
                                          .passage = passageof(view),
                                          .access = &view.access,
                                          .title = showntitle(view, locale),
                                          .trust = trustclause(view.known)};
                paintplan(canvas, picture, scaleof(picture, canvas));
            }};
}

/// Whatever the case of its letters.
bool endswith(const std::string& path, const std::string& ending) {
    const auto equal = [](char one, char other) { return std::tolower(static_cast<unsigned char>(one)) == other; };
    return path.size() >= ending.size() && std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                                                      [&](char wanted, char has) { return equal(has, wanted); });
}

PageOf pageof(const PlanView& view) {
    const PlanSettings& wishes = view.settings;
    return {.port = view.port,
            .number = view.number,
            .area = planport(view).area,
            .iana = view.known.iana(),
            .clock = wishes.clock,
            .passage = passageof(view),
            .wishes = {wishes.daylight, wishes.leastminutes, wishes.weekdays},
            .twilight = wishes.twilight,
            .known = view.known};
}

Booklet bookletof(const MainContext& context, const PlanView& view, Sheet sheet) {
    const Zones& zones = context.services.zones;
    const Locale& locale = context.services.locale;
    const PageOf of = pageof(view);
    if (sheet == Sheet::month) return monthpage(of, yearof(view.first), monthof(view.first), zones, locale);
    if (sheet == Sheet::almanac) return almanac(of, yearof(view.first), zones, locale);
    return spanpage(of, view.first, view.plan->planof().days, zones, locale);
}

}  // namespace

void savewaterstable(MainContext& context, const PlanView& view) {
    const bool any = view.plan && !view.plan->waters().empty();
    savetext(context, view, {"Save Tides To CSV File", "tides", ".csv", tables},
             any ? waterscsv(*view.plan, planport(view)) : "");
}

void savewindowstable(MainContext& context, const PlanView& view) {
    savetext(context, view, {"Save Access To CSV File", "access", ".csv", tables},
             view.access.windows.empty() ? "" : windowscsv(*view.plan, view.access, planport(view)));
}

void savewaterscalendar(MainContext& context, const PlanView& view) {
    savetext(context, view, {"Save Tides To Calendar File", "tides", ".ics", calendars},
             view.plan ? waterscalendar(*view.plan, planport(view), context.services.clock.moment()) : "");
}

void savewindowscalendar(MainContext& context, const PlanView& view) {
    savetext(context, view, {"Save Access To Calendar File", "access", ".ics", calendars},
             view.plan ? windowscalendar(*view.plan, view.access, view.read.passage, planport(view),
                                         context.services.clock.moment())
                       : "");
}

void saveplanpicture(MainContext& context, const PlanView& view, double width, double height) {
    if (!view.plan) return answer(context, view.whynot);
    const auto path = choosefile(context, "Save Picture", proposedname(view, "tides", ".png"),
                                 "Pictures (*.png)|*.png|Drawings (*.svg)|*.svg");
    if (!path) return;
    const Drawing drawing = drawingof(context, view, width, height);
    Drawings& drawings = context.services.drawings;
    writedocument(context, *path, endswith(*path, ".svg") ? drawings.svg(drawing) : drawings.png(drawing, pngscale));
}

void copyplanpicture(MainContext& context, const PlanView& view, double width, double height) {
    if (!view.plan) return answer(context, view.whynot);
    context.services.drawings.copy(drawingof(context, view, width, height));
    answer(context, "Copied: the picture");
}

Paper paperof(const MainContext& context, const PlanView& view) {
    return view.settings.paper.value_or(context.services.drawings.usualpaper());
}

void printsheet(MainContext& context, const PlanView& view, Sheet sheet) {
    if (!view.plan) return answer(context, view.whynot);
    const PrintOutcome printed =
        context.services.drawings.preview(bookletof(context, view, sheet), paperof(context, view));
    if (!printed) tellfailure(context, "It could not be printed:", printed.whynot);
}

void savesheet(MainContext& context, const PlanView& view, Sheet sheet) {
    if (!view.plan) return answer(context, view.whynot);
    const auto path = choosefile(context, "Save As PDF", sheetname(view, sheet), "Pages (*.pdf)|*.pdf");
    if (path)
        writedocument(context, *path,
                      context.services.drawings.pdf(bookletof(context, view, sheet), paperof(context, view)));
}

void copyplantable(MainContext& context, const PlanView& view, const PlanTable& table) {
    if (!view.plan) return answer(context, view.whynot);
    const std::string title =
        plantitle(view, context.services.locale) + "; heights in metres above " + chartdatum(view.known.datum());
    context.services.clipboard.settext(tabbedtext(table, title));
    answer(context, "Copied: " + std::to_string(table.rows.size()) + " rows");
}

}  // namespace tarvane
