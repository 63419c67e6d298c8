#include "tides/runtides.h"

#include <filesystem>
#include <optional>

#include "files/wholefiles.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "tides/fitcommand.h"
#include "tides/options.h"
#include "tides/portchoice.h"
#include "tides/streamscommand.h"
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

/// The ports that the options ask for, read from the area file.
std::string takeports(const Options& options, ViewContext& context) {
    AreaInHand area;
    const std::string unreadable = readarea(context.settings.hcfile, area);
    if (!unreadable.empty()) return unreadable;
    context.areaname = area.name;
    const std::string wanted =
        options.view->needsport ? options.port.value_or(numbertext(context.settings.currentport)) : "all";
    const PortChoice choice = chooseports(area.names, wanted, area.name);
    for (const std::int16_t number : choice.numbers) {
        const auto index = static_cast<std::size_t>(number - 1);
        const UserDepthRecord depth =
            options.view->needsport ? readdepth(context.settings.depfile, number) : UserDepthRecord{};
        context.ports.push_back({area.names[index],
                                 {area.records[index], number, depth.UserDepth, context.settings.currentoutput,
                                  trim(depth.DepthPortName)}});
    }
    return choice.fault;
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

/// The zones of the ports, and the boat. A table of zones that can't be read leaves the ports to their zone letters.
std::string takeplan(const Options& options, const TidesEnvironment& environment, const ProgramFolders& folders,
                     ViewContext& context) {
    PlanAsked& plan = context.plan;
    plan.clock = options.plan.clock.value_or(ClockChoice::port);
    plan.date = options.date;
    plan.now = environment.now;
    plan.zones = environment.zones;
    plan.about = aboutarea(folders, context.settings.hcfile);
    return options.view->hasboat ? takepassage(options.plan, context.settings, plan.passage, plan.wishes) : "";
}

std::string prepare(const Options& options, const TidesEnvironment& environment, ViewContext& context) {
    const ProgramFolders folders = foldersof(environment);
    std::string fault;
    if (options.view->needsarea) {
        fault = readsettings(folders, context.settings);
        if (!fault.empty()) return fault;
        if (options.area) context.settings.hcfile = *options.area;
        if (options.summer) context.settings.summerflag2 = *options.summer ? -1 : 0;
        context.settings.currentsummer = context.settings.summerflag2;
        context.settings.depfile = depfileof(folders, context.settings.hcfile);
        fault = takeports(options, context);
        if (fault.empty() && options.view->planned) fault = takeplan(options, environment, folders, context);
        if (fault.empty() && !options.view->planned) fault = checkdepths(context.settings);
    } else if (options.area) {
        AreaInHand readable;
        fault = readarea(*options.area, readable);
    }
    if (fault.empty()) fault = takedays(options, environment.today, context);
    return fault;
}

/// Writes the result. The exit status: days without one are no fault as long as there are others.
int show(const Options& options, const ViewContext& context, std::ostream& out, std::ostream& err) {
    if (!context.plan.about.fault.empty())
        err << "tides: " << plaintext(aboutname(context.areaname) + " isn't read: " + context.plan.about.fault) << "\n";
    if (options.format == OutputFormat::text) {
        options.view->text(context, out);
        return 0;
    }
    Absences absences;
    if (options.format == OutputFormat::ics) {
        const bool events = options.view->calendar(context, out, absences);
        absences.tell(err);
        if (!events && absences.empty()) err << "tides: there is nothing to put into a calendar\n";
        return events ? 0 : refused;
    }
    RowWriter writer(out, options.format, options.view->columns());
    options.view->rows(context, writer, absences);
    const auto asked = static_cast<std::size_t>(context.days) * context.ports.size();
    const bool nothing = writer.empty() && !absences.empty() &&
                         (!options.view->planned || static_cast<std::size_t>(absences.count()) >= asked);
    if (!nothing) writer.finish();
    absences.tell(err);
    return nothing ? refused : 0;
}

}  // namespace

int runtides(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
             std::ostream& err) {
    if (!arguments.empty() && arguments.front() == "fit")
        return runfit({arguments.begin() + 1, arguments.end()}, environment, out, err);
    if (!arguments.empty() && arguments.front() == "streams")
        return runstreams({arguments.begin() + 1, arguments.end()}, environment, out, err);
    Options options;
    ViewContext context;
    std::string fault = parseoptions(arguments, options);
    if (fault.empty() && !options.answer.empty()) {
        out << options.answer << std::flush;
        return 0;
    }
    if (fault.empty()) fault = prepare(options, environment, context);
    if (fault.empty()) {
        // everything that can be wrong has been found by now, so that results needn't be held back: ten years of all
        // ports' samples would not fit
        const int status = show(options, context, out, err);
        if (out.flush()) return status;
        fault = "the result could not be written";
    }
    err << "tides: " << plaintext(fault) << "\n";
    return refused;
}

}  // namespace tarvane
