// Whether a place is land by the rings of a level, one over the other, without any of what paints them.
#pragma once

#include "world/coast.h"
#include "world/mapview.h"

namespace tarvane::tests {

inline bool inring(const CoastRing& ring, const MapPoint& at) {
    const CoastBox& box = ring.box;
    if (at.x < double(box.left) || at.x > double(box.right) || at.y < double(box.top) || at.y > double(box.bottom))
        return false;
    bool inside = false;
    for (std::size_t i = 1; i < ring.points.size(); ++i) {
        const CoastPoint &from = ring.points[i - 1], &to = ring.points[i];
        if ((double(from.y) > at.y) == (double(to.y) > at.y)) continue;
        inside ^= at.x < double(from.x) + (at.y - double(from.y)) * double(to.x - from.x) / double(to.y - from.y);
    }
    return inside;
}

/// Whichever time round the world the rings are.
inline bool inland(const CoastLevel& level, const MapPoint& point) {
    bool land = false;
    for (const CoastRing& ring : level.rings)
        for (const double turn : {-1, 0, 1})
            if (inring(ring, {point.x + turn, point.y})) land = !ring.lake;
    return land;
}

}  // namespace tarvane::tests
