// When a boat can pass: the windows in which the tide is high enough, and low enough under a bridge.
#include <cmath>
#include <memory>

#include "dates/englishlocale.h"
#include "planner/plancalendar.h"
#include "planner/planrun.h"
#include "planner/plantexts.h"
#include "portdata/aboutwords.h"
#include "text/numbers.h"
#include "tides/planparts.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

using Taker = std::function<void(const PlanPart&, const PlannedWindow&)>;
using Closer = std::function<void(const PlanPart&, const WindowRun&)>;

/// Hands over each port's windows in order, for calendars named, those over the midnight between two plans whole, and
/// then what the port's days hold over all.
void eachwindow(const ViewContext& context, bool named, const Taker& take, const Closer& close) {
    std::unique_ptr<PortClock> clock;
    std::unique_ptr<WindowRun> run;
    eachpart(context, true, [&](const PlanPart& part) {
        if (part.first) {
            clock = std::make_unique<PortClock>(part.plan->clock());
            run = std::make_unique<WindowRun>(*clock, context.plan.wishes);
        }
        PlannedAccess access = part.access;
        for (PlannedWindow& each : access.windows)
            if (named) part.plan->nameopening(each, context.plan.passage);
        for (const PlannedWindow& each : run->add(*part.plan, access))
            take(part, each);
        if (!part.last) return close(part, *run);
        for (const PlannedWindow& each : run->finish())
            take(part, each);
        close(part, *run);
    });
}

std::vector<Column> accesscolumns() {
    return plancolumns(windowcolumns());
}

void accessrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    eachwindow(
        context, false,
        [&](const PlanPart& part, const PlannedWindow& window) {
            writer.row(windowcells(planport(context, *part.port), part.plan->clock(), window));
        },
        [&](const PlanPart& part, const WindowRun&) { notelacking(absences, part); });
}

void accesscalendar(const ViewContext& context, CalendarWriter& out, Absences& absences) {
    eachwindow(
        context, true,
        [&](const PlanPart& part, const PlannedWindow& window) {
            out.event(windowevent(planport(context, *part.port), part.port->port.record, part.plan->clock(), window,
                                  context.plan.passage, context.plan.now));
        },
        [&](const PlanPart& part, const WindowRun&) { notelacking(absences, part); });
}

/// What the level needed is made of, and what else is asked.
void passagelines(const ViewContext& context, const std::string& datum, std::ostream& out) {
    const Passage& passage = context.plan.passage;
    const WindowWishes& wishes = context.plan.wishes;
    out << "Draught " << metres(passage.draught, 2) << ", " << metres(passage.clearance, 2)
        << " under the keel, bottom " << (passage.bottom < 0 ? "dries " : "") << metres(std::abs(passage.bottom), 2)
        << (passage.bottom < 0 ? "" : " below " + chartdatum(datum)) << ": the level needed is "
        << metres(passage.needed(), 2) << "\n";
    if (const auto ceiling = passage.ceiling()) out << "The tide must not be above " << metres(*ceiling, 2) << "\n";
    if (wishes.daylight == Daylight::part) out << "Only windows with some daylight\n";
    if (wishes.daylight == Daylight::whole) out << "Only windows wholly in daylight\n";
    if (wishes.leastminutes > 0)
        out << "Only windows of " << durationtext(std::chrono::minutes(wishes.leastminutes)) << " or more\n";
    if (wishes.weekdays != everyweekday) {
        out << "Only windows on";
        for (unsigned day = 0; day < 7; ++day)
            if (wishes.weekdays >> day & 1U) out << " " << EnglishLocale().dayabbreviation(static_cast<int>(day));
        out << "\n";
    }
}

void windowline(const PlanPart& part, const PlannedWindow& window, std::ostream& out) {
    const PortClock& clock = part.plan->clock();
    const ClockTime opens = clock.at(window.opens), closes = clock.at(window.closes);
    const Window& found = window.window;
    out << "  " << clocktext(opens) << " " << opens.name << " to " << clocktext(closes) << " " << closes.name;
    if (closes.date != opens.date) out << " on " << longdate(closes.date);
    out << ": " << durationtext(std::chrono::minutes(found.minutes())) << ", up to " << metres(found.greatestheight, 2);
    if (found.daylightminutes >= found.minutes())
        out << ", in daylight";
    else if (found.daylightminutes > 0)
        out << ", " << durationtext(std::chrono::minutes(found.daylightminutes)) << " of it in daylight";
    else
        out << ", in the dark";
    if (found.cutatstart) out << "; open before";
    if (found.cutatend) out << "; open on";
    out << "\n";
}

void accesstext(const ViewContext& context, std::ostream& out) {
    std::optional<Date> headed;
    const PortInHand* port = nullptr;
    const auto head = [&](const PlanPart& part) {
        if (port == part.port) return;
        port = part.port;
        headed.reset();
        planheading(context, part, out);
        passagelines(context, part.port->known.datum(), out);
    };
    eachwindow(
        context, false,
        [&](const PlanPart& part, const PlannedWindow& window) {
            head(part);
            const Date date = part.plan->clock().at(window.opens).date;
            if (headed != date) out << "\n" << longdate(date) << "\n";
            headed = date;
            windowline(part, window, out);
        },
        [&](const PlanPart& part, const WindowRun& run) {
            head(part);
            if (!part.last) return;
            PlannedAccess all = run.overall();
            if (headed) all.windows.resize(1);
            const std::string verdict = accessverdict(all, context.plan.passage, run.whynot());
            if (!verdict.empty())
                out << "\n" << verdict << "\n";
            else if (run.whynot() == nosuchday)
                out << "\nOne of these days is left out: it does not exist on this clock\n";
            else if (!run.whynot().empty())
                out << "\nNo prediction for some of these days: " << run.whynot() << "\n";
        });
    conclusion(context, heightscaution, out);
}

}  // namespace

constinit const View accessview{
    .option = "--access",
    .help = "when a boat can pass: needs --bottom",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = accesscolumns,
    .rows = accessrows,
    .text = accesstext,
    .planned = true,
    .hasboat = true,
    .calendar = accesscalendar,
};

}  // namespace tarvane
