// Distances and bearings over the earth, and how they are told. Must not know ports.
#pragma once

#include <string>

namespace tarvane {

/// Degrees, north and east positive; any number of turns round the earth.
struct EarthPlace {
    double latitude = 0, longitude = 0;
};

/// Along the great circle on a sphere of the earth's mean radius, 6371.009 km, nautical miles of 1852 m: within 0.6 %
/// of what an ellipsoid gives, and to the metre the same from either end.
double milesbetween(EarthPlace from, EarthPlace to);

/// The bearing at `from` of the great circle to `to`, true, degrees from 0 up to 360; 0 where the two are one place.
double bearingof(EarthPlace from, EarthPlace to);

/// "N", "NE" ...: the nearest of eight points.
const char* pointof(double bearing);

/// "12 nm NE", below ten miles "3.4 nm NE", below a twentieth of one "here".
std::string distancetext(EarthPlace from, EarthPlace to);

}  // namespace tarvane
