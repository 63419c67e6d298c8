#include "dates/calendar.h"

#include <gtest/gtest.h>

#include "dates/dateformats.h"
#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::year_month_day;

constexpr int firstyear = 1;
constexpr int lastyear = 4000;

// Every day counted up by hand, so that neither the calendar library nor the routines decide what comes next.
TEST(Calendar, EveryDayOfFourThousandYears) {
    const ScriptedLocale locale;
    Date date = makedate(firstyear, 1, 1);
    int weekday = 1;  // 1 January of the year 1 is a Monday
    for (int year = firstyear; year <= lastyear; ++year) {
        int daynumber = 0;
        for (int month = 1; month <= 12; ++month) {
            const MonthFacts facts = MonthInfo(locale, year, month);
            const year_month_day last = std::chrono::year{year} / month / std::chrono::last;
            ASSERT_EQ(facts.daysinmonth, static_cast<int>(static_cast<unsigned>(last.day()))) << year << "-" << month;
            ASSERT_EQ(facts.daysinmonth, DaysInMonth(year, month));
            ASSERT_EQ(facts.daysbefore, daynumber) << year << "-" << month;
            ASSERT_EQ(facts.monthname, locale.months[static_cast<std::size_t>(month - 1)]);
            for (int day = 1; day <= facts.daysinmonth; ++day, date += days{1}, weekday = (weekday + 1) % 7) {
                ++daynumber;
                ASSERT_EQ(makedate(year, month, day), date);
                ASSERT_EQ(weekdayof(date), weekday);
                DateOnShow onshow;
                setdateonshow(onshow, date);
                ASSERT_EQ(onshow.tidedate, date);
                ASSERT_EQ(onshow.tideyear * 10000 + onshow.tidemonth * 100 + onshow.tideday,
                          year * 10000 + month * 100 + day);
                ASSERT_EQ(onshow.tidedayofyear, daynumber);
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
    struct Row {
        int year, month, day;
        const char* expected;
    };
    for (const Row& row :
         {Row{2023, 13, 1, "2024-01-01"}, Row{2024, 2, 30, "2024-03-01"}, Row{2024, 3, 0, "2024-02-29"},
          Row{2024, 0, 31, "2023-12-31"}, Row{2023, 25, 32, "2025-02-01"}}) {
        EXPECT_EQ(formatdate(ScriptedLocale{}, makedate(row.year, row.month, row.day), "yyyy-mm-dd"), row.expected);
    }
}

TEST(Calendar, DayOfYearInAnotherLanguage) {
    ScriptedLocale french;
    french.months[1] = "février";
    french.months[2] = "mars";
    french.months[11] = "décembre";
    struct Row {
        double year, dayofyear;
        const char* name;
        double day;
    };
    // A day outside the year, also one between two days, leaves what was there.
    for (const Row& row :
         {Row{2023, 365, "December", 31}, Row{2024, 366, "décembre", 31}, Row{2024, 336, "décembre", 1},
          Row{2023, 335, "December", 1}, Row{2023, 60, "mars", 1}, Row{2024, 60, "février", 29},
          Row{1900, 60, "mars", 1}, Row{2023, 366, "was", 77}, Row{2024, 367, "was", 77}, Row{2024, 0, "was", 77},
          Row{2024, -5, "was", 77}, Row{2023, 31.5, "was", 77}}) {
        std::string name = "was";
        double day = 77;
        DayOfYearToMonth(french, row.year, row.dayofyear, name, day);
        EXPECT_EQ(name, row.name) << row.year << " day " << row.dayofyear;
        EXPECT_EQ(day, row.day) << row.year << " day " << row.dayofyear;
    }
}

}  // namespace
}  // namespace tarvane
