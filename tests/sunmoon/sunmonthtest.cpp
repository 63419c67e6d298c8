#include "sunmoon/sunmonth.h"

#include <gtest/gtest.h>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

SunTable filled(SunPosition position, int year, int month, std::int16_t summer = 0, std::int16_t zone = 0) {
    SunTable table;
    ScriptedLocale french;
    french.shortmonths[6] = "juil.";
    fillsuntable(table, {year, month, summer, zone}, position, french);
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
    EXPECT_EQ(filled({48, -4}, 2024, 7).suntext[1][1], " 1juil.  2024") << "the system's name of the month";
    for (const auto& [year, days] : {std::pair{1900, 28U}, std::pair{2000, 29U}, std::pair{2023, 28U}})
        for (std::size_t day = 1; day <= 31; ++day)
            EXPECT_EQ(filled({50, 0}, year, 2).suntext[day][1].empty(), day > days) << year << " day " << day;
}

TEST(SunMonth, AMissingEventReadsNoneAtZoneZeroOnly) {
    EXPECT_EQ(row(filled({70, 20}, 2024, 12), 21), " 21Dec  2024|06:46|08:35|None|None|12:42|14:31|");
    EXPECT_EQ(filled({70, 20}, 2024, 12, -1).suntext[21][4], "01:00");
    EXPECT_EQ(filled({70, 20}, 2024, 12, 0, -1).suntext[21][5], "01:00");
    EXPECT_EQ(filled({70, 20}, 2024, 12, 0, 2).suntext[21][4], "22:00");
}

TEST(SunMonth, LengthOfTheDay) {
    const auto lengths = [](SunPosition position, int month) {
        const SunDay day = sundayonshow(filled(position, 2024, month), 21);
        return day.risetime + " " + day.Label1 + day.daylighthours + day.twilighthours + day.Label4;
    };
    EXPECT_EQ(lengths({50.9, -1.4}, 6), "03:52 Daylight hours16:32(18:05incl. civil twilight)");
    EXPECT_EQ(lengths({70, 20}, 12), "None (04:07incl. civil twilight)");
    EXPECT_EQ(lengths({70, 20}, 6), "None ");
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
