#include "planner/stretches.h"

#include <algorithm>

namespace tarvane {

double sharedhours(const Stretches& stretches, double from, double to) {
    double hours = 0;
    for (const Stretch& each : stretches)
        hours += std::max(0.0, std::min(to, each.to) - std::max(from, each.from));
    return hours;
}

void addstretch(Stretches& stretches, double from, double to) {
    constexpr double touching = 1e-6;
    if (to <= from) return;
    if (!stretches.empty() && from - stretches.back().to < touching)
        stretches.back().to = std::max(stretches.back().to, to);
    else
        stretches.push_back({from, to});
}

}  // namespace tarvane
