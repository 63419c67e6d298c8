#include "tides/preparation.h"

#include <filesystem>

#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "tides/portchoice.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

/// Heights with the user's depth would be silently wrong if its file were there and not readable.
std::string checkdepths(const Settings& settings) {
    std::error_code ignored;
    const bool wanted = settings.currentoutput != 1;
    const bool unreadable = !canopen(settings.depfile) && std::filesystem::exists(settings.depfile, ignored);
    return wanted && unreadable ? "the depths file " + settings.depfile + " can't be read" : "";
}

/// Puts the ports of these numbers into the context of their area.
void takeports(const Options& options, const AreaInHand& area, const std::vector<std::int16_t>& numbers,
               ViewContext& context) {
    context.areaname = area.name;
    for (const std::int16_t number : numbers) {
        const auto index = static_cast<std::size_t>(number - 1);
        const UserDepthRecord depth =
            options.view->needsport ? readdepth(context.settings.depfile, number) : UserDepthRecord{};
        const std::string& name = area.names[index];
        const std::string subject = portsubject(name, number) + (context.several ? " of " + area.name : "");
        context.ports.push_back(
            {name,
             subject,
             {area.records[index], number, depth.UserDepth, context.settings.currentoutput, trim(depth.DepthPortName)},
             whatisknown(context.plan.known, area.records[index], number)});
    }
}

std::string takedays(const Options& options, Date today, ViewContext& context) {
    context.dateonshow = options.date.value_or(today);
    context.first = context.dateonshow;
    context.days = options.days;
    if (options.view->wholemonth) {
        context.first -= std::chrono::days(dayof(context.dateonshow) - 1);
        context.days = DaysInMonth(yearof(context.dateonshow), monthof(context.dateonshow));
    }
    const Date last = context.first + std::chrono::days(context.days - 1);
    return last > makedate(9999, 12, 31) ? "the days run past 9999-12-31" : "";
}

/// The clock, and the boat.
std::string takeplan(const Options& options, const TidesEnvironment& environment, ViewContext& context) {
    PlanAsked& plan = context.plan;
    plan.clock = options.plan.clock.value_or(ClockChoice::port);
    plan.date = options.date;
    plan.now = environment.now;
    return options.view->hasboat ? takepassage(options.plan, context.settings, plan.passage, plan.wishes) : "";
}

/// Reads the areas asked for. Of all areas one that is none is told and passed over.
std::string takeareas(const Options& options, const ProgramFolders& folders, const Settings& settings,
                      std::vector<AreaInHand>& areas, std::ostream& err) {
    if (!options.allareas()) {
        areas.emplace_back();
        return options.area ? readtypedarea(folders, *options.area, areas[0]) : readarea(settings.hcfile, areas[0]);
    }
    for (const std::string& path : everyarea(folders)) {
        AreaInHand area;
        std::string fault = readarea(path, area);
        if (fault.empty() && area.records.empty()) fault = area.name + " holds no ports";
        if (fault.empty())
            areas.push_back(std::move(area));
        else
            err << "tides: " << plaintext(fault) << "\n";
    }
    return areas.empty() ? "no sea area lies where the program keeps them" : "";
}

AreasChoice pickports(const Options& options, const Settings& settings, const std::vector<AreaInHand>& areas) {
    const std::string wanted =
        options.view->needsport ? options.port.value_or(numbertext(settings.currentport)) : "all";
    if (options.allareas()) return choosewithin(areas, wanted);
    const PortChoice one = chooseports(areas[0].names, wanted, areas[0].name);
    return {{one.numbers}, one.fault};
}

/// The context of an area: `common` with what is the area's own.
std::string takearea(const Options& options, const TidesEnvironment& environment, const AreaInHand& area,
                     const std::vector<std::int16_t>& numbers, ViewContext& context) {
    const ProgramFolders folders = foldersof(environment);
    // A table of what is known that can't be read leaves the ports to their zone letters.
    context.settings.hcfile = area.path;
    context.settings.depfile = depfileof(folders, area.path);
    if (options.view->planned || options.format == OutputFormat::text)
        context.plan.known = knownarea(folders, context.settings.hcfile);
    context.plan.zones = environment.zones;
    takeports(options, area, numbers, context);
    return options.view->planned ? takeplan(options, environment, context) : checkdepths(context.settings);
}

std::string prepareareas(const Options& options, const TidesEnvironment& environment,
                         std::vector<ViewContext>& contexts, std::ostream& err) {
    const ProgramFolders folders = foldersof(environment);
    ViewContext common;
    std::string fault = readsettings(folders, common.settings);
    if (!fault.empty()) return fault;
    if (options.summer) common.settings.summerflag2 = *options.summer ? -1 : 0;
    common.settings.currentsummer = common.settings.summerflag2;
    common.several = options.allareas();
    std::vector<AreaInHand> areas;
    fault = takeareas(options, folders, common.settings, areas, err);
    if (!fault.empty()) return fault;
    const AreasChoice choice = pickports(options, common.settings, areas);
    if (!choice.fault.empty()) return choice.fault;
    const std::string notes = options.view == &aboutview ? ownportsfault(folders) : "";
    if (!notes.empty()) err << "tides: " << plaintext(notes) << "\n";
    for (std::size_t i = 0; i < areas.size(); ++i) {
        if (choice.numbers[i].empty()) continue;
        contexts.push_back(common);
        fault = takearea(options, environment, areas[i], choice.numbers[i], contexts.back());
        if (!fault.empty()) return fault;
    }
    return "";
}

}  // namespace

std::string prepare(const Options& options, const TidesEnvironment& environment, std::vector<ViewContext>& contexts,
                    std::ostream& err) {
    std::string fault;
    if (options.view->needsarea) {
        fault = prepareareas(options, environment, contexts, err);
    } else {
        AreaInHand readable;
        if (options.area && !options.allareas()) fault = readtypedarea(foldersof(environment), *options.area, readable);
        contexts.emplace_back();
    }
    for (ViewContext& context : contexts) {
        context.opens = &context == &contexts.front();
        context.concludes = &context == &contexts.back();
        if (fault.empty()) fault = takedays(options, environment.today, context);
    }
    return fault;
}

}  // namespace tarvane
