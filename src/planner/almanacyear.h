// The almanac's last page: the year's springs and neaps, its moons, and how far the port's tides are to be trusted.
// Must not reckon them.
#pragma once

#include "planner/pageparts.h"

namespace tarvane {

void paintalmanacyear(Canvas& canvas, const Area& area, const PagePlan& pages);

}  // namespace tarvane
