#include "planner/plancommands.h"

#include <algorithm>
#include <cctype>

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

/// "Cherbourg tides 2026-07-18.csv", of a year "Cherbourg tides 2026.csv"
std::string proposedname(const PlanView& view, const std::string& kind, const std::string& ending) {
    const std::string day = isodate(view.first);
    const bool year = view.settings.days > mostplandays;
    return safefilename(view.portname + " " + kind + " " + (year ? day.substr(0, 4) : day) + ending);
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

Drawing drawingof(const MainContext& context, const PlanView& view, double width, double height) {
    const Locale& locale = context.services.locale;
    return {plantitle(view, locale), width, height, [&view, &locale, width, height](Canvas& canvas) {
                const PlanPicture picture{.plan = *view.plan,
                                          .locale = locale,
                                          .look = coloursof(Lighting::day),
                                          .area = {0, 0, width, height},
                                          .from = view.from,
                                          .to = view.to,
                                          .passage = passageof(view),
                                          .access = &view.access,
                                          .title = plantitle(view, locale),
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
    constexpr const char* kinds[] = {"tides", "month", "almanac"};
    if (!view.plan) return answer(context, view.whynot);
    const auto path = choosefile(context, "Save As PDF", proposedname(view, kinds[static_cast<int>(sheet)], ".pdf"),
                                 "Pages (*.pdf)|*.pdf");
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
