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
        ASSERT_EQ(monthof(start + days{1}), 3) << year;
        ASSERT_EQ(monthof(start + days{8}), 4) << year;
        ASSERT_EQ(monthof(end), 10) << year;
        ASSERT_EQ(monthof(end + days{7}), 11) << year;
        ASSERT_EQ(yearof(start) + yearof(end), 2 * year);
        ASSERT_EQ(IsSummerDate(start), 0) << year;
        ASSERT_EQ(IsSummerDate(start + days{1}), -1) << year;
        ASSERT_EQ(IsSummerDate(end - days{1}), -1) << year;
        ASSERT_EQ(IsSummerDate(end), 0) << year;
    }
    EXPECT_EQ(SummerStart(2024), makedate(2024, 3, 30));
    EXPECT_EQ(SummerEnd(2024), makedate(2024, 10, 27));
}

TEST(SummerTime, ShiftAndCorrectionLine) {
    const std::string adjusted = "Times are from midnight local time - ADJUSTED FOR SUMMER TIME";
    const std::string uncorrected = "Times are from midnight local time - WITHOUT SUMMER TIME CORRECTION";
    for (const auto& [date, summer] : {std::pair{makedate(2024, 3, 30), 0}, std::pair{makedate(2024, 7, 15), -1}}) {
        EXPECT_EQ(summershift(date, -1), summer);
        EXPECT_EQ(summershift(date, 1), summer) << "any number but 0 is on";
        EXPECT_EQ(summershift(date, 0), 0);
        EXPECT_EQ(correctionline(-1, date), summer ? adjusted : uncorrected);
        EXPECT_EQ(correctionline(0, date), "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION");
    }
}

}  // namespace
}  // namespace tarvane
