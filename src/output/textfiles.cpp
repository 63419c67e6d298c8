#include "output/textfiles.h"

#include <filesystem>

#include "dates/summertime.h"
#include "output/daytable.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr std::size_t samplesofday = 144;

std::string captions(const std::string& portbox, const std::string& tidedatebox) {
    return portbox + lineend + tidedatebox + lineend;
}

}  // namespace

std::string monthfilename(const std::string& portname, const DateOnShow& onshow) {
    return trim(portname) + "_" + englishmonth(static_cast<int>(onshow.tidemonth)) + "_" + numbertext(onshow.tideyear);
}

std::string tableseparator(const std::string& path) {
    const std::string title = std::filesystem::path(path).filename().string();
    return title.find(".csv") != std::string::npos ? "," : "\t";
}

const char* timeofmonth(std::int16_t currentsummer, const DateOnShow& onshow) {
    // kept: it goes by the month's number, not by the shift that the heights were computed with
    return currentsummer != 0 && issummermonth(onshow.tidemonth) ? "Summer Time" : "Standard Time";
}

std::string monthfile(const MonthTable& table, const std::string& separator, std::int16_t currentsummer,
                      const DateOnShow& onshow) {
    std::string text;
    for (std::size_t i = 0; i < table.monthcolumn1.size(); ++i)
        text += table.monthcolumn1[i] + separator + table.monthcolumn2[i] + lineend;
    const std::string timesarefor = "Times are for :" + separator;
    if (currentsummer == 0) {
        text += timesarefor + "Standard Time";
    } else if (separator == ",") {
        // kept: with commas and the summer option on the line tells summer time in every month
        text += timesarefor + "Summer Time";
    } else {
        text += timeofmonth(currentsummer, onshow);
    }
    return tosinglebyte(text + lineend);
}

std::string dayfile(const CurveOnShow& curve, const std::string& portbox, const std::string& tidedatebox) {
    std::string text = captions(portbox, tidedatebox);
    for (std::size_t i = 1; i <= samplesofday; ++i) {
        const TimedValue& sample = curve.curvesamplescopy[i];
        text += "\t" + timetext(sample.time) + "\t" + format(sample.height, "#,##0.00;;;") + lineend;
    }
    return tosinglebyte(text);
}

std::string undefineddayfile(const std::string& whynot, const std::string& portbox, const std::string& tidedatebox) {
    return tosinglebyte(captions(portbox, tidedatebox) + nopredictiontext(whynot) + lineend);
}

std::string sunfile(const SunTable& table) {
    // kept: the titles stand in the order port, latitude, longitude; the headings stand a column right of their times,
    // and the two twilights have one heading each
    std::string text = "\t" + table.titles[1] + "\t" + table.titles[3] + "\t" + table.titles[2] + lineend;
    text += std::string("\tDate\t\tSunrise\tSunset\tCivil Twilights\tNautical Twilights") + lineend;
    const auto days = static_cast<std::size_t>(daysofsuntable(table));
    for (std::size_t day = 1; day <= days; ++day) {
        text += "\t" + table.suntext[day][suncolumn::date];
        for (const std::size_t column : suntimeorder)
            text += "\t" + table.suntext[day][column];
        text += lineend;
    }
    return tosinglebyte(text);
}

}  // namespace tarvane
