#include "output/clipboardtexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "output/printedpage.h"
#include "output/suntimestext.h"
#include "sunmoon/sunmonth.h"
#include "text/timetext.h"

namespace tarvane::tests {
namespace {

TEST(ClipboardTexts, ADaysTides) {
    Prediction prediction;
    prediction.turningpoints[1] = {4 + 4.0 / 6, 5.54};
    prediction.turningpoints[2] = {10 + 5.0 / 6, 0.67};
    DayTable table;
    const DateOnShow april = dateonshow(2024, 4, 9);
    buildpredictiontext(table, prediction, 2, "Round Haven", april);
    const std::string lines = "Port : Round Haven\r\nDate : 9/4/2024\r\n\r\n04:40   5.5\r\n10:50   0.7\r\n\r\n";
    using Row = std::tuple<double, std::int16_t, int, const char*>;
    for (const auto& [lag, option, month, last] :
         {Row{0.5, -1, 4, "(Summer Time)\r\nSprings +1 day\r\n"}, Row{5, -1, 10, "(Summer Time)\r\nNeaps -1days\r\n"},
          Row{14, 0, 7, "(Standard Time)\r\nSprings -1 day\r\n"}, Row{-1, -1, 11, "(Standard Time)\r\n\r\n"}})
        EXPECT_EQ(daystidestext(table, lag, option, dateonshow(2024, month, 9)), lines + last);
    prediction.defined = false;
    prediction.whynot = "A reason as long as that";
    buildpredictiontext(table, prediction, 0, "Round Haven", april);
    EXPECT_TRUE(
        daystidestext(table, 0, 0, april)
            .ends_with("\r\n\r\nNo prediction. A reason as long as that\r\n\r\n(Standard Time)\r\nSprings\r\n"));
    EXPECT_EQ(table.daystide1, "  Predictions\r\n   No prediction\r\n   A reason as long as\r   that\r");
}

TEST(SunTimesText, AMonthInColumns) {
    SunTable table;
    fillsunvalues(table, {2024, 4, -1, 0}, {50.5, -1.25});
    std::string expected = goldenfile("clipboard-sun-april.txt");
    EXPECT_EQ(suntimestext(table, {"Alder Quay", 50.5F, -1.25F, -1}, 2024, 4, "\t"), expected);
    EXPECT_EQ(table.suntext[30][1] + table.suntext[31][1] + table.suntext[30][4], "30/4/2024");
    std::replace(expected.begin(), expected.end(), '\t', ',');
    EXPECT_EQ(suntimestext(table, {"Alder Quay", 50.5F, -1.25F, -1}, 2024, 4, ","), expected);
    // the sun doesn't set: every time reads midnight; the heading is another place's
    fillsunvalues(table, {2024, 6, 0, 0}, {70, 20});
    const std::string june = suntimestext(table, {"Quay", -1, 20, 0}, 2024, 6, ",");
    EXPECT_TRUE(june.starts_with("Quay,Time Zone = Standard Time, 1.00S, 20.00E\r\nDate,Sunrise,")) << june;
    EXPECT_NE(june.find("\r\n21/6/2024,00:00:00,00:00:00,00:00:00,00:00:00,00:00:00,00:00:00\r\n"), std::string::npos);
}

TEST(ClockText, CarriesAndWraps) {
    using Row = std::pair<double, const char*>;
    for (const auto& [hours, text] :
         {Row{3 + 51 / 60.0 + 35 / 3600.0, "03:51:35"}, Row{0.5 / 3600, "00:00:00"}, Row{1.5 / 3600, "00:00:02"},
          Row{9.99999, "10:00:00"}, Row{23.99999, "00:00:00"}, Row{25.2, "01:12:00"}, Row{-0.5, "23:30:00"}})
        EXPECT_EQ(clocktext(hours), text) << hours;
}

}  // namespace
}  // namespace tarvane::tests
