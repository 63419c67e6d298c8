#include "text/numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notanumber = std::numeric_limits<double>::quiet_NaN();

TEST(Cint, HalvesGoToEvenAndTheRangeIsClamped) {
    const double halves[] = {0.5, 1.5, 2.5, -0.5, -1.5, -2.5, -0.0, 0.49999999999999994, 2.5000000000000004};
    const int even[] = {0, 2, 2, 0, -2, -2, 0, 0, 3};
    for (std::size_t i = 0; i < std::size(halves); ++i)
        EXPECT_EQ(cint(halves[i]), even[i]) << halves[i];
    const double far[] = {32766.5, 32767.4, 32767.5, -32768.5, 40000, -1e300, infinite, -infinite, notanumber};
    const int clamped[] = {32766, 32767, 32767, -32768, 32767, -32768, 32767, -32768, 0};
    for (std::size_t i = 0; i < std::size(far); ++i)
        EXPECT_EQ(cint(far[i]), clamped[i]) << far[i];
    EXPECT_EQ(roundeven(40000.5), 40000);
    EXPECT_EQ(roundeven(-40001.5), -40002);
    EXPECT_TRUE(std::isnan(roundeven(notanumber)));
}

TEST(Val, TakesTheLeadingNumber) {
    const struct {
        const char* text;
        double expected;
    } rows[] = {{"", 0},        {"-", 0},         {".", 0},     {"+.", 0},      {"abc", 0},   {"1.2.3", 1.2},
                {"1e3", 1000},  {"1E-2x", 0.01},  {"1e", 1},    {"1e+", 1},     {"2e+1", 20}, {" 5 m", 5},
                {"1 2 3", 123}, {"\t-\r\n4", -4}, {"+.5", 0.5}, {"-.5m", -0.5}, {"5.", 5},    {"--5", 0},
                {"+-5", 0},     {"5-3", 5},       {"007", 7},   {"0x10", 0},    {"inf", 0},   {"nan", 0},
                {"1,5", 1},     {"e5", 0},        {".e5", 0},   {"1e-999", 0},  {"30E", 30},  {"1_0", 1}};
    for (const auto& row : rows)
        EXPECT_EQ(val(row.text), row.expected) << '"' << row.text << '"';
    // Past what a double holds: the greatest one, or 0, whatever the way in which the text says so.
    const std::string zeros(400, '0');
    for (const std::string& huge : std::vector<std::string>{"1e999", "1" + zeros, "1" + zeros + ".5e-9", "0.01e400"})
        EXPECT_EQ(val("-" + huge), -std::numeric_limits<double>::max()) << huge;
    for (const std::string& tiny :
         std::vector<std::string>{"1e-999999999999", "0." + zeros + "1", "." + zeros + "1e9", "10e-400"})
        EXPECT_EQ(val(tiny), 0) << tiny;
    EXPECT_EQ(val(std::string(400, '9') + "e-399"), 10);
    EXPECT_EQ(val("0" + zeros + "e999"), 0);
}

TEST(Numbertext, GivesSevenOrFifteenDigits) {
    const struct {
        double value;
        const char* joined;
        const char* leading;
    } rows[] = {{0, "0", " 0"},
                {-0.0, "0", " 0"},
                {0.5, "0.5", " .5"},
                {-0.5, "-0.5", "-.5"},
                {12, "12", " 12"},
                {-20, "-20", "-20"},
                {0.1 + 0.2, "0.3", " .3"},
                {1.0 / 3, "0.333333333333333", " .333333333333333"},
                {2.0 / 3, "0.666666666666667", " .666666666666667"},
                {123456789012345, "123456789012345", " 123456789012345"},
                {999999999999999.5, "1E+15", " 1E+15"},
                {0.0001, "0.0001", " .0001"},
                {-0.00012345, "-0.00012345", "-.00012345"},
                {0.00001, "1E-05", " 1E-05"},
                {1.25e-120, "1.25E-120", " 1.25E-120"}};
    for (const auto& row : rows) {
        EXPECT_EQ(numbertext(row.value), row.joined);
        EXPECT_EQ(str(row.value), row.leading);
    }
    EXPECT_EQ(numbertext(0.1f), "0.1");
    EXPECT_EQ(numbertext(1.2345678f), "1.234568");
    EXPECT_EQ(numbertext(9999999.0f), "9999999");
    EXPECT_EQ(numbertext(12345678.0f), "1.234568E+07");
    EXPECT_EQ(str(-3.57f), "-3.57");
    EXPECT_EQ(str(2026), " 2026");
    EXPECT_EQ(str(-7), "-7");
    EXPECT_EQ(numbertext(std::numeric_limits<int>::min()), "-2147483648");
}

// The C library's %.15G is an independent maker of the same text, whatever the locale of the process.
TEST(Numbertext, AgreesWithTheLibraryOverManyValuesAndReadsBack) {
    std::mt19937_64 source(20260101);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-8, 18);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(source) * std::pow(10, exponent(source));
        char wide[64];
        char narrow[64];
        std::snprintf(wide, sizeof wide, "%.15G", value);
        std::snprintf(narrow, sizeof narrow, "%.7G", static_cast<double>(static_cast<float>(value)));
        ASSERT_EQ(numbertext(value), wide);
        ASSERT_EQ(numbertext(static_cast<float>(value)), narrow);
        ASSERT_NEAR(val(str(value)), value, std::fabs(value) * 1e-14);
    }
}

TEST(Numbertext, TakesNoNoticeOfTheLocale) {
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "C.UTF-8"}) {
        std::setlocale(LC_ALL, name);
        EXPECT_EQ(numbertext(1.5), "1.5") << name;
        EXPECT_EQ(val("1.5"), 1.5) << name;
    }
    std::setlocale(LC_ALL, "C");
}

TEST(Timetext, RoundsTheMinutesAndCarries) {
    const struct {
        double hours;
        const char* expected;
    } rows[] = {
        {0, "00:00"},       {-0.0, "00:00"},     {1.0 / 6, "00:10"},   {12.5, "12:30"},   {3 + 0.5 / 60, "03:00"},
        {7.375, "07:22"},   {7.625, "07:38"},    {9.999, "10:00"},     {23.99, "23:59"},  {23.995, "00:00"},
        {24, "00:00"},      {24.5, "00:30"},     {25.2, "25:12"},      {47.995, "48:00"}, {-0.5, "-01:30"},
        {123.25, "123:15"}, {infinite, "--:--"}, {notanumber, "--:--"}};
    for (const auto& row : rows)
        EXPECT_EQ(timetext(row.hours), row.expected) << row.hours;
    for (int minute = 0; minute < 24 * 60; ++minute) {
        char expected[16];
        std::snprintf(expected, sizeof expected, "%02d:%02d", minute / 60, minute % 60);
        ASSERT_EQ(timetext(minute / 60.0), expected);
    }
}

}  // namespace
}  // namespace tarvane
