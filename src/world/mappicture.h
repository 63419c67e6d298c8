// The picture of a map: land, its coast, the lines of latitude and longitude, the ports by their marks of trust, names
// as far as there is room, a scale. Must not choose what is shown.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "world/coast.h"
#include "world/mapports.h"

namespace tarvane {

struct MapPicture {
    const Coast& coast;
    const World& world;
    const std::vector<MapPort>& ports;
    MapView view;
    const Colours& look;
    double textsize = 12;
    std::optional<std::size_t> inhand = {};  ///< in `World::ports`
};

void paintmap(Canvas& canvas, const MapPicture& picture);

/// Of a port that is pointed at, a place in `ports`: a ring about its mark and what it is.
void paintpointed(Canvas& canvas, const MapPicture& picture, std::size_t pointed);

/// "Falmouth", "UK", "close".
std::vector<std::string> porttexts(const World& world, const MapPort& port);

/// "50°30'N", "4°W": degrees, and minutes where they aren't whole.
std::string latitudetext(double degrees);
std::string longitudetext(double degrees);

}  // namespace tarvane
