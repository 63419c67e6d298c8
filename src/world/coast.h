// The world's coast in several levels of detail, read from the file that ships. Must not paint.
//
// The file, all numbers little endian: "TTCOAST1"; the sum of all that follows (FNV-1a, 32 bits); the grid that its
// coordinates are counted in, four doubles: the longitude and latitude of its origin, its steps in longitude and
// latitude, degrees; then bytes of 7 bits, the lower first, the eighth set in all but a number's last: how many levels,
// and for each from the finest on how far it may lie off the coast, in millionths of the world's width; how many rings;
// and for each ring, a greater one before those within it, twice its number of points, and 1 more for a lake; its
// points, each in steps from the one before, the first from the origin: along longitude and latitude, doubled, negative
// ones doubled and 1 less, their sign turned. A ring's last point is joined to its first. Longitudes go on beyond 180.
// A ring about the pole goes over it at 90 degrees.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace tarvane {

struct CoastPoint {
    float x = 0, y = 0;  ///< as a MapPoint's
};

struct CoastBox {
    float left = 0, top = 0, right = 0, bottom = 0;
};

/// A piece of land, or of a lake in it; the first point stands once more at its end.
struct CoastRing {
    std::vector<CoastPoint> points;
    std::vector<CoastBox> pieces;  ///< about each `coastpiece` lines, in their order
    CoastBox box;
    bool lake = false;
};

inline constexpr std::size_t coastpiece = 32;

struct CoastLevel {
    double tolerance = 0;  ///< how far it may lie off the coast, parts of the world's width
    std::vector<CoastRing> rings;
};

struct Coast {
    std::vector<CoastLevel> levels;  ///< the finest first; none when the file can't be used
    std::string fault;               ///< set: why there is none, a sentence
};

inline constexpr const char* coastfile = "coast.bin";

Coast readcoast(const std::string& programfolder);

/// The same of a file's bytes.
Coast decodecoast(std::span<const std::byte> file);

/// Of what stands behind the sum.
Coast decodelevels(std::span<const std::byte> body);

/// The level to be drawn in a world of so many pixels.
const CoastLevel* coastlevel(const Coast& coast, double scale);

/// A line that is no coast: where land is cut at the date line, or joined to the pole.
bool cutline(const CoastPoint& from, const CoastPoint& to);

}  // namespace tarvane
