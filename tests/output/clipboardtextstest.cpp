#include "output/clipboardtexts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "output/goldenfile.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

DateOnShow dateonshow(int year, int month, int day) {
    DateOnShow onshow;
    setdateonshow(onshow, makedate(year, month, day));
    return onshow;
}

TEST(ClipboardTexts, ADaysTides) {
    Prediction prediction;
    prediction.turningpoints[1] = {4 + 4.0 / 6, 5.54};
    prediction.turningpoints[2] = {10 + 5.0 / 6, 0.67};
    DayTable table;
    const DateOnShow april = dateonshow(2024, 4, 9);
    buildpredictiontext(table, prediction, 2, "Round Haven", april);
    const std::string lines = "Port : Round Haven\r\nDate : 9/4/2024\r\n\r\n04:40   5.5\r\n10:50   0.7\r\n\r\n";
    struct Row {
        double lag;
        std::int16_t option;
        int month;
        const char* last;
    };
    for (const Row& row :
         {Row{0.5, -1, 4, "(Summer Time)\r\nSprings +1 day\r\n"}, Row{5, -1, 10, "(Summer Time)\r\nNeaps -1days\r\n"},
          Row{0, -1, 1, "(Standard Time)\r\nSprings\r\n"}, Row{14, 0, 7, "(Standard Time)\r\nSprings -1 day\r\n"},
          Row{-1, -1, 11, "(Standard Time)\r\n\r\n"}, Row{14.5, 0, 4, "(Standard Time)\r\n\r\n"}})
        EXPECT_EQ(daystidestext(table, row.lag, row.option, dateonshow(2024, row.month, 9)), lines + row.last);
}

TEST(ClipboardTexts, AMonthsTides) {
    MonthTable table;
    table.monthcolumn1 = {" Fécamp ", "", "1 Apr"};
    table.monthcolumn2 = {"avril 2024", " ", " (Mon)"};
    const std::string rows = "Fécamp\tavril 2024\r\n\t\r\n1 Apr\t(Mon)\r\nTimes are for :\t";
    EXPECT_EQ(monthstidestext(table, -1, dateonshow(2024, 10, 1)), rows + "Summer Time\r\n");
    EXPECT_EQ(monthstidestext(table, -1, dateonshow(2024, 11, 1)), rows + "Standard Time\r\n");
    EXPECT_EQ(monthstidestext(table, 0, dateonshow(2024, 7, 1)), rows + "Standard Time\r\n");
}

TEST(ClipboardTexts, ADaysSunStaysInTheDayTable) {
    DayTable table;
    table.daylines[1] = "old";
    table.daylines[3] = "old";
    table.daylines[4] = "04:40   5.5";
    table.daylinecount = 5;
    SunHours sun;
    sun.sunrise = 8.999999;
    sun.sunset = 24.2625;
    const DateOnShow january = dateonshow(2024, 1, 9);
    EXPECT_EQ(dayssuntext(table, "Quay ", sun, -1, january),
              "Port : Quay \tTime Zone = Summer Time\r\n\r\nDate : 9/1/2024\r\n\r\n"
              "Sunrise : 09:00:00\r\nSunset  : 00:15:45\r\n");
    EXPECT_EQ(daystidestext(table, 0, -1, january),
              "Port : Quay \tTime Zone = Summer Time\r\n\r\nDate : 9/1/2024\r\n\r\n04:40   5.5\r\n\r\n"
              "(Standard Time)\r\nSprings\r\n");
    EXPECT_EQ(dayssuntext(table, "Quay", {}, 0, january),
              "Port : Quay\tTime Zone = Standard Time\r\n\r\nDate : 9/1/2024\r\n\r\n"
              "Sunrise : 00:00:00\r\nSunset  : 00:00:00\r\n");
}

SunMonth sunmonth(float latitude, float longitude) {
    SunMonth month;
    month.portname = "Alder Quay";
    month.port.PortLat = latitude;
    month.port.PortLong = longitude;
    return month;
}

TEST(ClipboardTexts, AMonthsSun) {
    SunMonth month = sunmonth(50.5F, -1.25F);
    month.shift = month.currentsummer = -1;
    SunTable table;
    table.suntext[31][7] = "left over";
    table.titles[1] = "left over";
    const std::string golden = tests::goldenfile("clipboard-sun-april.txt");
    ASSERT_FALSE(golden.empty());
    EXPECT_EQ(monthssuntext(table, month, dateonshow(2024, 4, 9)), golden);
    EXPECT_EQ(table.suntext[30][1], "30/4/2024");
    EXPECT_EQ(table.suntext[30][4] + table.suntext[31][1] + table.suntext[31][7] + table.titles[1], "");
    EXPECT_EQ(table.sunvalues[30][1], 30);
    const double* day = table.sunvalues[30].data();
    EXPECT_TRUE(std::is_sorted(day + 2, day + 8));
    EXPECT_EQ(table.sunvalues[31][1], 0);
    for (std::size_t d = 1; d <= 30; ++d)
        EXPECT_NE(golden.find(clocktext(table.sunvalues[d][4])), std::string::npos);
}

TEST(ClipboardTexts, ASunThatDoesNotRiseReadsMidnight) {
    SunTable table;
    const std::string text = monthssuntext(table, sunmonth(70, 20), dateonshow(2024, 2, 1));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + 29);
    EXPECT_NE(text.find("\r\n29/2/2024\t0"), std::string::npos);
    const std::string june = monthssuntext(table, sunmonth(70, 20), dateonshow(2024, 6, 1));
    EXPECT_NE(june.find("\r\n21/6/2024\t00:00:00\t00:00:00\t00:00:00\t00:00:00\t00:00:00\t00:00:00\r\n"),
              std::string::npos);
    EXPECT_TRUE(june.starts_with("Alder Quay\tTime Zone = Standard Time\t 70.00N\t 20.00E\r\nDate\tSunrise"));
}

TEST(ClockText, CarriesAndWraps) {
    struct Row {
        double hours;
        const char* text;
    };
    for (const Row& row :
         {Row{0, "00:00:00"}, Row{3 + 51 / 60.0 + 35 / 3600.0, "03:51:35"}, Row{0.5 / 3600, "00:00:00"},
          Row{1.5 / 3600, "00:00:02"}, Row{9.99999, "10:00:00"}, Row{23.99999, "00:00:00"}, Row{24, "00:00:00"},
          Row{25.2, "01:12:00"}, Row{-0.5, "23:30:00"}})
        EXPECT_EQ(clocktext(row.hours), row.text) << row.hours;
}

}  // namespace
}  // namespace tarvane
