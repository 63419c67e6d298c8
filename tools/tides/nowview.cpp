// The tide at the present moment and the water that comes next.
#include "planner/plantexts.h"
#include "text/numbers.h"
#include "tides/planparts.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

constexpr int nowdecimals = 3;

std::vector<Column> nowcolumns() {
    return {{"port"},       {"name", false},     {"moment", false},    {"height"},
            {"rate"},       {"tendency", false}, {"next_kind", false}, {"next_moment", false},
            {"next_height"}};
}

void nowrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    eachpart(context, false, [&](const PlanPart& part) {
        const PortClock& clock = part.plan->clock();
        const auto now = part.plan->now(context.plan.now);
        if (!now) return notelacking(absences, part);
        const auto& next = now->next();
        writer.row({numbertext(part.port->port.number), part.port->name, isomoment(clock.at(context.plan.now)),
                    fixed(now->height, nowdecimals), fixed(now->rate, nowdecimals), tendencyword(now->rate),
                    next ? (next->water.high ? "high" : "low") : "", next ? isomoment(clock.at(next->moment)) : "",
                    next ? fixed(next->water.height, nowdecimals) : ""});
    });
}

void nowastext(const ViewContext& context, std::ostream& out) {
    eachpart(context, false, [&](const PlanPart& part) {
        planheading(context, part, out);
        out << "\n" << longdate(part.plan->clock().at(context.plan.now).date) << "\n";
        out << nowtext(*part.plan, context.plan.now) << "\n";
        if (!part.plan->height(context.plan.now)) out << "No prediction: " << part.plan->whynot() << "\n";
    });
    conclusion(context, heightscaution, out);
}

}  // namespace

constinit const View nowview{
    .option = "--now",
    .help = "the tide at this moment and the next high or low water",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = nowcolumns,
    .rows = nowrows,
    .text = nowastext,
    .planned = true,
    .presentmoment = true,
};

}  // namespace tarvane
