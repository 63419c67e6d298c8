#include "dates/summertime.h"

#include <gtest/gtest.h>

namespace tarvane {
namespace {

using std::chrono::days;

TEST(SummerTime, ChangesFallOnTheWeekendOfEveryYear) {
    for (int year = 1583; year <= 4000; ++year) {
        const Date start = SummerStart(static_cast<std::int16_t>(year));
        const Date end = SummerEnd(static_cast<std::int16_t>(year));
        ASSERT_EQ(weekdayof(start), 6) << year;
        ASSERT_EQ(weekdayof(end), 0) << year;
        // The Sunday is the month's last: it is in the month and a week later isn't.
        ASSERT_EQ(yearof(start), year);
        ASSERT_EQ(monthof(start + days{1}), 3) << year;
        ASSERT_EQ(monthof(start + days{8}), 4) << year;
        ASSERT_EQ(yearof(end), year);
        ASSERT_EQ(monthof(end), 10) << year;
        ASSERT_EQ(monthof(end + days{7}), 11) << year;
        ASSERT_EQ(IsSummerDate(start), 0) << year;
        ASSERT_EQ(IsSummerDate(start + days{1}), -1) << year;
        ASSERT_EQ(IsSummerDate(end - days{1}), -1) << year;
        ASSERT_EQ(IsSummerDate(end), 0) << year;
    }
}

TEST(SummerTime, KnownYears) {
    EXPECT_EQ(SummerStart(2024), makedate(2024, 3, 30));
    EXPECT_EQ(SummerEnd(2024), makedate(2024, 10, 27));
    EXPECT_EQ(SummerStart(2018), makedate(2018, 3, 24));  // last Sunday on 25 March, the earliest
    EXPECT_EQ(SummerEnd(2020), makedate(2020, 10, 25));
    EXPECT_EQ(SummerEnd(2021), makedate(2021, 10, 31));  // the latest
}

TEST(SummerTime, ShiftAndCorrectionLine) {
    const std::string adjusted = "Times are from midnight local time - ADJUSTED FOR SUMMER TIME";
    const std::string uncorrected = "Times are from midnight local time - WITHOUT SUMMER TIME CORRECTION";
    const std::string off = "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION";
    struct Row {
        int month, day;
        std::int16_t summer;
        const std::string& lineifshifted;
    };
    for (const Row& row :
         {Row{1, 1, 0, uncorrected}, Row{3, 30, 0, uncorrected}, Row{3, 31, -1, adjusted}, Row{7, 15, -1, adjusted},
          Row{10, 26, -1, adjusted}, Row{10, 27, 0, uncorrected}, Row{12, 31, 0, uncorrected}}) {
        const Date date = makedate(2024, row.month, row.day);
        EXPECT_EQ(IsSummerDate(date), row.summer) << row.month << "-" << row.day;
        EXPECT_EQ(summershift(date, -1), row.summer);
        EXPECT_EQ(summershift(date, 1), row.summer) << "any number but 0 is on";
        EXPECT_EQ(summershift(date, 0), 0);
        EXPECT_EQ(correctionline(-1, date), row.lineifshifted);
        EXPECT_EQ(correctionline(0, date), off);
    }
}

}  // namespace
}  // namespace tarvane
