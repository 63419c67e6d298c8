#include "world/greatcircle.h"

#include <array>
#include <cmath>
#include <numbers>

#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr double earthradius = 6371.009 / 1.852;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

/// What both routines turn on: where the second place lies, seen with the first in front and north above.
struct Seen {
    double ahead, east, north;
};

Seen seenfrom(EarthPlace from, EarthPlace to) {
    const double here = radians(from.latitude), there = radians(to.latitude);
    const double apart = radians(to.longitude - from.longitude);
    return {std::sin(here) * std::sin(there) + std::cos(here) * std::cos(there) * std::cos(apart),
            std::cos(there) * std::sin(apart),
            std::cos(here) * std::sin(there) - std::sin(here) * std::cos(there) * std::cos(apart)};
}

}  // namespace

double milesbetween(EarthPlace from, EarthPlace to) {
    // An arc cosine would lose the small distances, an arc sine those to the other side of the earth.
    const Seen seen = seenfrom(from, to);
    return earthradius * std::atan2(std::hypot(seen.east, seen.north), seen.ahead);
}

double bearingof(EarthPlace from, EarthPlace to) {
    const Seen seen = seenfrom(from, to);
    if (seen.east == 0 && seen.north == 0) return 0;
    const double degrees = std::atan2(seen.east, seen.north) * 180 / std::numbers::pi;
    // A hair west of north would round up to the full circle.
    return degrees < 0 ? std::fmod(degrees + 360, 360) : degrees;
}

const char* pointof(double bearing) {
    constexpr std::array points{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    const double eighths = std::round(bearing / 45);
    return points[static_cast<std::size_t>(eighths - 8 * std::floor(eighths / 8))];
}

std::string distancetext(EarthPlace from, EarthPlace to) {
    constexpr double nothing = 0.05, tenthsbelow = 9.95;
    const double miles = milesbetween(from, to);
    if (miles < nothing) return "here";
    return fixed(miles, miles < tenthsbelow ? 1 : 0) + " nm " + pointof(bearingof(from, to));
}

}  // namespace tarvane
