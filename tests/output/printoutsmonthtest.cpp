#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "output/printedpage.h"
#include "output/printouts.h"

namespace tarvane::tests {
namespace {

const char* const complexline = "(Complex predictions - print is unformated)";

/// A month whose first day is weekday `first` (0 Monday), its days named alike as in a language where several begin so;
/// `tides(day)` rows a day, each unlike any other.
template <typename Tides>
std::vector<MonthDay> month(int days, int first, Tides tides) {
    std::vector<MonthDay> all;
    for (int day = 1; day <= days; ++day) {
        const Date date = makedate(2024, 1, first + day);  // 1 January 2024 was a Monday
        all.push_back({date, weekdayof(date), std::to_string(day) + " Mar (Ast)", {}, true, ""});
        for (int j = 0; j < tides(day); ++j)
            all.back().tides.push_back(
                {(day < 10 ? "0" : "") + std::to_string(day) + ":0" + std::to_string(j), "3.21"});
    }
    return all;
}

int fourtides(int) {
    return 4;
}

class MonthPrintout : public testing::Test {
  protected:
    void print(const std::vector<MonthDay>& days, double height = 15120, float depth = 0) {
        printer = ScriptedPrinter{};
        printer.pageheight = height;
        printer.begin("");
        printmonthpages(printer, {days, "Alder Quay", 2026, depth, {0, 3}});
    }

    /// The head of a day that is whole: its rows stand under it.
    Printed wholeday(const MonthDay& day) const {
        const Printed head = only(printer, day.head);
        EXPECT_TRUE(head.bold);
        for (std::size_t j = 0; j < day.tides.size(); ++j) {
            const Printed tide = only(printer, day.tides[j].time + "   " + day.tides[j].height);
            EXPECT_TRUE(tide.x == head.x && tide.page == head.page) << "a day is torn apart: " << day.head;
            EXPECT_EQ(tide.y, head.y + static_cast<double>(j + 1) * 216);
            EXPECT_FALSE(tide.bold);
        }
        return head;
    }

    ScriptedPrinter printer;
};

TEST_F(MonthPrintout, AMonthThatRunsOn) {
    auto days = month(31, 6, fourtides);
    days[1].tides.clear();
    days[1].defined = false;
    days[1].whynot = "Why not";
    print(days, 15120, 2.5F);
    EXPECT_EQ(printer.log(), goldenfile("page-month.txt"));
}

TEST_F(MonthPrintout, EveryMonthShapeOnBothPapers) {
    for (const double height : {16118.0, 15120.0})
        for (int days = 28; days <= 31; ++days)
            for (int first = 0; first < 7; ++first) {
                const auto all = month(days, first, [](int day) { return day % 6; });
                print(all, height);
                expectclean(printer);
                EXPECT_EQ(printer.pages, first + days > 35 ? 2 : 1);
                const auto lines = printer.texts();
                EXPECT_EQ(std::count(lines.begin(), lines.end(), "Year : 2026 - Heights to Chart Datum"),
                          printer.pages);
                std::set<double> tops;
                for (int day = 1; day <= days; ++day) {
                    const int slot = first + day - 1;
                    const Printed head = wholeday(all[static_cast<std::size_t>(day) - 1]);
                    EXPECT_EQ(head.page, slot < 35 ? 1 : 2);
                    EXPECT_DOUBLE_EQ(head.x, printer.pagewidth / 7 * (slot < 35 ? slot / 7 + 1 : 1)) << day;
                    EXPECT_EQ(head.size, 9) << "data rows are in size 9 where they fit";
                    tops.insert(head.y - slot % 7 * 8 * 216.0);
                }
                EXPECT_EQ(tops.size(), 1U) << "all columns start at one height";
            }
}

TEST_F(MonthPrintout, DaysTooFullAreNotSetByWeeks) {
    for (const int most : {5, 6, 13, 14}) {
        for (const double height : {16118.0, 15120.0}) {
            const auto all = month(31, 6, [&](int day) { return day % 3 == 0 || most == 14 ? most : 4; });
            print(all, height);
            expectclean(printer);
            const auto lines = printer.texts();
            EXPECT_EQ(std::count(lines.begin(), lines.end(), complexline), most < 6 ? 0 : printer.pages) << most;
            EXPECT_EQ(printer.pages == 3, most == 14);
            for (const MonthDay& day : all)
                wholeday(day);
        }
    }
}

TEST_F(MonthPrintout, ALowPageGetsSmallerRowsAndAMonthWithoutDaysNone) {
    print(month(31, 6, fourtides), 12000);
    expectclean(printer);
    EXPECT_LT(only(printer, "1 Mar (Ast)").size, 9);
    EXPECT_EQ(only(printer, "1 Mar (Ast)").size, only(printer, "30 Mar (Ast)").size);
    print({});
    EXPECT_TRUE(printer.printed.empty());
}

}  // namespace
}  // namespace tarvane::tests
