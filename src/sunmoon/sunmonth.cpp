#include "sunmoon/sunmonth.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

struct EventColumn {
    suncolumn::Number column;
    double SunHours::*hours;
};

constexpr std::array<EventColumn, 6> eventcolumns{{{suncolumn::nautdawn, &SunHours::nautdawn},
                                                   {suncolumn::civildawn, &SunHours::civildawn},
                                                   {suncolumn::sunrise, &SunHours::sunrise},
                                                   {suncolumn::sunset, &SunHours::sunset},
                                                   {suncolumn::civildusk, &SunHours::civildusk},
                                                   {suncolumn::nautdusk, &SunHours::nautdusk}}};

}  // namespace

std::string eventtext(double hours) {
    return hours == 0 ? "None" : timetext(hours);
}

void fillsunvalues(SunTable& table, const SunMonthOnShow& month, SunPosition position) {
    table.year = month.year;
    table.month = month.month;
    const int days = DaysInMonth(month.year, month.month);
    for (int day = 1; day <= days; ++day) {
        // kept: one summer flag serves the whole month, also the one in which summer time begins or ends
        const SunHours sun = SunTimes(position.latitude, position.longitude, day, month.month, month.year, month.summer,
                                      month.zonehours);
        auto& values = table.sunvalues[static_cast<std::size_t>(day)];
        values[suncolumn::date] = day;
        for (const EventColumn& event : eventcolumns)
            values[event.column] = sun.*event.hours;
    }
}

void fillsuntable(SunTable& table, const SunMonthOnShow& month, SunPosition position, const Locale& locale) {
    fillsunvalues(table, month, position);
    const std::string name = locale.monthabbreviation(month.month);
    const int days = DaysInMonth(month.year, month.month);
    for (int day = 1; day <= days; ++day) {
        const auto row = static_cast<std::size_t>(day);
        table.suntext[row][suncolumn::date] = str(day) + name + " " + str(month.year);
        for (const EventColumn& event : eventcolumns)
            table.suntext[row][event.column] = eventtext(table.sunvalues[row][event.column]);
    }
}

SunDay sundayonshow(const SunTable& table, int day) {
    const auto row = static_cast<std::size_t>(day);
    const auto& text = table.suntext[row];
    const auto& hours = table.sunvalues[row];
    using namespace suncolumn;
    SunDay shown{.risedate = text[date],
                 .nautdawn = text[nautdawn],
                 .civildawn = text[civildawn],
                 .risetime = text[sunrise],
                 .settime = text[sunset],
                 .civildusk = text[civildusk],
                 .nautdusk = text[nautdusk],
                 .Label1 = {},
                 .daylighthours = {},
                 .Label4 = {},
                 .twilighthours = {}};
    if (const double daylight = hours[sunset] - hours[sunrise]; daylight > 0) {
        shown.Label1 = "Daylight hours";
        shown.daylighthours = timetext(daylight);
    }
    if (const double twilight = hours[civildusk] - hours[civildawn]; twilight > 0) {
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
