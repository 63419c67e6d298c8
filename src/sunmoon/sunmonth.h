// A month's sun times for a position, and what the sun and moon view shows of one of its days. Must not read position
// texts or show anything.
#pragma once

#include <cstdint>
#include <string>

#include "platform/locale.h"
#include "sunmoon/suntable.h"

namespace tarvane {

/// A position in degrees, north and east positive.
struct SunPosition {
    double latitude = 0;   ///< -90 to 90, both excluded
    double longitude = 0;  ///< -180 to 180, both excluded
};

/// The month that a table is filled for.
struct SunMonthOnShow {
    int year = 0;
    int month = 0;               ///< 1 to 12
    std::int16_t summer = 0;     ///< -1 or 0, the same for all days
    std::int16_t zonehours = 0;  ///< of the current port, also for a position that was typed
};

/// "hh:mm", or "None" for exactly 0, which marks an event that doesn't happen.
std::string eventtext(double hours);

/// Fills the hours of the month's days and their numbers; texts, titles and later rows stay.
void fillsunvalues(SunTable& table, const SunMonthOnShow& month, SunPosition position);

/// Fills the rows of the month's days; titles and later rows stay. Dates read as " 5Nov  2026", the month's short name
/// in the system's language.
void fillsuntable(SunTable& table, const SunMonthOnShow& month, SunPosition position, const Locale& locale);

/// One day as the result window shows it; labels and hours are blank where there is no daylight or twilight to tell.
struct SunDay {
    std::string risedate, nautdawn, civildawn, risetime, settime, civildusk, nautdusk;
    std::string Label1, daylighthours;  ///< "Daylight hours", "hh:mm"
    std::string Label4, twilighthours;  ///< "incl. civil twilight)", "(hh:mm"
};

/// `day` from 1 to 31.
SunDay sundayonshow(const SunTable& table, int day);

/// The day that a scroll bar's value stands for: from 1, value 0 being day 1. `maximum` above 0.
int dayfromscroll(int value, int maximum, int daysinmonth);

/// The value that a day stands at.
int scrollfromday(int day, int maximum, int daysinmonth);

}  // namespace tarvane
