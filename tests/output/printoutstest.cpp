#include "output/printouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/scriptedlocale.h"
#include "output/printedpage.h"
#include "sunmoon/sunmonth.h"

namespace tarvane::tests {
namespace {

TEST(ClosingLines, SmallAtTheMarginWithTheTimeLineOfTheMonth) {
    const std::string line = " midnight local time - ", plain = "WITHOUT SUMMER TIME CORRECTION";
    const double rows[] = {0, 1, 3, 4, 5, 7, 8, 9};
    for (int month = 1; month <= 12; ++month)
        for (const std::int16_t summer : {std::int16_t{0}, std::int16_t{-1}}) {
            ScriptedPrinter printer;
            printer.begin("");
            printer.setbold(true);
            printclosinglines(printer, 500, {summer, static_cast<double>(month)}, true);
            const std::vector<Printed> printed = texts(printer);
            ASSERT_EQ(printed.size(), 8U);
            for (std::size_t i = 0; i < printed.size(); ++i)
                EXPECT_TRUE(printed[i].x == 500 && printed[i].y == rows[i] * 7 * 24 && printed[i].size == 7 &&
                            !printed[i].bold)
                    << i;
            const bool inside = month >= 4 && month <= 10;
            EXPECT_EQ(printed[1].text, summer == 0 ? "Times from" + line + plain
                                       : inside    ? "Times are from" + line + "ADJUSTED FOR SUMMER TIME"
                                                   : "Times are from" + line + plain)
                << month;
            EXPECT_EQ(printer.currenty(), closingheight(printer));
            EXPECT_EQ(printer.textheight(), 9 * 24);
        }
}

/// A day whose height is 3 + 2.5 cos over the samples, captions and all.
class DayPrintout : public testing::Test {
  protected:
    DayPrintout() {
        for (std::size_t i = 1; i <= 149; ++i)
            curve.curvesamplescopy[i] = {static_cast<double>(i - 1) / 6,
                                         3 + 2.5 * std::cos(static_cast<double>(i) / 12)};
        settings.currentoutput = 1;
    }

    void shift(double metres) {
        for (TimedValue& sample : curve.curvesamplescopy)
            sample.height += metres;
    }

    /// A page of its own, from the layout asked for.
    void print(void (*layout)(Printer&, const DayPage&), double height = 16118) {
        std::string caption = "  Predictions\r\n   (Range 5.0M)\r\n   Time    Ht.\r\n";
        for (int i = 0; i < turns; ++i)
            caption += "   0" + std::to_string(i % 10) + ":10   3." + std::to_string(i % 10) + "\r";
        printer = ScriptedPrinter{};
        printer.pagewidth = 11186;
        printer.pageheight = height;
        printer.begin("");
        layout(printer, {"Port    : Alder Quay",
                         "Date   : 9 April 2024 (Tuesday)",
                         caption,
                         curve,
                         147,
                         defined,
                         settings,
                         {0, 4}});
    }

    int turns = 4;
    bool defined = true;
    CurveOnShow curve;
    Settings settings;
    ScriptedPrinter printer;
};

TEST_F(DayPrintout, CurveGridAndLabels) {
    shift(-1);  // from -0.5 to 4.5: the limits are -1 and 5
    print(printcurvepage);
    const double width = 0.9 * printer.pagewidth, height = printer.pageheight / 2;
    const auto y = [&](double metres) { return (5 - metres) / 6 * height; };
    const std::vector<Printed> drawn = pieces(printer, ScriptedPrinter::Kind::line);
    ASSERT_GE(drawn.size(), 143U);
    for (std::size_t i = 0; i < 143; ++i) {
        EXPECT_NEAR(drawn[i].x, width * static_cast<double>(i + 1) / 144, 1e-6);
        EXPECT_NEAR(drawn[i].y, y(curve.curvesamplescopy[i + 2].height), 1e-6);
        EXPECT_NEAR(drawn[i].x2, width * static_cast<double>(i + 2) / 144, 1e-6);
        EXPECT_NEAR(drawn[i].y2, y(curve.curvesamplescopy[i + 3].height), 1e-6);
    }
    EXPECT_TRUE(pieces(printer, ScriptedPrinter::Kind::point).empty());
    for (int hour = 0; hour <= 24; hour += 3) {
        const double x = hour / 24.0 * width;
        EXPECT_EQ(std::count_if(drawn.begin() + 143, drawn.end(),
                                [&](const Printed& l) { return l.x == x && l.x2 == x && l.y == 0 && l.y2 == height; }),
                  1);
        if (hour == 0 || hour == 24) continue;
        const Printed label = only(printer, (hour < 10 ? "0" : "") + std::to_string(hour) + ":00");
        EXPECT_GT(label.y, height);
        EXPECT_NEAR((label.x + textend(label)) / 2, x, 1e-6);
    }
    for (int metre = -1; metre <= 5; ++metre) {
        EXPECT_TRUE(std::any_of(drawn.begin() + 143, drawn.end(), [&](const Printed& l) {
            return l.y == y(metre) && l.y2 == l.y && l.x == 0 && l.x2 == width;
        })) << metre;
        const Printed label = only(printer, std::to_string(metre));
        EXPECT_LT(textend(label), 0);
        EXPECT_NEAR(label.y + lineheight(label) / 2, y(metre), 1e-6);
    }
}

TEST_F(DayPrintout, VesselsCurveInDotsInsideTheBox) {
    settings.currentoutput = 3;
    settings.currentdraught = 1;
    settings.currentukc = 0.5;
    print(printcurvepage);
    const std::vector<Printed> dots = pieces(printer, ScriptedPrinter::Kind::point);
    std::size_t inside = 0;
    for (std::size_t i = 2; i <= 145; ++i)
        inside += curve.curvesamplescopy[i].height - 1.5 >= 0;
    EXPECT_EQ(dots.size(), inside);
    EXPECT_LT(inside, 144U) << "the day must run below the vessel's bottom to prove anything";
    for (const Printed& dot : dots)
        EXPECT_TRUE(dot.y >= 0 && dot.y <= printer.pageheight / 2);
}

TEST_F(DayPrintout, NotesOfTheDisplayOptions) {
    const std::string datum = "Heights shown in Metres to Chart Datum", with = "Heights shown in Metres and include:",
                      entered = "Heights shown in Metres and include : User entered depth = 2.5 (Metres)";
    struct Row {
        float option, depth;
        std::string first, second, tenminutes;
    };
    settings.currentdraught = 1.2F;
    settings.currentukc = 0.5F;
    for (const Row& row :
         {Row{1, 2.5F, datum, "", datum}, Row{2, 2.5F, with, "User charted depth = 2.5 (Metres)", entered},
          Row{3, 2.5F, with, "User charted depth = 2.5   Draught = 1.2   Under keel = 0.5 (Metres)", entered},
          Row{3, 0, with, "User charted depth = 0   Draught = 1.2   Under keel = 0.5 (Metres)", datum + "."}}) {
        settings.currentoutput = row.option;
        settings.userdepth = row.depth;
        print(printcurvepage);
        const double line = only(printer, row.first).y;
        if (!row.second.empty()) {
            EXPECT_EQ(only(printer, row.second).y, line);
        }
        print(printtenminutepage);
        EXPECT_EQ(only(printer, row.tenminutes).size, 7);
    }
}

TEST_F(DayPrintout, CurvePagesAreCleanOnBothPapers) {
    for (const double height : {16118.0, 15120.0})
        for (const int rows : {0, 4, 14})
            for (const double metres : {0.0, -4.2, 40.0}) {
                turns = rows;
                shift(metres);
                print(printcurvepage, height);
                expectclean(printer, -printer.pagewidth / 20, -height / 15);
                EXPECT_EQ(printer.pages, 1);
                shift(-metres);
            }
}

TEST_F(DayPrintout, ADayWithoutAPredictionHasNeitherCurveNorHeights) {
    defined = false;
    print(printcurvepage);
    for (const Printed& line : pieces(printer, ScriptedPrinter::Kind::line))
        EXPECT_TRUE(line.x == line.x2 || line.y == line.y2);
    print(printtenminutepage);
    only(printer, "23:50    ");
}

TEST_F(DayPrintout, TenMinuteColumns) {
    print(printtenminutepage, 15120);
    const double m = printer.pagewidth / 7;
    const std::vector<Printed> all = texts(printer);
    ASSERT_GT(all.size(), 150U);
    EXPECT_EQ(all[0].text + all[1].text, "Port    : Alder QuayDate   : 9 April 2024 (Tuesday)");
    for (std::size_t k = 0; k < 4; ++k) {
        const Printed& head = all[2 + 37 * k];
        EXPECT_EQ(head.text, k == 0 ? "Time Height" : "Time  Height");
        EXPECT_DOUBLE_EQ(head.x, m + static_cast<double>(k) * printer.pagewidth / 5);
        EXPECT_DOUBLE_EQ(head.y, k == 0 ? m / 1.5 : m / 2);
        for (std::size_t i = 0; i < 36; ++i) {
            const Printed& row = all[3 + 37 * k + i];
            EXPECT_TRUE(row.x == head.x && head.bold && !row.bold);
            // A blank line behind each hour.
            EXPECT_DOUBLE_EQ(row.y, head.y + static_cast<double>(1 + i + i / 6) * lineheight(row));
        }
    }
    EXPECT_EQ(all[3].text, "00:00    5.5");
    EXPECT_EQ(all[149].text.substr(0, 9), "23:50    ");
    EXPECT_DOUBLE_EQ(all[150].y, all[2].y + (1 + 36 + 6) * 216.0) << "the note stands under the first column";
    expectclean(printer);
}

TEST(SunPrintout, ColumnsOnTabStops) {
    const struct {
        const char* heading;
        double x;
        std::size_t column;
    } columns[] = {
        {"Sunrise", 2160, 4}, {"Sunset", 2880, 5}, {"Civil Twilights", 4320, 3}, {"Nautical Twilights", 6480, 2}};
    ScriptedLocale finnish;
    finnish.shortmonths.fill("marrask.");
    LunarTexts lunar;
    LunarPhases(3, 2024, lunar);
    for (const bool longdates : {false, true}) {
        SunTable table;
        fillsuntable(table, {2024, 3, 0, 0}, {70, 20}, longdates ? finnish : ScriptedLocale{});
        table.titles = {"", "User entry", " 20.00E", " 70.00N"};
        ScriptedPrinter printer;
        printer.begin("");
        printsunpage(printer, table, lunar, {0, 3});
        EXPECT_EQ(only(printer, "User entry\t 70.00N\t 20.00E").y, 2 * 216);
        EXPECT_EQ(only(printer, "Date").x, 720);
        const double firstrow = only(printer, "Date").y + 2 * 216;
        for (const auto& column : columns) {
            const Printed heading = only(printer, column.heading);
            EXPECT_EQ(heading.x, column.x + (longdates ? 720 : 0));
            for (std::size_t day = 1; day <= 31; ++day) {
                const double y = firstrow + static_cast<double>(day - 1) * 216;
                EXPECT_TRUE(std::any_of(printer.printed.begin(), printer.printed.end(),
                                        [&](const Printed& entry) {
                                            return entry.x == heading.x && entry.y == y &&
                                                   entry.text == table.suntext[day][column.column];
                                        }))
                    << column.heading << " " << day;
            }
        }
        const Printed first = only(printer, " " + table.suntext[1][1]), last = only(printer, table.suntext[31][1]);
        EXPECT_EQ(textend(first), textend(last));
        EXPECT_EQ(last.y, firstrow + 30 * 216);
        const Printed phase = only(printer, "   02 Mar 2024       LAST QUARTER ");
        EXPECT_EQ(phase.y, last.y + 4 * 216);
        EXPECT_EQ(only(printer, "   25 Mar 2024       FULL MOON    ").y, phase.y + 3 * 216);
        EXPECT_EQ(texts(printer).back().y, phase.y + 5 * 216 + 2 * 7 * 24);
        expectclean(printer);
    }
}

}  // namespace
}  // namespace tarvane::tests
