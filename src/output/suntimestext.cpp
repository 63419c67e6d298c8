#include "output/suntimestext.h"

#include <array>

#include "output/daytable.h"
#include "portdata/coordinates.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// Of the columns behind the date, in the order of `suntimeorder`.
constexpr std::array<const char*, suntimeorder.size()> headings{"Sunrise",    "Sunset",        "Civil Dawn",
                                                                "Civil Dusk", "Nautical Dawn", "Nautical Dusk"};

}  // namespace

std::string timezonetext(std::int16_t currentsummer) {
    return currentsummer != 0 ? "Time Zone = Summer Time" : "Time Zone = Standard Time";
}

std::string suntimestext(SunTable& table, const SunHeading& heading, int year, int month,
                         const std::string& separator) {
    std::string text = heading.portname + separator + timezonetext(heading.currentsummer) + separator +
                       LatitudeText(heading.portlat) + separator + LongitudeText(heading.portlong) + lineend + "Date";
    for (const char* title : headings)
        text += separator + title;
    text += lineend;
    const int days = DaysInMonth(year, month);
    for (int day = 1; day <= days; ++day) {
        const auto row = static_cast<std::size_t>(day);
        // kept: the table holds this form of the date from now on
        table.suntext[row][suncolumn::date] = slashdate(day, month, year);
        text += table.suntext[row][suncolumn::date];
        // kept: an event that doesn't happen reads as midnight
        for (const std::size_t column : suntimeorder)
            text += separator + clocktext(table.sunvalues[row][column]);
        text += lineend;
    }
    return text;
}

}  // namespace tarvane
