// The ports of a map in the order in which they are shown as it comes closer: the more trusted first, and none so near
// another that their marks would lie on each other. Must not paint.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "world/mapview.h"
#include "world/trust.h"
#include "world/worldports.h"

namespace tarvane {

struct MapPort {
    std::size_t place = 0;  ///< in `World::ports`
    MapPoint point;
    Trust trust = Trust::unknown;
    int depth = 0;  ///< from this one on it is shown
};

inline constexpr int deepestmap = 17;  ///< here every port is shown

/// By depth. Of ports that are as good those of the area with this path come first: several areas may have one port.
std::vector<MapPort> mapports(const World& world, const std::string& first = "");

/// A depth shows ports that are a 2^depth'th of the world's width apart: 16 units of the canvas or more.
int depthof(const MapView& view);

/// The one of those shown that is nearest to a place, within a click's reach of it; `inhand` is always shown. Its place
/// in `ports`.
std::optional<std::size_t> hitport(const std::vector<MapPort>& ports, const MapView& view, Place place,
                                   std::optional<std::size_t> inhand);

/// Those shown within the picture, the nearest to its middle first. Places in `ports`.
std::vector<std::size_t> portsfrommiddle(const std::vector<MapPort>& ports, const MapView& view);

}  // namespace tarvane
