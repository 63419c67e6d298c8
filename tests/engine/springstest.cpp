#include "engine/springs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "engine/testport.h"

namespace tarvane {
namespace {

TEST(SpringsText, BandsAndTheirSharedEdges) {
    const std::pair<double, const char*> rows[] = {{0, "Springs"},
                                                   {0.3, "Springs"},
                                                   {2.0 / 6, "Springs +1 day"},
                                                   {1.4, "Springs +1 day"},
                                                   {1.9, "Springs +2 days"},
                                                   {2.5, "Springs +3 days"},
                                                   {3.3, "Neaps -3 days"},
                                                   {4.3, "Neaps -2 days"},
                                                   {5.2, "Neaps -1days"},
                                                   {6, "Neaps"},
                                                   {6.8, "Neaps"},
                                                   {7.7, "Neaps +1 day"},
                                                   {8.5, "Neaps +2 days"},
                                                   {9.3, "Neaps +3 days"},
                                                   {10.2, "Springs -3 days"},
                                                   {10.9, "Springs -2 days"},
                                                   {13, "Springs -1 day"},
                                                   {14, "Springs -1 day"},
                                                   {14.1, ""},
                                                   {-0.1, ""}};
    for (const auto& [lag, status] : rows)
        EXPECT_EQ(springstext(lag), status) << lag;
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

TEST(SpringsLag, NothingToMeasure) {
    Prediction flat;
    flat.samplecount = 147;
    EXPECT_FALSE(findspringslag(flat));
    HarmonicRecord port = tests::roundport();
    port.S2Hm = 0;
    tests::PortFiles files(port);
    predictday(files.settings, {2024, 4, 100, 0}, flat);
    EXPECT_FALSE(findspringslag(flat));
}

TEST(SpringsLag, FollowsTheFortnight) {
    tests::PortFiles files;
    std::map<std::string, int> seen;
    Prediction prediction;
    for (std::int16_t day = 1; day <= 59; ++day) {
        predictday(files.settings, {2026, 1, day, 0}, prediction);
        if (const auto lag = findspringslag(prediction)) ++seen[springstext(*lag).substr(0, 6)];
    }
    EXPECT_GT(seen["Spring"], 15);
    EXPECT_GT(seen["Neaps"] + seen["Neaps "], 15);
}

}  // namespace
}  // namespace tarvane
