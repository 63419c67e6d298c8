#include "sunmoon/sunmonth.h"

#include <gtest/gtest.h>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

SunTable filled(SunPosition position, int year, int month, std::int16_t summer = 0, std::int16_t zone = 0) {
    SunTable table;
    fillsuntable(table, {year, month, summer, zone}, position, ScriptedLocale{});
    return table;
}

std::string row(const SunTable& table, std::size_t day) {
    std::string joined;
    for (std::size_t column = 1; column <= 7; ++column)
        joined += table.suntext[day][column] + "|";
    return joined;
}

TEST(SunMonth, RowsOfKnownDays) {
    const SunTable june = filled({50.9, -1.4}, 2024, 6);
    EXPECT_EQ(row(june, 21), " 21Jun  2024|01:55|03:05|03:52|20:23|21:10|22:20|");
    EXPECT_EQ(june.suntext[1][1], " 1Jun  2024");
    EXPECT_EQ(june.sunvalues[21][1], 21);
    const SunTable december = filled({50.9, -1.4}, 2024, 12);
    EXPECT_EQ(row(december, 21), " 21Dec  2024|06:44|07:27|08:06|16:02|16:42|17:24|");
    EXPECT_EQ(row(filled({0, 0}, 2024, 3), 21), " 21Mar  2024|05:19|05:43|06:04|18:10|18:31|18:55|");
}

TEST(SunMonth, MonthNamesAreTheSystems) {
    ScriptedLocale french;
    french.shortmonths[6] = "juil.";
    SunTable table;
    fillsuntable(table, {2024, 7, 0, 0}, {48, -4}, french);
    EXPECT_EQ(table.suntext[14][1], " 14juil.  2024");
}

TEST(SunMonth, RowsEndWithTheMonth) {
    struct Case {
        int year, month;
        std::size_t days;
    };
    for (const Case& expected : {Case{1900, 2, 28}, Case{2000, 2, 29}, Case{2023, 2, 28}, Case{2024, 2, 29},
                                 Case{2024, 4, 30}, Case{2023, 12, 31}}) {
        const SunTable table = filled({50, 0}, expected.year, expected.month);
        for (std::size_t day = 1; day <= 31; ++day)
            EXPECT_EQ(table.suntext[day][1].empty(), day > expected.days) << expected.year << " day " << day;
    }
}

TEST(SunMonth, AMissingEventReadsNoneAtZoneZeroOnly) {
    EXPECT_EQ(row(filled({70, 20}, 2024, 12), 21), " 21Dec  2024|06:46|08:35|None|None|12:42|14:31|");
    EXPECT_EQ(filled({70, 20}, 2024, 12, -1).suntext[21][4], "01:00");
    EXPECT_EQ(filled({70, 20}, 2024, 12, 0, -1).suntext[21][5], "01:00");
    EXPECT_EQ(filled({70, 20}, 2024, 12, 0, 2).suntext[21][4], "22:00");
}

TEST(SunMonth, LengthOfTheDay) {
    const SunDay summer = sundayonshow(filled({50.9, -1.4}, 2024, 6), 21);
    EXPECT_EQ(summer.risetime, "03:52");
    EXPECT_EQ(summer.settime, "20:23");
    EXPECT_EQ(summer.nautdusk, "22:20");
    EXPECT_EQ(summer.Label1 + " " + summer.daylighthours, "Daylight hours 16:32");
    EXPECT_EQ(summer.twilighthours + " " + summer.Label4, "(18:05 incl. civil twilight)");

    const SunDay polar = sundayonshow(filled({70, 20}, 2024, 12), 21);
    EXPECT_EQ(polar.Label1 + polar.daylighthours, "");
    EXPECT_EQ(polar.twilighthours + " " + polar.Label4, "(04:07 incl. civil twilight)");
    const SunDay midnightsun = sundayonshow(filled({70, 20}, 2024, 6), 21);
    EXPECT_EQ(midnightsun.risetime, "None");
    EXPECT_EQ(midnightsun.Label4 + midnightsun.twilighthours + midnightsun.Label1, "");
}

TEST(SunMonth, ScrollValuesAndDays) {
    for (const int days : {28, 29, 30, 31}) {
        EXPECT_EQ(dayfromscroll(0, 32767, days), 1);
        EXPECT_EQ(dayfromscroll(32767, 32767, days), days);
        for (const int maximum : {days, 44 * days, 97 * days}) {
            int before = 1;
            for (int value = 0; value <= maximum; ++value) {
                const int day = dayfromscroll(value, maximum, days);
                ASSERT_TRUE(day == before || day == before + 1) << value << " of " << maximum;
                before = day;
            }
            for (int day = 1; day <= days; ++day)
                EXPECT_EQ(dayfromscroll(scrollfromday(day, maximum, days), maximum, days), day);
        }
    }
}

}  // namespace
}  // namespace tarvane
