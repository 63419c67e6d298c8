// The plans that a view of the planner shows, port after port and year after year, made on all processors and handed
// over in order. Must not show anything but the lines that these views share.
#pragma once

#include <functional>
#include <memory>

#include "planner/planfiles.h"
#include "tides/views.h"

namespace tarvane {

/// A port's plan of some days, a year at most.
struct PlanPart {
    const PortInHand* port = nullptr;
    std::unique_ptr<Plan> plan;
    PlannedAccess access;              ///< without wishes; empty where no boat is asked for
    bool first = false, last = false;  ///< of the port's
};

/// Calls `act` for every part in turn. Only as many are kept as there are processors.
void eachpart(const ViewContext& context, bool withaccess, const std::function<void(const PlanPart&)>& act);

/// A calendar written event by event, which is nothing where there is none.
class CalendarWriter {
  public:
    explicit CalendarWriter(std::ostream& out) : stream_(out) {}
    void event(const std::string& event);
    void finish();
    bool empty() const { return empty_; }

  private:
    std::ostream& stream_;
    bool empty_ = true;
};

PlanPort planport(const ViewContext& context, const PortInHand& port);

std::vector<Column> plancolumns(std::span<const PlanColumn> columns);

/// Whether some minute of a day of the plan's clock has no prediction.
bool lacksprediction(const Plan& plan, Date date);

/// Notes the days of a plan that have no prediction or none for some minutes.
void notelacking(Absences& absences, const PlanPart& part);

/// A port's heading and the clock that its times are on.
void planheading(const ViewContext& context, const PlanPart& part, std::ostream& out);

}  // namespace tarvane
