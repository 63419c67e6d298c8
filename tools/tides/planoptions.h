// The planner's options of `tides`: the clock, the boat and what windows are wished. Must not read files.
#pragma once

#include <optional>
#include <string>

#include "dates/portclock.h"
#include "planner/access.h"
#include "portdata/configuration.h"

namespace tarvane {

struct PlanOptions {
    std::optional<ClockChoice> clock;
    std::optional<double> draught, clearance, bottom, ceiling;  ///< metres
    WindowWishes wishes;
};

/// Each takes an option's value. The fault in one line, empty when there is none.
std::string takeclock(const std::string& value, PlanOptions& options);
std::string takedraught(const std::string& value, PlanOptions& options);
std::string takeclearance(const std::string& value, PlanOptions& options);
std::string takebottom(const std::string& value, PlanOptions& options);
std::string takeceiling(const std::string& value, PlanOptions& options);
std::string takedaylight(const std::string& value, PlanOptions& options);
std::string takeleast(const std::string& value, PlanOptions& options);
std::string takeweekdays(const std::string& value, PlanOptions& options);

/// The boat and the wishes, with the stored draught and clearance where none is given. The fault, as above.
std::string takepassage(const PlanOptions& options, const Settings& settings, Passage& passage, WindowWishes& wishes);

}  // namespace tarvane
