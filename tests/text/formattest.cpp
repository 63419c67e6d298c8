#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "text/numbers.h"

namespace tarvane {
namespace {

struct Row {
    double value;
    const char *pattern, *text;
};

void expectrows(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(format(row.value, row.pattern), row.text) << row.value << " under " << row.pattern;
}

TEST(Format, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    expectrows({Row{1.005, "0.00", "1.01"}, Row{2.675, "0.00", "2.68"}, Row{-0.05, "0.0", "-0.1"}, Row{-2.5, "0", "-3"},
                Row{0.4999, "0", "0"}, Row{999.95, "0.0", "1000.0"}, Row{9.5, "000", "010"},
                Row{1.4999999999999999, "0.0", "1.5"}});
    // Every tenth step of a half: the binary value lies to either side of the decimal one, the text never does.
    for (int i = 0; i < 2000; ++i) {
        const double value = (10 * i + 5) / 100.0;
        const std::string expected = std::to_string((i + 1) / 10) + "." + std::to_string((i + 1) % 10);
        ASSERT_EQ(format(value, "#,#0.0;;;"), expected);
    }
}

TEST(Format, FillsGroupsAndKeepsPlaces) {
    expectrows({Row{359.6, "000", "360"}, Row{5.5, "00.00", "05.50"}, Row{45, "###000", "045"},
                Row{123456, "###000", "123456"}, Row{45, "###,000", "045"}, Row{1234, "###,000", "1,234"},
                Row{12.34, "##0.0", "12.3"}, Row{1234567.891, "#,##0.00;;;", "1,234,567.89"}, Row{0.5, "#.##", ".5"},
                Row{1e-300, "0.00", "0.00"}, Row{-1000, "#,##0", "-1,000"}, Row{-100, "#,##0", "-100"},
                Row{1e20, "0", "100000000000000000000"},
                Row{123456789012345678.0, "#,##0", "123,456,789,012,346,000"}});
}

TEST(Format, ChoosesTheSectionBySign) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    expectrows({Row{-1.25, "#,#0.0;;;", "-1.3"}, Row{0, "#,#0.0;;;", "0.0"}, Row{-0.0, "0.0", "0.0"},
                Row{-0.04, "#,#0.0;;;", "0.0"}, Row{-2, "0.0;00.00", "02.00"}, Row{0, "0.0;;000", "000"},
                Row{3, "0.0;00.00;000", "3.0"}, Row{-3, "0.0;", "-3.0"}, Row{infinite, "0.0", ""},
                Row{-infinite + infinite, "0.00", ""}});
}

}  // namespace
}  // namespace tarvane
