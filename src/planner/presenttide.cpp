#include "planner/presenttide.h"

namespace tarvane {

const Plan& PresentTide::at(const HarmonicRecord& port, const std::string& iana, ClockChoice clock, const Zones& zones,
                            Moment now) {
    PlanOf of{port, iana, PortClock(clock, zonehoursof(port), iana, zones).at(now).date, 1, clock};
    const PlanOf* known = plan_ ? &plan_->planof() : nullptr;
    if (!known || known->first != of.first || known->clock != of.clock || known->iana != of.iana ||
        encode(known->port) != encode(of.port))
        plan_ = std::make_unique<Plan>(of, zones);
    return *plan_;
}

}  // namespace tarvane
