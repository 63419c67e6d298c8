#include "text/numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <tuple>

#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notanumber = std::numeric_limits<double>::quiet_NaN();

TEST(Cint, HalvesGoToEvenAndTheRangeIsClamped) {
    using Row = std::pair<double, int>;
    for (const auto& [value, whole] :
         {Row{0.5, 0}, Row{1.5, 2}, Row{2.5, 2}, Row{-0.5, 0}, Row{-1.5, -2}, Row{-2.5, -2},
          Row{0.49999999999999994, 0}, Row{2.5000000000000004, 3}, Row{32766.5, 32766}, Row{32767.5, 32767},
          Row{-32768.5, -32768}, Row{-1e300, -32768}, Row{infinite, 32767}, Row{notanumber, 0}})
        EXPECT_EQ(cint(value), whole) << value;
    EXPECT_EQ(roundeven(-40001.5), -40002);
}

TEST(Val, TakesTheLeadingNumber) {
    const std::string zeros(400, '0');
    constexpr double most = std::numeric_limits<double>::max();
    using Row = std::pair<std::string, double>;
    for (const auto& [text, number] :
         {Row{"", 0}, Row{"-", 0}, Row{"+.", 0}, Row{"abc", 0}, Row{"1.2.3", 1.2}, Row{"1e3", 1000}, Row{"1E-2x", 0.01},
          Row{"1e", 1}, Row{"1e+", 1}, Row{"2e+1", 20}, Row{" 5 m", 5}, Row{"1 2 3", 123}, Row{"\t-\r\n4", -4},
          Row{"-.5m", -0.5}, Row{"5.", 5}, Row{"--5", 0}, Row{"5-3", 5}, Row{"0x10", 0}, Row{"inf", 0}, Row{"nan", 0},
          Row{"1,5", 1}, Row{".e5", 0},
          // past what a double holds
          Row{"-1e999", -most}, Row{"-1" + zeros + ".5e-9", -most}, Row{"-0.01e400", -most}, Row{"1e-999999999999", 0},
          Row{"." + zeros + "1e9", 0}, Row{std::string(400, '9') + "e-399", 10}, Row{"0" + zeros + "e999", 0}})
        EXPECT_EQ(val(text), number) << '"' << text << '"';
}

TEST(NumberText, GivesSevenOrFifteenDigits) {
    using Row = std::tuple<double, const char*, const char*>;
    for (const auto& [value, joined, leading] :
         {Row{-0.0, "0", " 0"}, Row{0.5, "0.5", " .5"}, Row{-0.5, "-0.5", "-.5"}, Row{12, "12", " 12"},
          Row{0.1 + 0.2, "0.3", " .3"}, Row{2.0 / 3, "0.666666666666667", " .666666666666667"},
          Row{999999999999999.5, "1E+15", " 1E+15"}, Row{-0.00012345, "-0.00012345", "-.00012345"},
          Row{0.00001, "1E-05", " 1E-05"}, Row{1.25e-120, "1.25E-120", " 1.25E-120"}}) {
        EXPECT_EQ(numbertext(value), joined);
        EXPECT_EQ(str(value), leading);
    }
    EXPECT_EQ(str(-3.57f) + str(2026) + str(-7), "-3.57 2026-7");
    EXPECT_EQ(numbertext(std::numeric_limits<int>::min()), "-2147483648");
}

// The C library's %.15G is an independent maker of the same text, whatever the locale of the process.
TEST(NumberText, AgreesWithTheLibraryOverManyValuesAndReadsBack) {
    std::mt19937_64 source(20260101);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-8, 18);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(source) * std::pow(10, exponent(source));
        char wide[64], narrow[64];
        std::snprintf(wide, sizeof wide, "%.15G", value);
        std::snprintf(narrow, sizeof narrow, "%.7G", static_cast<double>(static_cast<float>(value)));
        ASSERT_EQ(numbertext(value), wide);
        ASSERT_EQ(numbertext(static_cast<float>(value)), narrow);
        ASSERT_NEAR(val(str(value)), value, std::fabs(value) * 1e-14);
    }
}

TEST(NumberText, TakesNoNoticeOfTheLocale) {
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        std::setlocale(LC_ALL, name);
        EXPECT_EQ(numbertext(1.5), "1.5") << name;
        EXPECT_EQ(val("1.5"), 1.5) << name;
    }
    std::setlocale(LC_ALL, "C");
}

TEST(TimeText, RoundsTheMinutesAndCarries) {
    using Row = std::pair<double, const char*>;
    for (const auto& [hours, text] :
         {Row{-0.0, "00:00"}, Row{3 + 0.5 / 60, "03:00"}, Row{7.375, "07:22"}, Row{7.625, "07:38"}, Row{9.999, "10:00"},
          Row{23.99, "23:59"}, Row{23.995, "00:00"}, Row{24.5, "00:30"}, Row{25.2, "25:12"}, Row{47.995, "48:00"},
          Row{-0.5, "-01:30"}, Row{123.25, "123:15"}, Row{infinite, "--:--"}, Row{notanumber, "--:--"}})
        EXPECT_EQ(timetext(hours), text) << hours;
    for (int minute = 0; minute < 24 * 60; ++minute) {
        char expected[16];
        std::snprintf(expected, sizeof expected, "%02d:%02d", minute / 60, minute % 60);
        ASSERT_EQ(timetext(minute / 60.0), expected);
    }
}

/// Each row: a value, the pattern and the text.
using Formatted = std::tuple<double, const char*, const char*>;

void expectformatted(std::initializer_list<Formatted> rows) {
    for (const auto& [value, pattern, text] : rows)
        EXPECT_EQ(format(value, pattern), text) << value << " under " << pattern;
}

TEST(Format, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    expectformatted({Formatted{1.005, "0.00", "1.01"}, Formatted{2.675, "0.00", "2.68"},
                     Formatted{-0.05, "0.0", "-0.1"}, Formatted{-2.5, "0", "-3"}, Formatted{0.4999, "0", "0"},
                     Formatted{999.95, "0.0", "1000.0"}, Formatted{9.5, "000", "010"},
                     Formatted{1.4999999999999999, "0.0", "1.5"}});
    // Every tenth step of a half: the binary value lies to either side of the decimal one, the text never does.
    for (int i = 0; i < 2000; ++i) {
        const double value = (10 * i + 5) / 100.0;
        const std::string expected = std::to_string((i + 1) / 10) + "." + std::to_string((i + 1) % 10);
        ASSERT_EQ(format(value, "#,#0.0;;;"), expected);
    }
}

TEST(Format, FillsGroupsAndKeepsPlaces) {
    expectformatted({Formatted{359.6, "000", "360"}, Formatted{5.5, "00.00", "05.50"}, Formatted{45, "###000", "045"},
                     Formatted{123456, "###000", "123456"}, Formatted{45, "###,000", "045"},
                     Formatted{1234, "###,000", "1,234"}, Formatted{12.34, "##0.0", "12.3"},
                     Formatted{1234567.891, "#,##0.00;;;", "1,234,567.89"}, Formatted{0.5, "#.##", ".5"},
                     Formatted{1e-300, "0.00", "0.00"}, Formatted{-1000, "#,##0", "-1,000"},
                     Formatted{-100, "#,##0", "-100"}, Formatted{1e20, "0", "100000000000000000000"},
                     Formatted{123456789012345678.0, "#,##0", "123,456,789,012,346,000"}});
}

TEST(Format, ChoosesTheSectionBySign) {
    expectformatted({Formatted{-1.25, "#,#0.0;;;", "-1.3"}, Formatted{0, "#,#0.0;;;", "0.0"},
                     Formatted{-0.0, "0.0", "0.0"}, Formatted{-0.04, "#,#0.0;;;", "0.0"},
                     Formatted{-2, "0.0;00.00", "02.00"}, Formatted{0, "0.0;;000", "000"},
                     Formatted{3, "0.0;00.00;000", "3.0"}, Formatted{-3, "0.0;", "-3.0"},
                     Formatted{infinite, "0.0", ""}, Formatted{-infinite + infinite, "0.00", ""}});
}

}  // namespace
}  // namespace tarvane
