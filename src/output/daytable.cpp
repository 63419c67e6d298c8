#include "output/daytable.h"

#include <algorithm>
#include <sstream>

#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// Characters of a line of the day table.
constexpr std::size_t shortline = 22;

}  // namespace

void buildpredictiontext(DayTable& table, const Prediction& prediction, int n, const std::string& portname,
                         const DateOnShow& onshow) {
    std::fill(table.daylines.begin() + 1, table.daylines.begin() + 201, std::string{});
    table.daylines[1] = "Port : " + trim(portname);
    table.daylines[2] = "Date : " + slashdate(onshow.tideday, onshow.tidemonth, onshow.tideyear);
    table.daystide1 = "  Predictions\r\n";
    if (!prediction.defined) {
        table.daylines[4] = nopredictiontext(prediction.whynot);
        table.daylinecount = 5;
        table.daystide1 += std::string("   ") + nopredictionword + "\r\n";
        for (const std::string& row : shortlines(prediction.whynot))
            table.daystide1 += "   " + row + "\r";
        return;
    }
    table.daystide1 += "   (Range " + format(prediction.dayrange, "0.0") + "M)\r\n   Time    Ht.\r\n";
    for (int i = 1; i <= n; ++i) {
        const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
        WaterText& text = table.turningtext[static_cast<std::size_t>(i)];
        text = {timetext(point.time), heighttext(point.height)};
        table.daystide1 += "   " + text.time + "   " + text.height + "\r";
        table.daylines[static_cast<std::size_t>(i) + 3] = text.time + "   " + text.height;
    }
    table.daylinecount = n + 4;
}

std::string nopredictiontext(const std::string& whynot) {
    return std::string(nopredictionword) + ". " + whynot;
}

std::vector<std::string> shortlines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (lines.empty() || lines.back().size() + 1 + word.size() > shortline)
            lines.push_back(word);
        else
            lines.back() += " " + word;
    }
    return lines;
}

std::string slashdate(double day, double month, double year) {
    return numbertext(day) + "/" + numbertext(month) + "/" + numbertext(year);
}

std::string heighttext(double height) {
    return format(height, "#,#0.0;;;");
}

}  // namespace tarvane
