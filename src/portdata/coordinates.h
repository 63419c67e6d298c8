// Latitudes and longitudes as texts: degrees, minutes and a hemisphere letter, to and from signed decimal degrees.
#pragma once

#include <string>
#include <string_view>

namespace tarvane {

/// How the system writes decimals; it decides the route by which the edit forms are made.
// kept: numbers are written with a point here, so that the route for a comma is taken by no window
enum class DecimalMark { point, comma };

/// "50.45.00N" to 50.75: degrees up to the first ".", minutes from there to the second; what follows is never read.
/// Each "S" (latitude) or "W" (longitude) in the text turns the sign. Never fails; no number reads 0.
double ParseLatitude(std::string_view text);
double ParseLongitude(std::string_view text);

/// Display forms: " 50.45N", " 1.30W"; the degrees keep their leading blank; an exact 0 has no letter.
std::string LatitudeText(double degrees);
std::string LongitudeText(double degrees);

/// Edit forms dd.mm.hhN and ddd.mm.hhE.
std::string LatitudeEditText(double degrees, DecimalMark mark = DecimalMark::point);
std::string LongitudeEditText(double degrees, DecimalMark mark = DecimalMark::point);

}  // namespace tarvane
