#include "dates/calendar.h"

#include <gtest/gtest.h>

#include <tuple>

#include "dates/dateformats.h"
#include "dates/summertime.h"
#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

// Every day counted up by hand, so that neither the calendar library nor the routines decide what comes next; the
// calendar repeats itself every four hundred years.
TEST(Calendar, EveryDayOfFourHundredYears) {
    const ScriptedLocale locale;
    Date date = makedate(1800, 1, 1);
    int weekday = 3;  // 1 January 1800 is a Wednesday
    for (int year = 1800; year <= 2200; ++year) {
        int daynumber = 0;
        for (int month = 1; month <= 12; ++month) {
            const MonthFacts facts = MonthInfo(locale, year, month);
            ASSERT_EQ(facts.daysinmonth, DaysInMonth(year, month));
            ASSERT_EQ(facts.daysbefore, daynumber) << year << "-" << month;
            ASSERT_EQ(facts.monthname, locale.months[static_cast<std::size_t>(month - 1)]);
            for (int day = 1; day <= facts.daysinmonth; ++day, date += std::chrono::days{1}) {
                ++daynumber;
                ASSERT_EQ(makedate(year, month, day), date);
                ASSERT_EQ(weekdayof(date), weekday);
                weekday = (weekday + 1) % 7;
                DateOnShow onshow;
                setdateonshow(onshow, date);
                ASSERT_EQ(std::tuple(onshow.tideyear, onshow.tidemonth, onshow.tideday, onshow.tidedayofyear),
                          std::tuple(year, month, day, daynumber));
                std::string name;
                double dayofmonth = 0;
                DayOfYearToMonth(locale, year, daynumber, name, dayofmonth);
                ASSERT_EQ(name, facts.monthname) << year << " day " << daynumber;
                ASSERT_EQ(dayofmonth, day) << year << " day " << daynumber;
            }
        }
        ASSERT_EQ(daynumber, isleapyear(year) ? 366 : 365) << year;
    }
    EXPECT_EQ(MonthInfo(locale, 2024, 13).daysinmonth, 0);
}

TEST(Calendar, PartsPastTheirRangeCarryOver) {
    EXPECT_EQ(makedate(2024, 2, 30), makedate(2024, 3, 1));
    EXPECT_EQ(makedate(2024, 3, 0), makedate(2024, 2, 29));
    EXPECT_EQ(makedate(2024, 0, 31), makedate(2023, 12, 31));
    EXPECT_EQ(makedate(2023, 25, 32), makedate(2025, 2, 1));
}

TEST(Calendar, DayOfYearInAnotherLanguage) {
    ScriptedLocale french;
    french.months[1] = "février";
    french.months[2] = "mars";
    french.months[11] = "décembre";
    // A day outside the year, also one between two days, leaves what was there.
    using Row = std::tuple<double, double, const char*, double>;
    for (const auto& [year, dayofyear, expectedname, expectedday] :
         {Row{2023, 365, "December", 31}, Row{2024, 366, "décembre", 31}, Row{2024, 336, "décembre", 1},
          Row{2023, 60, "mars", 1}, Row{2024, 60, "février", 29}, Row{2023, 366, "was", 77}, Row{2024, 367, "was", 77},
          Row{2024, 0, "was", 77}, Row{2023, 31.5, "was", 77}}) {
        std::string name = "was";
        double day = 77;
        DayOfYearToMonth(french, year, dayofyear, name, day);
        EXPECT_EQ(std::pair(name, day), std::pair(std::string(expectedname), expectedday)) << year << " " << dayofyear;
    }
}

TEST(SummerTime, ChangesFallOnTheWeekendOfEveryYear) {
    for (int year = 1583; year <= 4000; ++year) {
        const Date start = SummerStart(static_cast<std::int16_t>(year));
        const Date end = SummerEnd(static_cast<std::int16_t>(year));
        ASSERT_EQ(weekdayof(start), 6) << year;
        ASSERT_EQ(weekdayof(end), 0) << year;
        // The Sunday is the month's last: it is in the month and a week later isn't.
        ASSERT_EQ(monthof(start + std::chrono::days{1}), 3) << year;
        ASSERT_EQ(monthof(start + std::chrono::days{8}), 4) << year;
        ASSERT_EQ(monthof(end), 10) << year;
        ASSERT_EQ(monthof(end + std::chrono::days{7}), 11) << year;
        ASSERT_EQ(yearof(start) + yearof(end), 2 * year);
        ASSERT_EQ(IsSummerDate(start), 0) << year;
        ASSERT_EQ(IsSummerDate(start + std::chrono::days{1}), -1) << year;
        ASSERT_EQ(IsSummerDate(end - std::chrono::days{1}), -1) << year;
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
