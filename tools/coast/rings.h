// Rings of land as a TopoJSON has them, made whole again where it cut them at the date line, and simplified. Must not
// know how they are stored.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <vector>

namespace tarvane::makecoast {

/// Steps of a grid.
struct GridPoint {
    std::int64_t x = 0, y = 0;
    bool operator==(const GridPoint&) const = default;
};

struct Grid {
    double longitude = 0, latitude = 0, eaststep = 0, northstep = 0;  ///< degrees
    std::int64_t round = 0;                                           ///< steps once round the world
};

struct Ring {
    std::vector<GridPoint> points;  ///< the first isn't repeated; longitudes go on over the date line
    bool lake = false;
};

struct Land {
    Grid grid;
    std::vector<Ring> rings;  ///< the greatest first
};

/// Of the object "land" of a quantized TopoJSON. Throws what the JSON library throws, and std::runtime_error for one
/// that isn't quantized or doesn't go once round the world.
Land readland(const nlohmann::json& topology);

/// With no point farther off than a part of the projected world's width. What is smaller than that is left out.
std::vector<Ring> simplified(const Land& land, double tolerance);

}  // namespace tarvane::makecoast
