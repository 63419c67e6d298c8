#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "fakes/scriptedlocale.h"
#include "output/goldenfile.h"
#include "output/printedpage.h"
#include "output/printouts.h"

namespace tarvane::tests {
namespace {

const char* const weekdays[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
const char* const complexline = "(Complex predictions - print is unformated)";

/// The rows of a month's list whose first day is weekday `first` (0 Monday); `rows(day)` tides a day, each row unlike
/// any other. `timerow` as in the months that have one.
template <typename Rows>
std::vector<std::string> monthlist(int days, int first, Rows rows, bool timerow = true) {
    std::vector<std::string> list{" Months", "Prediction ", "Alder Quay", "3/2026"};
    if (timerow) list.emplace_back("(Standard Times)");
    for (int day = 1; day <= days; ++day) {
        list.emplace_back("  ");
        list.push_back(std::to_string(day) + " Mar (" + weekdays[(first + day - 1) % 7] + ")");
        for (int j = 0; j < rows(day); ++j)
            list.push_back((day < 10 ? "0" : "") + std::to_string(day) + ":0" + std::to_string(j) + "   3.21");
    }
    return list;
}

int fourrows(int) {
    return 4;
}

class MonthPrintout : public testing::Test {
  protected:
    void print(const std::vector<std::string>& list, double height = 15120, float depth = 0) {
        printer = ScriptedPrinter{};
        printer.pagewidth = 11186;
        printer.pageheight = height;
        printer.begin("");
        printmonthpages(printer, {list, "Alder Quay", 2026, depth, {0, 3}}, locale);
    }

    double column(int week) const { return printer.pagewidth / 7 * week; }

    ScriptedLocale locale;
    ScriptedPrinter printer;
};

TEST_F(MonthPrintout, AMonthThatRunsOn) {
    print(monthlist(31, 6, fourrows), 15120, 2.5F);
    EXPECT_EQ(pagelog(printer), goldenfile("page-month.txt"));
}

TEST_F(MonthPrintout, EveryMonthShapeOnBothPapers) {
    for (const double height : {16118.0, 15120.0})
        for (int days = 28; days <= 31; ++days)
            for (int first = 0; first < 7; ++first) {
                const auto list = monthlist(
                    days, first, [](int day) { return day % 6; }, first != 3);
                print(list, height);
                expectclean(printer);
                EXPECT_EQ(printer.pages, first + days > 35 ? 2 : 1);
                const auto all = printer.texts();
                EXPECT_EQ(std::count(all.begin(), all.end(), "Year : 2026 - Heights to Chart Datum"), printer.pages);
                std::set<double> tops;
                for (int day = 1; day <= days; ++day) {
                    const int slot = first + day - 1;
                    const Printed head = only(printer, std::to_string(day) + " Mar (" + weekdays[slot % 7] + ")");
                    EXPECT_EQ(head.page, slot < 35 ? 1 : 2);
                    EXPECT_DOUBLE_EQ(head.x, column(slot < 35 ? slot / 7 + 1 : 1)) << day;
                    EXPECT_TRUE(head.bold);
                    EXPECT_EQ(head.size, 9) << "data rows are in size 9 where they fit";
                    tops.insert(head.y - slot % 7 * 8 * 216.0);
                    if (day % 6 > 0) {
                        const std::string tide = (day < 10 ? "0" : "") + std::to_string(day) + ":00   3.21";
                        EXPECT_EQ(only(printer, tide).y, head.y + 216);
                        EXPECT_FALSE(only(printer, tide).bold);
                    }
                }
                EXPECT_EQ(tops.size(), 1U) << "all columns start at one height";
            }
}

TEST_F(MonthPrintout, DaysTooFullAreNotSetByWeeks) {
    for (const int most : {5, 6, 13, 14}) {
        for (const double height : {16118.0, 15120.0}) {
            const auto list = monthlist(31, 6, [&](int day) { return day % 3 == 0 || most == 14 ? most : 4; });
            print(list, height);
            expectclean(printer);
            const auto all = printer.texts();
            EXPECT_EQ(std::count(all.begin(), all.end(), complexline), most < 6 ? 0 : printer.pages) << most;
            EXPECT_EQ(printer.pages == 3, most == 14);
            for (std::size_t i = 5, below = 0; i < list.size(); ++i) {
                if (list[i] == "  ") continue;
                below = list[i].ends_with(")") ? i : below;
                const Printed row = only(printer, list[i]), head = only(printer, list[below]);
                EXPECT_TRUE(row.x == head.x && row.page == head.page) << "a day is torn apart: " << list[i];
                EXPECT_EQ(row.y, head.y + static_cast<double>(i - below) * 216);
            }
        }
    }
}

TEST_F(MonthPrintout, ALowPageGetsSmallerRows) {
    const auto list = monthlist(31, 6, fourrows);
    print(list, 12000);
    expectclean(printer);
    EXPECT_LT(only(printer, "1 Mar (Sun)").size, 9);
    EXPECT_EQ(only(printer, "1 Mar (Sun)").size, only(printer, "30 Mar (Mon)").size);
}

TEST_F(MonthPrintout, DayNamesOfAnotherLanguage) {
    locale.days = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
    std::vector<std::string> list = monthlist(31, 2, fourrows);
    for (std::string& row : list)
        if (const auto at = row.find("(Wed)"); at != std::string::npos) row.replace(at, 5, "(Mit)");
    print(list);
    EXPECT_EQ(only(printer, "1 Mar (Mit)").y, only(printer, "6 Mar (Mon)").y + 16 * 216);
}

TEST_F(MonthPrintout, AListWithoutDaysPrintsNothing) {
    print({" Months", "Prediction ", "Alder Quay", "3/2026"});
    EXPECT_TRUE(printer.printed.empty());
}

}  // namespace
}  // namespace tarvane::tests
