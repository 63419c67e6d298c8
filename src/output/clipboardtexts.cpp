#include "output/clipboardtexts.h"

#include "engine/springs.h"
#include "output/suntimestext.h"
#include "output/textfiles.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {

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

}  // namespace tarvane
