#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "fakes/scriptedlocale.h"
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

    /// Every row of the days is printed once, wherever.
    void expectcomplete(const std::vector<std::string>& list) {
        for (std::size_t i = 5; i < list.size(); ++i)
            if (list[i] != "  ") only(printer, list[i]);
    }

    ScriptedLocale locale;
    ScriptedPrinter printer;
};

TEST_F(MonthPrintout, TitleRowsAndClosingLinesAroundTheWeeks) {
    print(monthlist(28, 0, fourrows));
    const Printed title = only(printer, "Port : Alder Quay  Tarvane Tides Months Predictions");
    const Printed second = only(printer, "Year : 2026 - Heights to Chart Datum");
    for (const Printed& row : {title, second}) {
        EXPECT_DOUBLE_EQ(row.x, column(1));
        EXPECT_TRUE(row.bold);
        EXPECT_EQ(row.size, 9);
    }
    EXPECT_EQ(second.y, title.y + 216);
    EXPECT_EQ(only(printer, "All data are derived and should therefore be considered as approximate").y,
              only(printer, "1 Mar (Mon)").y + 56 * 216);
    print(monthlist(28, 0, fourrows), 15120, 2.5F);
    only(printer, "Year : 2026 - Heights include user charted depth of 2.5 Metres");
}

TEST_F(MonthPrintout, AMonthThatRunsOnRepeatsTitleAndClosingLines) {
    const auto list = monthlist(31, 6, fourrows);
    print(list);
    expectcomplete(list);
    EXPECT_FALSE(only(printer, "31:03   3.21").bold);
    for (const char* repeated : {"Port : Alder Quay  Tarvane Tides Months Predictions",
                                 "All data are derived and should therefore be considered as approximate"})
        for (const int page : {1, 2})
            EXPECT_EQ(std::count_if(printer.printed.begin(), printer.printed.end(),
                                    [&](const Printed& entry) { return entry.page == page && entry.text == repeated; }),
                      1);
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
    for (const int most : {5, 6, 9, 13}) {
        for (const double height : {16118.0, 15120.0}) {
            const auto list = monthlist(31, 6, [&](int day) { return day % 3 == 0 ? most : 4; });
            print(list, height);
            expectcomplete(list);
            expectclean(printer);
            const auto all = printer.texts();
            EXPECT_EQ(std::count(all.begin(), all.end(), complexline), most < 6 ? 0 : printer.pages) << most;
        }
    }
}

TEST_F(MonthPrintout, TheFullestMonthTakesMorePages) {
    const auto list = monthlist(31, 0, [](int) { return 14; });
    print(list);
    expectcomplete(list);
    expectclean(printer);
    EXPECT_EQ(printer.pages, 3);
    // No day is torn apart between columns.
    for (int day = 1; day <= 31; ++day) {
        const Printed head = only(printer, std::to_string(day) + " Mar (" + weekdays[(day - 1) % 7] + ")");
        const Printed last = only(printer, (day < 10 ? "0" : "") + std::to_string(day) + ":013   3.21");
        EXPECT_EQ(last.x, head.x);
        EXPECT_EQ(last.y, head.y + 14 * 216) << day;
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
