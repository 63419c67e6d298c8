// The high and low waters to the minute, on a clock of the port's.
#include "planner/plancalendar.h"
#include "planner/plantexts.h"
#include "text/numbers.h"
#include "tides/planparts.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

std::vector<Column> planwaterscolumns() {
    return plancolumns(watercolumns());
}

void planwatersrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    eachpart(context, false, [&](const PlanPart& part) {
        const PlanPort port = planport(context, *part.port);
        notelacking(absences, part);
        for (const PlannedWater& each : part.plan->waters())
            writer.row(watercells(port, part.plan->clock(), each));
    });
}

void planwaterscalendar(const ViewContext& context, CalendarWriter& out, Absences& absences) {
    eachpart(context, false, [&](const PlanPart& part) {
        const PlanPort port = planport(context, *part.port);
        notelacking(absences, part);
        for (const PlannedWater& each : part.plan->waters())
            out.event(waterevent(port, part.port->port.record, part.plan->clock(), each, context.plan.now));
    });
}

void waterline(const Plan& plan, const PlannedWater& water, std::ostream& out) {
    const ClockTime time = plan.clock().at(water.moment);
    out << "  " << clocktext(time) << " " << padright(time.name, 6) << padleft(fixed(water.water.height, 2), 7) << "  "
        << padright(water.water.high ? "high" : "low", 4);
    if (water.water.springshare > 0) out << padleft(fixed(100 * water.water.springshare, 0), 6) << " % of springs";
    out << (water.water.stand ? ", stand" : "") << "\n";
}

void planwaterstext(const ViewContext& context, std::ostream& out) {
    eachpart(context, false, [&](const PlanPart& part) {
        const Plan& plan = *part.plan;
        if (part.first) planheading(context, part, out);
        auto water = plan.waters().begin();
        for (int day = 0; day < plan.planof().days; ++day) {
            const Date date = plan.planof().first + std::chrono::days(day);
            const bool lacks = lacksprediction(plan, date);
            out << "\n" << longdate(date) << "\n";
            const auto before = water;
            for (; water != plan.waters().end() && plan.clock().at(water->moment).date == date; ++water)
                waterline(plan, *water, out);
            if (!hasday(plan.clock(), date)) {
                out << "  No such day: the clock leaves it out\n";
                continue;
            }
            if (lacks)
                out << "No prediction" << (water == before ? ": " : " for some of it: ") << plan.whynot() << "\n";
            if (!lacks && water == before) out << "  No high or low water on this day\n";
        }
    });
    conclusion(context, heightscaution, out);
}

}  // namespace

constinit const View planwatersview{
    .option = "--waters",
    .help = "high and low waters to the minute on the port's clock",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = planwaterscolumns,
    .rows = planwatersrows,
    .text = planwaterstext,
    .planned = true,
    .calendar = planwaterscalendar,
};

}  // namespace tarvane
