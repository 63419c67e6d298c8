#include "sunmoon/suntimes.h"

#include <cmath>

namespace tarvane {

namespace {

// Radians throughout; the six figures are the method's.
constexpr double degreetoradian = 0.0174533;
constexpr double quartercircle = 1.5708;
constexpr double halfcircle = 3.14159;
constexpr double threequarters = 4.71239;
constexpr double wholecircle = 6.28319;
constexpr double secondofarc = 0.00000484814;
constexpr double radianstohours = 3.81972;

// Cosines of the zenith distance: 90 degrees 50 minutes, 96, 102 and 108 degrees.
constexpr double riseandset = -0.0145439;
constexpr double civil = -0.104528;
constexpr double nautical = -0.207912;
constexpr double astronomical = -0.309017;

struct SolarPosition {
    bool evening = false;
    double T = 0;  ///< days of the year
    double rightascension = 0;
    double declination = 0;
};

double wrapcircle(double angle, double circle) {
    // Only a position far off the globe gets here; the loops below would not end on it.
    if (!(std::abs(angle) < 1e6)) angle = std::fmod(angle, circle);
    while (angle < 0)
        angle += circle;
    while (angle >= circle)
        angle -= circle;
    return angle;
}

int daynumber(int day, int month, int year) {
    int K = (month + 9) / 12;
    // kept: every multiple of four counts as a leap year here, 1900 and 2100 included
    if (year % 4 != 0) K = 2 * K;
    return 275 * month / 9 + day - K - 30;
}

SolarPosition position(int N, double lonrad, bool evening) {
    SolarPosition sun;
    sun.evening = evening;
    sun.T = N + (lonrad + (evening ? threequarters : quartercircle)) / wholecircle;
    const double M = 0.017202 * sun.T - 0.0574039;
    double L = wrapcircle(M + 0.0334405 * std::sin(M) + 0.000349066 * std::sin(2 * M) + 4.93289, wholecircle);
    const double quadrants = L / quartercircle;
    if (quadrants == std::floor(quadrants)) L += secondofarc;

    sun.rightascension = std::atan(0.91746 * std::tan(L));
    if (L > threequarters) {
        sun.rightascension += wholecircle;
    } else if (L > quartercircle) {
        sun.rightascension += halfcircle;
    }
    const double x = 0.39782 * std::sin(L);
    sun.declination = std::atan(x / std::sqrt(1 - x * x));
    return sun;
}

/// Universal time to zone time, and the summer hour.
double zoned(double hours, std::int16_t zonehours, std::int16_t summer) {
    // kept: the 0 of a missing event goes through this like any time, so the mark survives only without zone and summer
    hours -= zonehours;
    if (hours > 24) hours -= 24;
    if (hours < 0) hours += 24;
    // kept: no wrap after the summer hour, so a late event can read 24 or more
    if (summer == -1) hours += 1;
    return hours;
}

}  // namespace

double SunEvent(double coszenith, double declination, double latrad, double lonrad, double quarter, bool evening,
                double fullcircle, double T, double rightascension, double zoneangle) {
    const double c =
        (coszenith - std::sin(declination) * std::sin(latrad)) / (std::cos(declination) * std::cos(latrad));
    if (std::abs(c) > 1) return 0;
    double H = 0;
    if (std::abs(c) == 1) {
        H = c > 0 ? 0 : halfcircle;
    } else {
        H = quarter - std::atan(c / std::sqrt(1 - c * c));
    }
    if (!evening) H = fullcircle - H;
    const double t = rightascension + H - 0.0172028 * T - 1.73364;
    return radianstohours * wrapcircle(t + lonrad - zoneangle, fullcircle);
}

SunHours SunTimes(double latitude, double longitude, int day, int month, int year, std::int16_t summer,
                  std::int16_t zonehours) {
    const double latrad = degreetoradian * latitude;
    const double lonrad = -(degreetoradian * longitude);
    const int N = daynumber(day, month, year);
    const SolarPosition morning = position(N, lonrad, false);
    const SolarPosition evening = position(N, lonrad, true);

    const auto event = [&](const SolarPosition& sun, double coszenith) {
        const double hours = SunEvent(coszenith, sun.declination, latrad, lonrad, quartercircle, sun.evening,
                                      wholecircle, sun.T, sun.rightascension, 0);
        return zoned(hours, zonehours, summer);
    };
    SunHours hours;
    hours.astrodawn = event(morning, astronomical);
    hours.nautdawn = event(morning, nautical);
    hours.civildawn = event(morning, civil);
    hours.sunrise = event(morning, riseandset);
    hours.sunset = event(evening, riseandset);
    hours.civildusk = event(evening, civil);
    hours.nautdusk = event(evening, nautical);
    hours.astrodusk = event(evening, astronomical);
    return hours;
}

}  // namespace tarvane
