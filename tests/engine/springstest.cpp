#include "engine/springs.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvane {
namespace {

TEST(SpringsText, BandsAndTheirSharedEdges) {
    using Row = std::pair<double, const char*>;
    double from = 0;
    for (const auto& [to, status] :
         {Row{0.3, "Springs"}, Row{1.4, "Springs +1 day"}, Row{1.9, "Springs +2 days"}, Row{2.5, "Springs +3 days"},
          Row{3.3, "Neaps -3 days"}, Row{4.3, "Neaps -2 days"}, Row{5.2, "Neaps -1days"}, Row{6.8, "Neaps"},
          Row{7.7, "Neaps +1 day"}, Row{8.5, "Neaps +2 days"}, Row{9.3, "Neaps +3 days"}, Row{10.2, "Springs -3 days"},
          Row{10.9, "Springs -2 days"}, Row{14, "Springs -1 day"}}) {
        EXPECT_EQ(springstext(from), status) << from;
        EXPECT_EQ(springstext(to), status) << to;
        from = std::nextafter(to, 99);
    }
    EXPECT_EQ(springstext(from) + springstext(std::nextafter(0, -1)), "");
}

TEST(SpringsLag, MeasuresFromS2HighToTheNextM2High) {
    for (int lag = 0; lag <= 70; ++lag) {
        Prediction prediction;
        prediction.samplecount = 147;
        for (std::size_t row = 1; row <= 149; ++row) {
            const double hours = (static_cast<double>(row) - 1) / 6;
            prediction.s2layer[row].height = std::cos((hours - 2.01) * 2 * 3.14159265 / 12);
            prediction.m2layer[row].height = std::cos((hours - 2.01 - lag / 6.0) * 2 * 3.14159265 / 12.42);
        }
        const auto found = findspringslag(prediction);
        ASSERT_TRUE(found) << lag;
        // At a lag of 0 the M2 high must come after the S2 high: the next one is a whole turn on.
        EXPECT_NEAR(*found, lag == 0 ? 12.5 : lag / 6.0, 0.17) << lag;
    }
}

}  // namespace
}  // namespace tarvane
