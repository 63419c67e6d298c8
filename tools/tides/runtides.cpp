#include "tides/runtides.h"

#include <filesystem>

#include "tides/aboutoptions.h"
#include "tides/fitcommand.h"
#include "tides/options.h"
#include "tides/planparts.h"
#include "tides/preparation.h"
#include "tides/streamscommand.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

using Contexts = std::vector<ViewContext>;

int showcalendar(const Options& options, const Contexts& contexts, std::ostream& out, std::ostream& err) {
    Absences absences;
    CalendarWriter calendar(out);
    for (const ViewContext& context : contexts)
        options.view->calendar(context, calendar, absences);
    calendar.finish();
    absences.tell(err);
    if (calendar.empty() && absences.empty()) err << "tides: there is nothing to put into a calendar\n";
    return calendar.empty() ? refused : 0;
}

int showtable(const Options& options, const Contexts& contexts, std::ostream& out, std::ostream& err) {
    const bool several = contexts.front().several;
    Absences absences;
    RowWriter writer(out, options.format, options.view->columns(), several ? "area" : nullptr);
    std::size_t asked = 0;
    for (const ViewContext& context : contexts) {
        writer.setlast(std::filesystem::path(context.areaname).stem().string());
        options.view->rows(context, writer, absences);
        asked += static_cast<std::size_t>(context.days) * context.ports.size();
    }
    const bool nothing = writer.empty() && !absences.empty() &&
                         (!options.view->planned || static_cast<std::size_t>(absences.count()) >= asked);
    if (!nothing) writer.finish();
    absences.tell(err);
    return nothing ? refused : 0;
}

/// Writes the result. The exit status: days without one are no fault as long as there are others.
int show(const Options& options, const Contexts& contexts, std::ostream& out, std::ostream& err) {
    for (const ViewContext& context : contexts)
        if (!context.plan.known.table.fault.empty())
            err << "tides: "
                << plaintext(aboutname(context.areaname) + " isn't read: " + context.plan.known.table.fault) << "\n";
    if (options.format == OutputFormat::ics) return showcalendar(options, contexts, out, err);
    if (options.format != OutputFormat::text) return showtable(options, contexts, out, err);
    for (const ViewContext& context : contexts)
        options.view->text(context, out);
    return 0;
}

/// Shows with a stream whose first failure ends it all: nobody reads what would follow. Nothing when it failed.
std::optional<int> showwhole(const Options& options, const Contexts& contexts, std::ostream& out, std::ostream& err) {
    const std::ios::iostate before = out.exceptions();
    std::optional<int> status;
    try {
        out.exceptions(std::ios::badbit);
        status = show(options, contexts, out, err);
        out.flush();
    } catch (const std::ios::failure&) {
        status.reset();
    }
    out.exceptions(before);
    return status;
}

}  // namespace

int runtides(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
             std::ostream& err) {
    if (!arguments.empty() && arguments.front() == "fit")
        return runfit({arguments.begin() + 1, arguments.end()}, environment, out, err);
    if (!arguments.empty() && arguments.front() == "streams")
        return runstreams({arguments.begin() + 1, arguments.end()}, environment, out, err);
    Options options;
    Contexts contexts;
    const bool about = !arguments.empty() && arguments.front() == "about";
    std::string fault =
        about ? parseabout({arguments.begin() + 1, arguments.end()}, options) : parseoptions(arguments, options);
    if (fault.empty() && !options.answer.empty()) return printanswer(options.answer, out, err);
    if (fault.empty()) fault = prepare(options, environment, contexts, err);
    if (fault.empty()) {
        // everything that can be wrong has been found by now, so that results needn't be held back: ten years of all
        // ports' samples would not fit
        if (const auto status = showwhole(options, contexts, out, err)) return *status;
        fault = "the result could not be written";
    }
    err << "tides: " << plaintext(fault) << "\n";
    return refused;
}

}  // namespace tarvane
