#include "output/suntimestext.h"

#include <array>

#include "output/daytable.h"
#include "portdata/coordinates.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

struct TextColumn {
    const char* heading;
    std::size_t column;  ///< of the sun table
};

constexpr std::array<TextColumn, 6> textcolumns{
    {{"Sunrise", 4}, {"Sunset", 5}, {"Civil Dawn", 3}, {"Civil Dusk", 6}, {"Nautical Dawn", 2}, {"Nautical Dusk", 7}}};

}  // namespace

std::string timezonetext(std::int16_t currentsummer) {
    return currentsummer != 0 ? "Time Zone = Summer Time" : "Time Zone = Standard Time";
}

std::string suntimestext(SunTable& table, const SunHeading& heading, int year, int month,
                         const std::string& separator) {
    std::string text = heading.portname + separator + timezonetext(heading.currentsummer) + separator +
                       LatitudeText(heading.portlat) + separator + LongitudeText(heading.portlong) + lineend + "Date";
    for (const TextColumn& column : textcolumns)
        text += separator + column.heading;
    text += lineend;
    const int days = DaysInMonth(year, month);
    for (int day = 1; day <= days; ++day) {
        const auto row = static_cast<std::size_t>(day);
        // kept: the table holds this form of the date from now on
        table.suntext[row][1] = slashdate(day, month, year);
        text += table.suntext[row][1];
        // kept: an event that doesn't happen reads as midnight
        for (const TextColumn& column : textcolumns)
            text += separator + clocktext(table.sunvalues[row][column.column]);
        text += lineend;
    }
    return text;
}

}  // namespace tarvane
