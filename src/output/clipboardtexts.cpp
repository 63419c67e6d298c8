#include "output/clipboardtexts.h"

#include <array>

#include "engine/springs.h"
#include "output/textfiles.h"
#include "portdata/coordinates.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

const char* const lineend = "\r\n";

/// The whole month's option, whatever the date.
std::string timezonetext(std::int16_t currentsummer) {
    return currentsummer != 0 ? "Time Zone = Summer Time" : "Time Zone = Standard Time";
}

std::string slashdate(double day, double month, double year) {
    return numbertext(day) + "/" + numbertext(month) + "/" + numbertext(year);
}

/// The hours of a day in the columns 2 to 7 of the sun table.
constexpr std::array<double SunHours::*, 6> tablecolumns{&SunHours::nautdawn,  &SunHours::civildawn,
                                                         &SunHours::sunrise,   &SunHours::sunset,
                                                         &SunHours::civildusk, &SunHours::nautdusk};

struct TextColumn {
    const char* heading;
    double SunHours::*hours;
};

constexpr std::array<TextColumn, 6> textcolumns{{{"Sunrise", &SunHours::sunrise},
                                                 {"Sunset", &SunHours::sunset},
                                                 {"Civil Dawn", &SunHours::civildawn},
                                                 {"Civil Dusk", &SunHours::civildusk},
                                                 {"Nautical Dawn", &SunHours::nautdawn},
                                                 {"Nautical Dusk", &SunHours::nautdusk}}};

}  // namespace

std::string daystidestext(const DayTable& table, double springslag, std::int16_t currentsummer,
                          const DateOnShow& onshow) {
    std::string text;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(table.daylinecount); ++i)
        text += table.daylines[i] + lineend;
    text += std::string("(") + timeofmonth(currentsummer, onshow) + ")" + lineend;
    return text + springstext(springslag) + lineend;
}

std::string monthstidestext(const MonthTable& table, std::int16_t currentsummer, const DateOnShow& onshow) {
    std::string text;
    for (std::size_t i = 0; i < table.monthcolumn1.size(); ++i)
        text += trim(table.monthcolumn1[i]) + "\t" + trim(table.monthcolumn2[i]) + lineend;
    return text + "Times are for :\t" + timeofmonth(currentsummer, onshow) + lineend;
}

std::string dayssuntext(DayTable& table, const std::string& portname, const SunHours& sun, std::int16_t currentsummer,
                        const DateOnShow& onshow) {
    // kept: the day table's own lines change, the first with a line end in it, and stay so until the day is refreshed
    table.daylines[1] = "Port : " + portname + "\t" + timezonetext(currentsummer) + lineend;
    table.daylines[2] = "Date : " + slashdate(onshow.tideday, onshow.tidemonth, onshow.tideyear);
    table.daylines[3].clear();
    return table.daylines[1] + lineend + table.daylines[2] + lineend + lineend + "Sunrise : " + clocktext(sun.sunrise) +
           lineend + "Sunset  : " + clocktext(sun.sunset) + lineend;
}

std::string monthssuntext(SunTable& table, const SunMonth& month, const DateOnShow& onshow) {
    std::string text = month.portname + "\t" + timezonetext(month.currentsummer) + "\t" +
                       LatitudeText(month.port.PortLat) + "\t" + LongitudeText(month.port.PortLong) + lineend + "Date";
    for (const TextColumn& column : textcolumns)
        text += std::string("\t") + column.heading;
    text += lineend;
    clearsuntable(table);
    const int year = static_cast<int>(onshow.tideyear), number = static_cast<int>(onshow.tidemonth);
    const int days = DaysInMonth(year, number);
    for (int d = 1; d <= days; ++d) {
        const auto row = static_cast<std::size_t>(d);
        const SunHours sun =
            SunTimes(month.port.PortLat, month.port.PortLong, d, number, year, month.shift, month.zonehours);
        // kept: only the dates go into the table's texts, the times into its values alone
        table.suntext[row][1] = slashdate(d, number, year);
        table.sunvalues[row][1] = d;
        for (std::size_t i = 0; i < tablecolumns.size(); ++i)
            table.sunvalues[row][i + 2] = sun.*tablecolumns[i];
        text += table.suntext[row][1];
        for (const TextColumn& column : textcolumns)
            text += "\t" + clocktext(sun.*column.hours);
        text += lineend;
    }
    return text;
}

}  // namespace tarvane
