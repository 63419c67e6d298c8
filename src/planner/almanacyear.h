// The almanac's last page: the year's springs and neaps, its moons, and how far the port's tides are to be trusted.
// Must not reckon them.
#pragma once

#include "planner/pageparts.h"

namespace tarvane {

void paintalmanacyear(Canvas& canvas, const Area& area, const PagePlan& pages);

/// How good a port's waters are and what they come from, in sentences; says so when nothing is known of it.
std::string trustwords(const std::optional<PortAbout>& about);

}  // namespace tarvane
