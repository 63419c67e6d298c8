#include "sunmoon/sunmonth.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// The events of columns 2 to 7.
constexpr std::size_t firstevent = 2;
constexpr std::array<double SunHours::*, 6> eventcolumns{&SunHours::nautdawn,  &SunHours::civildawn,
                                                         &SunHours::sunrise,   &SunHours::sunset,
                                                         &SunHours::civildusk, &SunHours::nautdusk};

}  // namespace

std::string eventtext(double hours) {
    return hours == 0 ? "None" : timetext(hours);
}

void fillsunvalues(SunTable& table, const SunMonthOnShow& month, SunPosition position) {
    const int days = DaysInMonth(month.year, month.month);
    for (int day = 1; day <= days; ++day) {
        // kept: one summer flag serves the whole month, also the one in which summer time begins or ends
        const SunHours sun = SunTimes(position.latitude, position.longitude, day, month.month, month.year, month.summer,
                                      month.zonehours);
        auto& values = table.sunvalues[static_cast<std::size_t>(day)];
        values[1] = day;
        for (std::size_t i = 0; i < eventcolumns.size(); ++i)
            values[i + firstevent] = sun.*eventcolumns[i];
    }
}

void fillsuntable(SunTable& table, const SunMonthOnShow& month, SunPosition position, const Locale& locale) {
    fillsunvalues(table, month, position);
    const std::string name = locale.monthabbreviation(month.month);
    const int days = DaysInMonth(month.year, month.month);
    for (int day = 1; day <= days; ++day) {
        const auto row = static_cast<std::size_t>(day);
        table.suntext[row][1] = str(day) + name + " " + str(month.year);
        for (std::size_t column = firstevent; column < firstevent + eventcolumns.size(); ++column)
            table.suntext[row][column] = eventtext(table.sunvalues[row][column]);
    }
}

SunDay sundayonshow(const SunTable& table, int day) {
    const auto row = static_cast<std::size_t>(day);
    const auto& text = table.suntext[row];
    const auto& hours = table.sunvalues[row];
    SunDay shown{text[1], text[2], text[3], text[4], text[5], text[6], text[7], {}, {}, {}, {}};
    if (const double daylight = hours[5] - hours[4]; daylight > 0) {
        shown.Label1 = "Daylight hours";
        shown.daylighthours = timetext(daylight);
    }
    if (const double twilight = hours[6] - hours[3]; twilight > 0) {
        shown.Label4 = "incl. civil twilight)";
        shown.twilighthours = "(" + timetext(twilight);
    }
    return shown;
}

int dayfromscroll(int value, int maximum, int daysinmonth) {
    const auto scaled = static_cast<std::int64_t>(daysinmonth) * value / maximum;
    return static_cast<int>(std::clamp<std::int64_t>(scaled, 1, daysinmonth));
}

int scrollfromday(int day, int maximum, int daysinmonth) {
    return static_cast<int>(static_cast<std::int64_t>(maximum) * day / daysinmonth);
}

}  // namespace tarvane
