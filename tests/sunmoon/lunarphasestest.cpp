#include "sunmoon/lunarphases.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
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

/// Months in which any term or constant that is off puts a phase on another day: see tests/data/README.md.
TEST(LunarPhases, EdgeMonths) {
    std::ifstream rows(TARVANE_TESTDATA "/lunar-edges.txt");
    int year = 0, months = 0;
    std::size_t month = 0;
    for (std::array<int, 4> wanted{}; rows >> year >> month >> wanted[0] >> wanted[1] >> wanted[2] >> wanted[3];) {
        LunarTexts texts;
        LunarPhases(static_cast<int>(month), year, texts);
        const std::string name = std::string("JanFebMarAprMayJunJulAugSepOctNovDec").substr(3 * month - 3, 3);
        EXPECT_EQ(texts.lunarlist[2].substr(6, 3), name);
        std::array<int, 4> days{};
        for (std::size_t i = 2; i <= 5; ++i)
            for (std::size_t phase = 0; phase < 4; ++phase)
                if (texts.lunarlist[i].find(std::array{"NEW", "FIRST", "FULL", "LAST"}[phase]) != std::string::npos)
                    days[phase] = std::stoi(texts.lunarlist[i].substr(3, 2));
        EXPECT_EQ(days, wanted) << year << "-" << month;
        ++months;
    }
    EXPECT_EQ(months, 62);
}

}  // namespace
}  // namespace tarvane
