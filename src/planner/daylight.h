// Light and dark over a span at a place: from sunrise to sunset, and with civil twilight. Must not know tides.
#pragma once

#include <vector>

#include "dates/calendar.h"
#include "planner/stretches.h"

namespace tarvane {

struct Light {
    Stretches day;    ///< the sun is up
    Stretches civil;  ///< the sun is up, or less than 6 degrees down
};

/// Hours of universal time from 00:00 of `first`, over the `days` days from it and what daylight reaches into them.
/// Degrees, north and east positive. Where the sun doesn't rise or set on a day its noon tells which. Accurate to some
/// minutes, as the sun's times are. None for a place that isn't on the globe.
Light lightof(double latitude, double longitude, Date first, int days);

}  // namespace tarvane
