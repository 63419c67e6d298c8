#include "planner/planfiles.h"

#include <array>

#include "text/csvrows.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr int decimals = 3;

constexpr std::array thewatercolumns{PlanColumn{"port", true},    PlanColumn{"name", false},
                                     PlanColumn{"moment", false}, PlanColumn{"height", true},
                                     PlanColumn{"kind", false},   PlanColumn{"spring_share", true}};

constexpr std::array thewindowcolumns{PlanColumn{"port", true},
                                      PlanColumn{"name", false},
                                      PlanColumn{"opens", false},
                                      PlanColumn{"closes", false},
                                      PlanColumn{"minutes", true},
                                      PlanColumn{"greatest_height", true},
                                      PlanColumn{"daylight_minutes", true},
                                      PlanColumn{"cut", false}};

std::string headline(std::span<const PlanColumn> columns) {
    std::vector<std::string> names;
    for (const PlanColumn& each : columns)
        names.emplace_back(each.name);
    return csvline(names);
}

const char* cutof(const Window& window) {
    if (window.cutatstart && window.cutatend) return "both";
    return window.cutatstart ? "start" : window.cutatend ? "end" : "";
}

}  // namespace

std::span<const PlanColumn> watercolumns() {
    return thewatercolumns;
}

std::span<const PlanColumn> windowcolumns() {
    return thewindowcolumns;
}

std::vector<std::string> watercells(const PlanPort& port, const PortClock& clock, const PlannedWater& water) {
    return {std::to_string(port.number),       port.name,
            isomoment(clock.at(water.moment)), fixed(water.water.height, decimals),
            water.water.high ? "high" : "low", fixed(water.water.springshare, decimals)};
}

std::vector<std::string> windowcells(const PlanPort& port, const PortClock& clock, const PlannedWindow& window) {
    return {std::to_string(port.number),
            port.name,
            isomoment(clock.at(window.opens)),
            isomoment(clock.at(window.closes)),
            std::to_string(window.window.minutes()),
            fixed(window.window.greatestheight, decimals),
            std::to_string(window.window.daylightminutes),
            cutof(window.window)};
}

std::string waterscsv(const Plan& plan, const PlanPort& port) {
    std::string text = headline(thewatercolumns);
    for (const PlannedWater& each : plan.waters())
        text += csvline(watercells(port, plan.clock(), each));
    return text;
}

std::string windowscsv(const Plan& plan, const PlannedAccess& access, const PlanPort& port) {
    std::string text = headline(thewindowcolumns);
    for (const PlannedWindow& each : access.windows)
        text += csvline(windowcells(port, plan.clock(), each));
    return text;
}

}  // namespace tarvane
