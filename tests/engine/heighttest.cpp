#include "engine/height.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "engine/prediction.h"
#include "engine/testport.h"

namespace tarvane {
namespace {

using tests::PortFiles;
using tests::roundport;

const HarmonicConstants exampleport{8, 0.94, 60, 0.42, 215, 0.23, 162, 0.14, 290, 0.185, 168, 0.038, 2.55, 0};
const AnglesAndFactors exampleday{19, 1.17, 12, 0.82, 161, 1.28, 229, 1.05};
const AnglesAndFactors examplenext{46, 1.19, 13, 0.82, 161, 1.29, 257, 1.07};

TEST(Height, WorkedExample) {
    const SpeedsAndRates rates = speedsandrates(exampleday, examplenext);
    EXPECT_DOUBLE_EQ(rates.dam, 28.875);
    EXPECT_NEAR(rates.das, 29.958333, 5e-7);
    EXPECT_DOUBLE_EQ(rates.dak, 15);
    EXPECT_NEAR(rates.dao, 13.833333, 5e-7);
    EXPECT_NEAR(rates.dfm, 0.000833, 5e-7);
    EXPECT_DOUBLE_EQ(rates.dfs, 0);
    EXPECT_NEAR(rates.dfk, 0.000417, 5e-7);
    EXPECT_NEAR(rates.dfo, 0.000833, 5e-7);
    const InstantHeight height = heightofconstants(exampleport, exampleday, examplenext, 19);
    EXPECT_NEAR(height.first, 1.5505, 0.00005);
    EXPECT_NEAR(height.second, 1.5409, 0.00005);
    EXPECT_NEAR(height.time, 19.05, 1e-12);
    EXPECT_EQ(height.risefalltext, "metres (Falling)");
    EXPECT_EQ(heightofconstants(exampleport, exampleday, examplenext, 12).risefalltext, "metres (Rising)");
    const InstantHeight flat = heightofconstants({}, exampleday, examplenext, 6);
    EXPECT_EQ(flat.first, 0);
    EXPECT_EQ(flat.risefalltext, "");
}

TEST(Height, TraceFollowsTheForm) {
    std::ostringstream trace;
    heightofconstants(exampleport, exampleday, examplenext, 19, &trace);
    const char* beginnings[] = {"Line 15 ", "Line 19 ", "Line 22 ",         " Line 23 ", "Line 27 ",  "Line 29 ",
                                "Line 30 ", "Line 32 ", "LINE 33 radius= ", "cos d4= ",  "delta6 = ", "HEIGHT = "};
    std::istringstream lines(trace.str());
    std::string line;
    for (int pass = 1; pass <= 2; ++pass)
        for (const char* beginning : beginnings) {
            ASSERT_TRUE(std::getline(lines, line));
            EXPECT_EQ(line.rfind(beginning, 0), 0U) << line;
        }
    EXPECT_FALSE(std::getline(lines, line));
    EXPECT_NE(trace.str().find("Line 19 ppm2,pps2,ppk1,ppo1 548.625 "), std::string::npos) << trace.str();
    EXPECT_NE(trace.str().find(" @ 19\n"), std::string::npos);
    EXPECT_NE(trace.str().find(" @ 19.05\n"), std::string::npos);
}

TEST(Height, TimeGuards) {
    const struct {
        double given, afterwards;
    } rows[] = {{0, 1.0 / 60 + 0.05}, {12, 12.05}, {23.79, 23.84}, {23.9, 23.9 - 1.0 / 6 + 0.05}};
    for (const auto& row : rows)
        EXPECT_NEAR(heightofconstants(exampleport, exampleday, examplenext, row.given).time, row.afterwards, 1e-12);
}

TEST(Height, InstantLeavesOutMonthlyLevelAndDepth) {
    HarmonicRecord port = roundport();
    port.DeltaZ0.fill(0.1F);
    PortFiles files(port, 5.0F);
    files.settings.currentoutput = 2;
    Prediction prediction;
    predictday(files.settings, {2024, 4, 100, 0}, prediction);
    const InstantHeight height = heightat(files.settings, 4, 2024, 100, 10);
    ASSERT_TRUE(height.defined);
    EXPECT_EQ(files.settings.userdepth, 5.0F);
    // The curve reckons from 00:00 of the day before and changes each factor at its own rate: a few centimetres.
    EXPECT_NEAR(prediction.curvesamples[61].height - height.first, 5.1, 0.05);
    EXPECT_FALSE(heightat(files.settings, 1, 1990, 0, 12).defined);
}

TEST(Height, MonthWithoutAmplitudeHasNone) {
    HarmonicRecord port = roundport();
    port.MHm2[3] = 0;
    EXPECT_EQ(seasonalconstants(port, 4).M2Hm, 0);
    EXPECT_EQ(seasonalconstants(port, 5).M2Hm, 1.5);
    port.DeltaZ0[11] = 0.25F;
    EXPECT_EQ(seasonalconstants(port, 12).DeltaZ0, 0.25);
    for (const int outside : {0, 13, -1}) {
        EXPECT_EQ(seasonalconstants(port, outside).M2Hm, 1.5);
        EXPECT_EQ(seasonalconstants(port, outside).DeltaZ0, 0);
    }
}

TEST(Height, ZoneTimeHandsOnlyTheNextDayOn) {
    const struct {
        double time;
        std::int16_t zone;
        double zoned;
        int day;
    } rows[] = {{12, -1, 11, 40}, {0.5, -1, 23.5, 99}, {23.5, 1, 0.5, 41}, {23, 1, 0, 41}, {1, -1, 0, 40}};
    for (const auto& row : rows) {
        double zoned = -1;
        int day = 99;
        zonetime(row.time, 40, row.zone, zoned, day);
        EXPECT_DOUBLE_EQ(zoned, row.zoned) << row.time;
        EXPECT_EQ(day, row.day) << row.time;
    }
}

}  // namespace
}  // namespace tarvane
