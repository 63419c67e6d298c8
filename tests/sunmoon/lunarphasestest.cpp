#include "sunmoon/lunarphases.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>

namespace tarvane {
namespace {

TEST(LunarPhases, WorkedMonths) {
    LunarTexts texts;
    texts.lunarlist.fill("of an earlier run");
    using Row = std::tuple<int, int, const char*>;
    for (const auto& [month, year, text] :
         {Row{6, 2024,
              "    \r\r   06 Jun 2024       NEW MOON     \r   14 Jun 2024       FIRST QUARTER\r   22 Jun 2024       "
              "FULL MOON    \r   28 Jun 2024       LAST QUARTER \r"},
          Row{8, 1896,
              "    \r\r   09 Aug 1896       NEW MOON      \r   15 Aug 1896       FIRST QUARTER\r   23 Aug 1896       "
              "FULL MOON     \r   31 Aug 1896       LAST QUARTER \r"}}) {
        LunarPhases(month, year, texts);
        EXPECT_EQ(texts.lunartext, text);
        EXPECT_EQ(texts.lunarcount, 5);
        EXPECT_EQ(texts.lunarlist[1] + texts.lunarlist[6] + texts.lunarlist[10], "");
    }
}

/// Days of the new moon, first quarter, full moon and last quarter in months made apart from the program and picked so
/// that a phase falls seconds from midnight, or the middle of the month as near to one lunation as to the next: any
/// term or constant that is off puts one of them on another day.
TEST(LunarPhases, EdgeMonths) {
    const struct {
        int year;
        std::size_t month;
        std::array<int, 4> days;
    } rows[] = {{12, 9, {4, 11, 18, 27}},    {418, 9, {16, 22, 1, 8}},    {456, 12, {13, 20, 27, 5}},
                {611, 6, {16, 23, 30, 8}},   {902, 11, {3, 11, 18, 24}},  {1395, 3, {20, 27, 7, 15}},
                {1582, 9, {16, 25, 1, 18}},  {1587, 12, {30, 6, 15, 22}}, {1590, 9, {28, 6, 13, 20}},
                {1593, 6, {30, 6, 13, 22}},  {1596, 1, {29, 6, 14, 20}},  {1604, 4, {30, 7, 14, 21}},
                {1615, 1, {29, 5, 13, 20}},  {1615, 2, {27, 7, 15, 22}},  {1615, 3, {29, 6, 13, 20}},
                {1620, 7, {30, 6, 14, 22}},  {1628, 8, {30, 6, 15, 22}},  {1636, 10, {28, 6, 12, 19}},
                {1663, 12, {29, 6, 13, 20}}, {1674, 10, {29, 6, 14, 22}}, {1680, 4, {28, 5, 13, 21}},
                {1707, 6, {29, 6, 14, 22}},  {1718, 4, {1, 8, 15, 22}},   {1720, 11, {31, 7, 15, 23}},
                {1764, 5, {1, 9, 15, 22}},   {1772, 7, {30, 6, 13, 21}},  {1780, 8, {29, 5, 13, 21}},
                {1900, 2, {1, 8, 16, 24}},   {1905, 7, {2, 9, 16, 24}},   {1908, 2, {2, 9, 17, 25}},
                {1913, 8, {2, 9, 16, 25}},   {1916, 5, {31, 8, 15, 22}},  {1927, 4, {1, 8, 16, 24}},
                {1929, 11, {1, 9, 17, 23}},  {1940, 9, {2, 8, 16, 24}},   {1948, 11, {30, 8, 16, 23}},
                {1951, 9, {1, 8, 15, 22}},   {1956, 12, {2, 10, 17, 24}}, {1962, 7, {31, 8, 15, 22}},
                {1973, 5, {2, 9, 17, 25}},   {1984, 3, {2, 10, 17, 24}},  {1989, 8, {31, 8, 15, 22}},
                {1997, 10, {31, 7, 14, 21}}, {2000, 6, {2, 9, 16, 25}},   {2060, 2, {2, 9, 17, 25}},
                {2081, 11, {30, 8, 16, 23}}, {2108, 12, {1, 9, 17, 23}},  {2111, 9, {3, 11, 17, 24}},
                {2117, 1, {2, 11, 18, 25}},  {2125, 5, {2, 8, 15, 24}},   {2136, 1, {3, 11, 19, 26}},
                {2136, 3, {1, 9, 16, 23}},   {2152, 6, {2, 9, 16, 24}},   {2155, 3, {3, 11, 19, 26}},
                {2168, 9, {1, 9, 16, 23}},   {2176, 10, {2, 11, 18, 25}}, {2244, 12, {30, 6, 13, 22}},
                {2400, 4, {25, 2, 9, 16}},   {2436, 11, {9, 16, 24, 1}},  {2847, 2, {6, 13, 21, 1}},
                {3692, 11, {21, 28, 6, 14}}, {3897, 7, {11, 18, 25, 2}}};
    for (const auto& row : rows) {
        LunarTexts texts;
        LunarPhases(static_cast<int>(row.month), row.year, texts);
        const std::string name = std::string("JanFebMarAprMayJunJulAugSepOctNovDec").substr(3 * row.month - 3, 3);
        EXPECT_EQ(texts.lunarlist[2].substr(6, 3), name);
        std::array<int, 4> days{};
        for (std::size_t i = 2; i <= 5; ++i)
            for (std::size_t phase = 0; phase < 4; ++phase)
                if (texts.lunarlist[i].find(std::array{"NEW", "FIRST", "FULL", "LAST"}[phase]) != std::string::npos)
                    days[phase] = std::stoi(texts.lunarlist[i].substr(3, 2));
        EXPECT_EQ(days, row.days) << row.year << "-" << row.month;
    }
}

}  // namespace
}  // namespace tarvane
