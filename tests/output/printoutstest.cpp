#include "output/printouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/scriptedlocale.h"
#include "output/printedpage.h"
#include "sunmoon/sunmonth.h"

namespace tarvane::tests {
namespace {

const char* const offline = "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION";
const char* const onoutside = "Times are from midnight local time - WITHOUT SUMMER TIME CORRECTION";
const char* const oninside = "Times are from midnight local time - ADJUSTED FOR SUMMER TIME";

TEST(ClosingLines, TheTimeLineGoesByTheMonthAlone) {
    for (int month = 1; month <= 12; ++month)
        for (const std::int16_t summer : {std::int16_t{0}, std::int16_t{-1}}) {
            ScriptedPrinter printer;
            printer.begin("");
            printclosinglines(printer, 500, {summer, static_cast<double>(month)}, false);
            const bool inside = month >= 4 && month <= 10;
            EXPECT_EQ(texts(printer)[1].text, summer == 0 ? offline : inside ? oninside : onoutside) << month;
            EXPECT_EQ(texts(printer).size(), 3U);
        }
}

TEST(ClosingLines, SmallAtTheMarginWithGapsAroundTheNotices) {
    ScriptedPrinter printer;
    printer.begin("");
    printer.setbold(true);
    printclosinglines(printer, 500, {0, 1}, true);
    const std::vector<Printed> lines = texts(printer);
    ASSERT_EQ(lines.size(), 8U);
    const double expected[] = {0, 1, 3, 4, 5, 7, 8, 9};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].x, 500);
        EXPECT_EQ(lines[i].y, expected[i] * 7 * 24);
        EXPECT_EQ(lines[i].size, 7);
        EXPECT_FALSE(lines[i].bold);
    }
    EXPECT_EQ(lines[0].text, "All data are derived and should therefore be considered as approximate");
    EXPECT_EQ(std::count(lines[7].text.begin(), lines[7].text.end(), '\t'), 1);
    EXPECT_EQ(printer.currenty(), closingheight(printer));
    EXPECT_EQ(printer.textheight(), 9 * 24);
}

/// A day whose height is 3 + 2.5 cos over the samples, captions and all.
class DayPrintout : public testing::Test {
  protected:
    DayPrintout() {
        for (std::size_t i = 1; i <= 149; ++i)
            curve.curvesamplescopy[i] = {static_cast<double>(i - 1) / 6,
                                         level + 2.5 * std::cos(static_cast<double>(i) / 12)};
        settings.currentoutput = 1;
    }

    DayPage page() const {
        return {"Port    : Alder Quay",
                "Date   : 9 April 2024 (Tuesday)",
                caption(turns),
                curve,
                147,
                defined,
                settings,
                {0, 4}};
    }

    static std::string caption(int rows) {
        std::string text = "  Predictions\r\n   (Range 5.0M)\r\n   Time    Ht.\r\n";
        for (int i = 0; i < rows; ++i)
            text += "   0" + std::to_string(i % 10) + ":10   3." + std::to_string(i % 10) + "\r";
        return text;
    }

    void shift(double metres) {
        for (TimedValue& sample : curve.curvesamplescopy)
            sample.height += metres;
    }

    void printcurve() {
        printer.begin("");
        printcurvepage(printer, page());
    }

    void printten() {
        printer.begin("");
        printtenminutepage(printer, page());
    }

    std::vector<Printed> lines() const { return pieces(printer, ScriptedPrinter::Kind::line); }
    double left() const { return -printer.pagewidth / 20; }
    double top() const { return -printer.pageheight / 15; }

    double level = 3;
    int turns = 4;
    bool defined = true;
    CurveOnShow curve;
    Settings settings;
    ScriptedPrinter printer;
};

TEST_F(DayPrintout, CurveRunsFromTheSecondSampleToTheEndOfTheDay) {
    printcurve();
    const double width = 0.9 * printer.pagewidth, height = printer.pageheight / 2;
    const std::vector<Printed> drawn = lines();
    ASSERT_GE(drawn.size(), 143U);
    const auto y = [&](std::size_t i) { return (6 - curve.curvesamplescopy[i].height) / 6 * height; };
    EXPECT_NEAR(drawn[0].x, width / 144, 1e-6);
    EXPECT_NEAR(drawn[0].y, y(2), 1e-6);
    EXPECT_NEAR(drawn[142].x2, width, 1e-6);
    EXPECT_NEAR(drawn[142].y2, y(145), 1e-6);
    for (std::size_t i = 1; i < 143; ++i) {
        EXPECT_EQ(drawn[i].x, drawn[i - 1].x2);
        EXPECT_EQ(drawn[i].y, drawn[i - 1].y2);
    }
    EXPECT_TRUE(pieces(printer, ScriptedPrinter::Kind::point).empty());
}

TEST_F(DayPrintout, GridAndLabels) {
    shift(-1);  // from -0.5 to 4.5: the limits are -1 and 5
    printcurve();
    const double width = 0.9 * printer.pagewidth, height = printer.pageheight / 2;
    std::vector<double> upright, flat;
    for (const Printed& line : lines()) {
        if (line.x == line.x2 && line.y == 0 && line.y2 == height) upright.push_back(line.x);
        if (line.y == line.y2 && line.x == 0 && line.x2 == width) flat.push_back(line.y);
    }
    for (int hour = 0; hour <= 24; hour += 3)
        EXPECT_EQ(std::count(upright.begin(), upright.end(), hour / 24.0 * width), 1) << hour;
    for (int metre = -1; metre <= 5; ++metre) {
        EXPECT_GE(std::count(flat.begin(), flat.end(), (5 - metre) / 6.0 * height), 1) << metre;
        const Printed label = only(printer, std::to_string(metre));
        EXPECT_LT(textend(label), 0);
        EXPECT_NEAR(label.y + lineheight(label) / 2, (5 - metre) / 6.0 * height, 1e-6);
    }
    for (int hour = 3; hour <= 21; hour += 3) {
        const Printed label = only(printer, (hour < 10 ? "0" : "") + std::to_string(hour) + ":00");
        EXPECT_GT(label.y, height);
        EXPECT_NEAR((label.x + textend(label)) / 2, hour / 24.0 * width, 1e-6);
    }
    EXPECT_TRUE(only(printer, "Metres").bold);
    EXPECT_EQ(only(printer, "Metres").size, 9);
}

TEST_F(DayPrintout, VesselsCurveInDotsInsideTheBox) {
    settings.currentoutput = 3;
    settings.currentdraught = 1;
    settings.currentukc = 0.5;
    printcurve();
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
    struct Case {
        float option;
        std::string first, second;
        std::string tenminutes;
    };
    settings.currentdraught = 1.2F;
    settings.currentukc = 0.5F;
    settings.userdepth = 2.5F;
    const std::string with = "Heights shown in Metres and include:";
    const std::string entered = "Heights shown in Metres and include : User entered depth = 2.5 (Metres)";
    for (const Case& row :
         {Case{1, "Heights shown in Metres to Chart Datum", "", "Heights shown in Metres to Chart Datum"},
          Case{2, with, "User charted depth = 2.5 (Metres)", entered},
          Case{3, with, "User charted depth = 2.5   Draught = 1.2   Under keel = 0.5 (Metres)", entered}}) {
        settings.currentoutput = row.option;
        printer.printed.clear();
        printcurve();
        const Printed note = only(printer, row.first);
        EXPECT_FALSE(note.bold);
        if (!row.second.empty()) {
            EXPECT_EQ(only(printer, row.second).y, note.y);
        }
        printer.printed.clear();
        printten();
        EXPECT_EQ(only(printer, row.tenminutes).size, 7);
    }
    settings.userdepth = 0;
    printer.printed.clear();
    printten();
    only(printer, "Heights shown in Metres to Chart Datum.");
}

TEST_F(DayPrintout, CurvePagesAreCleanOnBothPapers) {
    for (const double height : {16118.0, 15120.0})
        for (const int rows : {0, 4, 14})
            for (const double metres : {0.0, -4.2, 9.0, 40.0}) {
                printer = ScriptedPrinter{};
                printer.pagewidth = 11186;
                printer.pageheight = height;
                turns = rows;
                shift(metres);
                printcurve();
                expectclean(printer, left(), top());
                EXPECT_EQ(printer.pages, 1);
                EXPECT_EQ(only(printer, "Port    : Alder Quay").x, 0);
                EXPECT_TRUE(only(printer, "Port    : Alder Quay").bold);
                shift(-metres);
            }
}

TEST_F(DayPrintout, ADayWithoutAPredictionHasNeitherCurveNorHeights) {
    defined = false;
    printcurve();
    for (const Printed& line : lines())
        EXPECT_TRUE(line.x == line.x2 || line.y == line.y2);
    printer.printed.clear();
    printten();
    EXPECT_EQ(only(printer, "23:50    ").size, 9);
}

TEST_F(DayPrintout, TenMinuteColumns) {
    printten();
    const double m = printer.pagewidth / 7;
    std::vector<Printed> heads, rows;
    for (const Printed& entry : texts(printer)) {
        if (entry.text == "Time Height" || entry.text == "Time  Height") heads.push_back(entry);
        if (entry.text.size() > 8 && entry.text.substr(5, 4) == "    ") rows.push_back(entry);
    }
    ASSERT_EQ(heads.size(), 4U);
    ASSERT_EQ(rows.size(), 144U);
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_EQ(heads[k].text, k == 0 ? "Time Height" : "Time  Height");
        EXPECT_TRUE(heads[k].bold);
        EXPECT_DOUBLE_EQ(heads[k].x, m + static_cast<double>(k) * printer.pagewidth / 5);
        EXPECT_DOUBLE_EQ(heads[k].y, k == 0 ? m / 1.5 : m / 2);
        for (std::size_t i = 0; i < 36; ++i) {
            const Printed& row = rows[36 * k + i];
            EXPECT_DOUBLE_EQ(row.x, heads[k].x);
            // A blank line behind each hour.
            EXPECT_DOUBLE_EQ(row.y, heads[k].y + static_cast<double>(1 + i + i / 6) * lineheight(row));
            EXPECT_FALSE(row.bold);
        }
    }
    EXPECT_EQ(rows[0].text, "00:00    5.5");
    EXPECT_EQ(rows[36].text.substr(0, 5), "06:00");
    EXPECT_EQ(rows[143].text.substr(0, 5), "23:50");
    const Printed note = only(printer, "Heights shown in Metres to Chart Datum");
    EXPECT_DOUBLE_EQ(note.y, heads[0].y + (1 + 36 + 6) * 216.0);
    EXPECT_DOUBLE_EQ(note.x, m);
    EXPECT_TRUE(only(printer, "Date   : 9 April 2024 (Tuesday)").bold);
    expectclean(printer);
}

class SunPrintout : public testing::Test {
  protected:
    SunPrintout() {
        fillsuntable(table, {2024, 3, 0, 0}, {70, 20}, ScriptedLocale{});
        table.titles = {"", "User entry", " 20.00E", " 70.00N"};
        LunarPhases(3, 2024, lunar);
        printer.begin("");
    }

    SunTable table;
    LunarTexts lunar;
    ScriptedPrinter printer;
};

TEST_F(SunPrintout, ColumnsOnTabStops) {
    printsunpage(printer, table, lunar, {0, 3});
    EXPECT_EQ(only(printer, "User entry\t 70.00N\t 20.00E").y, 2 * 216);
    const struct {
        const char* heading;
        double x;
        std::size_t column;
    } columns[] = {
        {"Sunrise", 2160, 4}, {"Sunset", 2880, 5}, {"Civil Twilights", 4320, 3}, {"Nautical Twilights", 6480, 2}};
    const double firstrow = only(printer, "Date").y + 2 * 216;
    for (const auto& column : columns) {
        EXPECT_EQ(only(printer, column.heading).x, column.x);
        EXPECT_TRUE(only(printer, column.heading).bold);
        for (std::size_t day = 1; day <= 31; ++day) {
            const auto found = std::find_if(printer.printed.begin(), printer.printed.end(), [&](const Printed& entry) {
                return entry.x == column.x && entry.y == firstrow + static_cast<double>(day - 1) * 216;
            });
            ASSERT_NE(found, printer.printed.end()) << column.heading << " " << day;
            EXPECT_EQ(found->text, table.suntext[day][column.column]);
            EXPECT_FALSE(found->bold);
        }
    }
    const Printed first = only(printer, "  1Mar  2024"), last = only(printer, " 31Mar  2024");
    EXPECT_EQ(textend(first), textend(last));
    EXPECT_EQ(last.y, firstrow + 30 * 216);
    const Printed phase = only(printer, "   02 Mar 2024       LAST QUARTER ");
    EXPECT_EQ(phase.x, 720);
    EXPECT_EQ(phase.y, last.y + 4 * 216);
    EXPECT_EQ(only(printer, "   25 Mar 2024       FULL MOON    ").y, phase.y + 3 * 216);
    EXPECT_EQ(texts(printer).back().y, phase.y + 5 * 216 + 2 * 7 * 24);
    expectclean(printer);
}

TEST_F(SunPrintout, LongDatesPushTheColumns) {
    ScriptedLocale finnish;
    finnish.shortmonths.fill("marrask.");
    fillsuntable(table, {2024, 3, 0, 0}, {70, 20}, finnish);
    printsunpage(printer, table, lunar, {0, 3});
    EXPECT_EQ(only(printer, "Date").x, 720);
    EXPECT_EQ(only(printer, "Sunrise").x, 2160 + 720);
    expectclean(printer);
}

}  // namespace
}  // namespace tarvane::tests
