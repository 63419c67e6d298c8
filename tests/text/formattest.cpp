#include <gtest/gtest.h>

#include <limits>
#include <span>
#include <string>

#include "text/numbers.h"

namespace tarvane {
namespace {

struct Row {
    double value;
    const char* pattern;
    const char* expected;
};

void expectrows(std::span<const Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(format(row.value, row.pattern), row.expected) << row.value << " under " << row.pattern;
}

TEST(Format, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    const Row rows[] = {{1.005, "0.00", "1.01"},   {2.675, "0.00", "2.68"}, {-0.05, "0.0", "-0.1"},
                        {-2.5, "0", "-3"},         {0.5, "0", "1"},         {0.4999, "0", "0"},
                        {999.95, "0.0", "1000.0"}, {9.5, "000", "010"},     {0.0049999, "0.00", "0.00"}};
    expectrows(rows);
    EXPECT_EQ(format(1.4999999999999999, "0.0"), "1.5");
    // Every tenth step of a half: the binary value lies to either side of the decimal one, the text never does.
    for (int i = 0; i < 2000; ++i) {
        const double value = (10 * i + 5) / 100.0;
        const std::string expected = std::to_string((i + 1) / 10) + "." + std::to_string((i + 1) % 10);
        ASSERT_EQ(format(value, "#,#0.0;;;"), expected);
    }
}

TEST(Format, FillsGroupsAndKeepsPlaces) {
    const Row rows[] = {{7, "000", "007"},
                        {359.6, "000", "360"},
                        {5.5, "00.00", "05.50"},
                        {45, "###000", "045"},
                        {123456, "###000", "123456"},
                        {45, "###,000", "045"},
                        {1234, "###,000", "1,234"},
                        {0, "##0.0", "0.0"},
                        {12.34, "##0.0", "12.3"},
                        {1234.56, "#,#0.0;;;", "1,234.6"},
                        {1234567.891, "#,##0.00;;;", "1,234,567.89"},
                        {0.5, "#.##", ".5"},
                        {1e-300, "0.00", "0.00"},
                        {-1000, "#,##0", "-1,000"},
                        {-100, "#,##0", "-100"}};
    expectrows(rows);
    EXPECT_EQ(format(1e20, "0"), "100000000000000000000");
    EXPECT_EQ(format(123456789012345678.0, "#,##0"), "123,456,789,012,346,000");
}

TEST(Format, ChoosesTheSectionBySign) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const Row rows[] = {{-1.25, "#,#0.0;;;", "-1.3"}, {0, "#,#0.0;;;", "0.0"},
                        {-0.0, "0.0", "0.0"},         {-0.04, "#,#0.0;;;", "0.0"},
                        {-0.049, "0.0", "0.0"},       {-2, "0.0;00.00", "02.00"},
                        {0, "0.0;;000", "000"},       {3, "0.0;00.00;000", "3.0"},
                        {-3, "0.0;", "-3.0"},         {infinite, "0.0", ""},
                        {-infinite, "000", ""},       {std::numeric_limits<double>::quiet_NaN(), "0.00", ""}};
    expectrows(rows);
}

}  // namespace
}  // namespace tarvane
