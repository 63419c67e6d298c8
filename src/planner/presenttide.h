// The tide at a port at the present moment, whatever day is on show elsewhere. Must not ask for the time.
#pragma once

#include <memory>
#include <string>

#include "planner/plan.h"

namespace tarvane {

class PresentTide {
  public:
    /// The plan of the day of `clock` that `now` lies in; made anew only when port, zone, clock or day are others.
    const Plan& at(const HarmonicRecord& port, const std::string& iana, ClockChoice clock, const Zones& zones,
                   Moment now);

  private:
    std::unique_ptr<Plan> plan_;
};

}  // namespace tarvane
