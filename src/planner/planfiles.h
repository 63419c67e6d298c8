// Waters and windows of a plan as tables in CSV, the same columns in every program of these. Must not write files.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "planner/plan.h"

namespace tarvane {

/// The port as it is called in files: the area's file name, its number there and its name.
struct PlanPort {
    std::string area;
    int number = 0;
    std::string name;
    std::string datum = {};  ///< its letters, "MLLW"; empty when it isn't known
    std::string trust = {};  ///< in one clause, for calendars: a table's columns have no place for it
};

struct PlanColumn {
    const char* name;
    bool isnumber;
};

std::span<const PlanColumn> watercolumns();
std::span<const PlanColumn> windowcolumns();

/// One cell a column: moments in ISO 8601 on the clock, metres and shares with three decimals.
std::vector<std::string> watercells(const PlanPort& port, const PortClock& clock, const PlannedWater& water);
std::vector<std::string> windowcells(const PlanPort& port, const PortClock& clock, const PlannedWindow& window);

/// Whole tables with a line of column names, UTF-8 and LF.
std::string waterscsv(const Plan& plan, const PlanPort& port);
std::string windowscsv(const Plan& plan, const PlannedAccess& access, const PlanPort& port);

}  // namespace tarvane
