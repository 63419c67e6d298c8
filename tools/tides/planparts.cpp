#include "tides/planparts.h"

#include <algorithm>
#include <deque>
#include <future>
#include <thread>

#include "planner/plancalendar.h"
#include "planner/planrun.h"
#include "portdata/aboutwords.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

/// A part before it is made.
struct PartAsked {
    const PortInHand* port;
    PlanOf of;
    bool first, last;
};

PlanOf planof(const ViewContext& context, const PortInHand& port) {
    const PlanAsked& plan = context.plan;
    PlanOf of{port.port.record, port.known.iana(), Date{}, context.days, plan.clock};
    const PortClock clock(of.clock, zonehoursof(of.port), of.iana, *plan.zones);
    of.first = plan.date.value_or(clock.at(plan.now).date);
    return of;
}

PlanPart make(const ViewContext& context, const PartAsked& asked, bool withaccess) {
    PlanPart part{asked.port, std::make_unique<Plan>(asked.of, *context.plan.zones), {}, asked.first, asked.last};
    if (withaccess) part.access = part.plan->access(context.plan.passage, {}, false);
    return part;
}

}  // namespace

void eachpart(const ViewContext& context, bool withaccess, const std::function<void(const PlanPart&)>& act) {
    const std::size_t most = std::max(1U, std::thread::hardware_concurrency());
    std::deque<std::future<PlanPart>> making;
    const auto handover = [&](std::size_t left) {
        while (making.size() > left) {
            act(making.front().get());
            making.pop_front();
        }
    };
    for (const PortInHand& port : context.ports) {
        const std::vector<PlanOf> plans = plansonend(planof(context, port));
        for (std::size_t i = 0; i < plans.size(); ++i) {
            handover(most - 1);
            const PartAsked asked{&port, plans[i], i == 0, i + 1 == plans.size()};
            const bool alone = plans.size() == 1 && context.ports.size() == 1;
            making.push_back(std::async(alone ? std::launch::deferred : std::launch::async,
                                        [&context, asked, withaccess] { return make(context, asked, withaccess); }));
        }
    }
    handover(0);
}

void CalendarWriter::event(const std::string& event) {
    if (empty_) stream_ << calendarstart();
    empty_ = false;
    stream_ << event;
}

void CalendarWriter::finish() {
    if (!empty_) stream_ << calendarend();
}

PlanPort planport(const ViewContext& context, const PortInHand& port) {
    return {context.areaname, port.port.number, port.name, port.known.datum(), trustclause(port.known)};
}

std::vector<Column> plancolumns(std::span<const PlanColumn> columns) {
    std::vector<Column> heads;
    for (const PlanColumn& column : columns)
        heads.push_back({column.name, column.isnumber});
    return heads;
}

bool lacksprediction(const Plan& plan, Date date) {
    const Moment from = plan.clock().startof(date), until = plan.clock().startof(date + std::chrono::days(1));
    return from >= until || !plan.height(from) || !plan.height(until - std::chrono::minutes(1));
}

void notelacking(Absences& absences, const PlanPart& part) {
    const Plan& plan = *part.plan;
    if (*plan.whynot() == '\0') return;
    for (int day = 0; day < plan.planof().days; ++day) {
        const Date date = plan.planof().first + std::chrono::days(day);
        if (lacksprediction(plan, date))
            absences.note("prediction for " + part.port->subject + ",", plan.whynot(), date);
    }
}

void planheading(const ViewContext& context, const PlanPart& part, std::ostream& out) {
    portheading(context, *part.port, out);
    out << "Times are " << (part.plan->planof().clock == ClockChoice::port ? "on the " : "in ")
        << part.plan->clock().description() << ", heights in metres above " << chartdatum(part.port->known.datum())
        << "\n";
}

}  // namespace tarvane
