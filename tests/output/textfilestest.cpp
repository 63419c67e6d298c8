#include "output/textfiles.h"

#include <gtest/gtest.h>

#include <tuple>

#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "files/filenames.h"
#include "output/printedpage.h"

namespace tarvane::tests {
namespace {

TEST(TextFiles, AMonthOfAFlatPort) {
    HarmonicRecord record;
    record.PortName = "Still Water";
    record.Z0 = 3;
    PortFiles files(record);
    MonthTable table;
    buildmonthtable(table, files.settings, {"Still Water"}, dateonshow(2024, 2, 10), ScriptedLocale{});
    EXPECT_EQ(monthfile(table, "\t", 0, dateonshow(2024, 2, 10)), goldenfile("month-flat-february.txt"));
}

TEST(TextFiles, TheMonthsLastLineAndSeparators) {
    MonthTable table;
    table.monthcolumn1 = {"Fécamp", "", "1 Apr"};
    table.monthcolumn2 = {"avril 2024", "", "(Mon, \"1\")"};
    using Row = std::tuple<std::string, std::int16_t, int, const char*>;
    for (const auto& [s, option, month, last] :
         {Row{"\t", -1, 3, "Standard Time"}, Row{"\t", -1, 4, "Summer Time"}, Row{"\t", -1, 10, "Summer Time"},
          Row{"\t", -1, 11, "Standard Time"}, Row{"\t", 0, 7, "Times are for :\tStandard Time"},
          Row{",", -1, 1, "Times are for :,Summer Time"}, Row{",", 0, 7, "Times are for :,Standard Time"}}) {
        EXPECT_EQ(monthfile(table, s, option, dateonshow(2024, month, 1)),
                  "F\xE9"
                  "camp" +
                      s + "avril 2024\r\n" + s + "\r\n1 Apr" + s + "(Mon, \"1\")\r\n" + last + "\r\n");
    }
}

TEST(TextFiles, CommasForACsvInTheNameAlone) {
    using Row = std::pair<const char*, const char*>;
    for (const auto& [path, separator] :
         {Row{"april.csv.txt", ","}, Row{"/home/a.csv/april.txt", "\t"}, Row{"april.CSV", "\t"}, Row{"aprilcsv", "\t"}})
        EXPECT_EQ(tableseparator(path), separator) << path;
}

TEST(TextFiles, ProposedNames) {
    EXPECT_EQ(monthfilename("  St Mary's Quay  ", dateonshow(2024, 5, 9)), "St Mary's Quay_May_2024");
    using Row = std::pair<const char*, const char*>;
    for (const auto& [called, name] : {Row{" Q/u\\a:y* \"1\"? ", "Q_u_a_y_ _1__"}, Row{"<a|b>\t\x7f", "_a_b___"},
                                       Row{"..é\xEF\xBF\xBD", "_.é_"}, Row{"a.b", "a.b"}, Row{"  ", "Tarvane"}})
        EXPECT_EQ(safefilename(called), name);
    std::string months;
    for (int month = 1; month <= 12; ++month)
        months += monthfilename("", dateonshow(2026, month, 1)) + " ";
    EXPECT_EQ(months,
              "_Jan_2026 _Feb_2026 _Mar_2026 _Apr_2026 _May_2026 _Jun_2026 _Jul_2026 _Aug_2026 _Sep_2026 _Oct_2026 "
              "_Nov_2026 _Dec_2026 ");
}

TEST(TextFiles, ADayEveryTenMinutes) {
    CurveOnShow curve;
    for (std::size_t i = 1; i < curve.curvesamplescopy.size(); ++i) {
        const auto step = static_cast<double>(i - 1);
        curve.curvesamplescopy[i] = {step / 6, step / 8 - 3};
    }
    const std::string port = "Port    : Fécamp", date = "Date   : 9 April 2024 (Tuesday)";
    EXPECT_EQ(dayfile(curve, port, date), goldenfile("day-eighths.txt"));
    EXPECT_EQ(undefineddayfile("Grund: é", port, date),
              "Port    : F\xE9"
              "camp\r\nDate   : 9 April 2024 (Tuesday)\r\nNo prediction. Grund: \xE9\r\n");
}

TEST(TextFiles, TheSunsColumnsInTheFilesOrder) {
    SunTable table;
    table.titles = {"", "Fécamp", " 1.15W", " 50.30N"};
    EXPECT_EQ(daysofsuntable(table), 0);
    for (std::size_t d = 1; d <= 2; ++d)
        for (std::size_t column = 1; column <= 7; ++column)
            table.suntext[d][column] = std::to_string(d) + static_cast<char>('`' + column);
    table.suntext[2][4] = "None";
    EXPECT_EQ(sunfile(table),
              "\tF\xE9"
              "camp\t 50.30N\t 1.15W\r\n"
              "\tDate\t\tSunrise\tSunset\tCivil Twilights\tNautical Twilights\r\n"
              "\t1a\t1d\t1e\t1c\t1f\t1b\t1g\r\n"
              "\t2a\tNone\t2e\t2c\t2f\t2b\t2g\r\n");
    for (auto& day : table.suntext)
        day[1] = "x";
    EXPECT_EQ(daysofsuntable(table), 31);
}

}  // namespace
}  // namespace tarvane::tests
