#include "output/printouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "fakes/scriptedlocale.h"
#include "output/printedpage.h"
#include "sunmoon/sunmonth.h"

namespace tarvane::tests {
namespace {

TEST(ClosingLines, TheTimeLineGoesByTheMonthAlone) {
    const std::string from = " midnight local time - ", plain = "WITHOUT SUMMER TIME CORRECTION";
    for (const auto& [summer, month, line] : {std::tuple{0, 7, "Times from" + from + plain},
                                              {-1, 3, "Times are from" + from + plain},
                                              {-1, 4, "Times are from" + from + "ADJUSTED FOR SUMMER TIME"}}) {
        ScriptedPrinter printer;
        printer.begin("");
        printclosinglines(printer, 500, {static_cast<std::int16_t>(summer), static_cast<double>(month)}, true);
        EXPECT_EQ(texts(printer)[1].text, line);
        EXPECT_EQ(printer.currenty(), closingheight(printer));
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
        printer.pageheight = height;
        printer.begin("");
        layout(
            printer,
            {"Port    : Alder Quay", "Date   : 9 April 2024 (Tuesday)", caption, curve, 147, whynot, settings, {0, 4}});
    }

    int turns = 4;
    std::string whynot;
    CurveOnShow curve;
    Settings settings;
    ScriptedPrinter printer;
};

TEST_F(DayPrintout, BothLayouts) {
    shift(-1);  // from -0.5 to 4.5: the limits are -1 and 5
    print(printcurvepage);
    EXPECT_EQ(printer.log(), goldenfile("page-curve.txt"));
    print(printtenminutepage);
    EXPECT_EQ(printer.log(), goldenfile("page-ten-minutes.txt"));
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
    settings.currentdraught = 1.2F;
    settings.currentukc = 0.5F;
    using Row = std::tuple<float, float, std::string, std::string, std::string>;
    for (const auto& [option, depth, first, second, tenminutes] :
         {Row{1, 2.5F, datum, datum, datum}, Row{2, 2.5F, with, "User charted depth = 2.5 (Metres)", entered},
          Row{3, 2.5F, with, "User charted depth = 2.5   Draught = 1.2   Under keel = 0.5 (Metres)", entered},
          Row{3, 0, with, "User charted depth = 0   Draught = 1.2   Under keel = 0.5 (Metres)", datum + "."}}) {
        settings.currentoutput = option;
        settings.userdepth = depth;
        print(printcurvepage);
        EXPECT_EQ(only(printer, first).y, only(printer, second).y);
        print(printtenminutepage);
        EXPECT_EQ(only(printer, tenminutes).size, 7);
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

TEST_F(DayPrintout, ADayWithoutAPredictionSaysSoInsteadOfCurveAndHeights) {
    whynot = "The clock is broken";
    turns = 0;
    for (const auto layout : {printcurvepage, printtenminutepage}) {
        print(layout);
        EXPECT_TRUE(only(printer, "No prediction. The clock is broken").bold);
        EXPECT_LE(pieces(printer, ScriptedPrinter::Kind::line).size(), 4U) << "the frame alone";
        for (const Printed& text : texts(printer))
            EXPECT_EQ(text.text.find("00:"), std::string::npos) << text.text;
    }
}

TEST(SunPrintout, FillsItsPageAndDatesTooLongPushTheColumns) {
    ScriptedLocale finnish;
    finnish.shortmonths.fill("marraskuussa.");
    LunarTexts lunar;
    LunarPhases(3, 2024, lunar);
    for (const double height : {16118.0, 15120.0, 9000.0})
        for (const bool longdates : {false, true}) {
            SunTable table;
            fillsuntable(table, {2024, 3, 0, 0}, {70, 20}, longdates ? finnish : ScriptedLocale{});
            table.titles = {"", "User entry", " 20.00E", " 70.00N"};
            ScriptedPrinter printer;
            printer.pageheight = height;
            printer.begin("");
            printsunpage(printer, table, lunar, {0, 3});
            if (height > 10000) expectclean(printer);
            EXPECT_NEAR(printer.currenty(), 0.96 * std::max(height, 10900.0), 500) << height;
            EXPECT_DOUBLE_EQ(only(printer, "Sunrise").x, 11186 / 12.0 * (longdates ? 4 : 3));
            EXPECT_EQ(
                only(printer, " 31" + (longdates ? finnish : ScriptedLocale{}).monthabbreviation(3) + "  2024").size,
                9);
            if (height == 16118 && !longdates) {
                EXPECT_EQ(printer.log(), goldenfile("page-sun.txt"));
            }
        }
}

}  // namespace
}  // namespace tarvane::tests
