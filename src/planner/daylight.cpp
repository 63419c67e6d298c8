#include "planner/daylight.h"

#include <cmath>
#include <numbers>

#include "sunmoon/suntimes.h"

namespace tarvane {
namespace {

/// The hour nearest to `centre` among those that differ from `hours` by whole days.
double unwrapped(double hours, double centre) {
    return hours + 24 * std::round((centre - hours) / 24);
}

/// Whether the sun stands above `altitude` degrees at midnight, or as good as: of days without a rising and a setting
/// it tells those of light.
bool upatmidnight(double latitude, Date date, double altitude) {
    constexpr double accuracy = 1;  // degrees, of the declination
    const double turn = 2 * std::numbers::pi * (dayofyear(date) + 10) / 365.25;
    const double declination = -23.44 * std::cos(turn);
    return std::abs(latitude + declination) - 90 > altitude - accuracy;
}

struct Events {
    double rise, set;  ///< hours of universal time of the date; 0 for none
    double altitude;   ///< of the sun then, degrees
};

/// One date's light, about the noon of the place. A day of which only one event is told, near midnight, begins or ends
/// an unbroken light: its other end is the midnight beside it. Else the sun hardly rises: the other lies as far on the
/// other side of noon.
void addlight(Stretches& stretches, const Events& events, double latitude, double noon, Date date) {
    constexpr double nearmidnight = 9;  // hours from noon
    const bool rises = events.rise != 0, sets = events.set != 0;
    if (!rises && !sets && !upatmidnight(latitude, date, events.altitude)) return;
    double from = rises ? unwrapped(events.rise, noon - 6) : noon - 12;
    double to = sets ? unwrapped(events.set, noon + 6) : noon + 12;
    if (!sets && rises && from > noon - nearmidnight) to = 2 * noon - from;
    if (!rises && sets && to < noon + nearmidnight) from = 2 * noon - to;
    if (from < to) addstretch(stretches, from, to);
}

}  // namespace

Light lightof(double latitude, double longitude, Date first, int days) {
    Light light;
    // A record that can't be meant may hold any place.
    if (!(std::abs(latitude) <= 90 && std::abs(longitude) <= 360)) return light;
    for (int i = -1; i <= days; ++i) {
        const Date date = first + std::chrono::days(i);
        const SunHours sun = SunTimes(latitude, longitude, dayof(date), monthof(date), yearof(date), 0, 0);
        const double noon = 24 * i + 12 - longitude / 15;
        const double start = 24.0 * i;
        const auto hours = [&](double event) { return event == 0 ? 0 : start + event; };
        addlight(light.day, {hours(sun.sunrise), hours(sun.sunset), -0.83}, latitude, noon, date);
        addlight(light.civil, {hours(sun.civildawn), hours(sun.civildusk), -6}, latitude, noon, date);
    }
    return light;
}

}  // namespace tarvane
