// Dawns, sunrise, sunset and dusks of one day and position by a low-precision almanac method in radians with six-figure
// constants. The constants are not to be sharpened: printed times agree to the minute with this arithmetic.
#pragma once

#include <cstdint>

namespace tarvane {

/// The eight events in decimal hours. Exactly 0 marks an event that doesn't happen (while zone and summer shift are 0).
struct SunHours {
    double astrodawn = 0, nautdawn = 0, civildawn = 0, sunrise = 0;
    double sunset = 0, civildusk = 0, nautdusk = 0, astrodusk = 0;
};

/// Given: latitude (-90..90 exclusive) and longitude in degrees, north and east positive; day of the month, month 1 to
/// 12, year; the summer flag, -1 or 0; the zone in hours (zone time is universal time minus it). Returned: the events
/// in zone time.
SunHours SunTimes(double latitude, double longitude, int day, int month, int year, std::int16_t summer,
                  std::int16_t zonehours);

/// One event: hours of universal time, or exactly 0 when it doesn't happen. All angles in radians, west positive.
double SunEvent(double coszenith, double declination, double latrad, double lonrad, double quarter, bool evening,
                double fullcircle, double T, double rightascension, double zoneangle);

}  // namespace tarvane
