#include "engine/height.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

#include "engine/prediction.h"
#include "fakes/testport.h"

namespace tarvane {
namespace {

using tests::PortFiles;
using tests::roundport;

const HarmonicConstants exampleport{8, 0.94, 60, 0.42, 215, 0.23, 162, 0.14, 290, 0.185, 168, 0.038, 2.55, 0};
const AnglesAndFactors exampleday{19, 1.17, 12, 0.82, 161, 1.28, 229, 1.05};
const AnglesAndFactors examplenext{46, 1.19, 13, 0.82, 161, 1.29, 257, 1.07};

TEST(Height, WorkedExample) {
    const SpeedsAndRates rates = speedsandrates(exampleday, examplenext);
    const double speeds[] = {rates.dam, rates.das, rates.dak, rates.dao, rates.dfm, rates.dfs, rates.dfk, rates.dfo};
    const double wanted[] = {28.875, 29.958333, 15, 13.833333, 0.000833, 0, 0.000417, 0.000833};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(speeds[i], wanted[i], 5e-7) << i;
    const InstantHeight height = heightofconstants(exampleport, exampleday, examplenext, 19);
    EXPECT_NEAR(height.first, 1.5505, 0.00005);
    EXPECT_NEAR(height.second, 1.5409, 0.00005);
    EXPECT_EQ(height.risefalltext, "metres (Falling)");
    EXPECT_EQ(heightofconstants(exampleport, exampleday, examplenext, 12).risefalltext, "metres (Rising)");
    EXPECT_EQ(heightofconstants({}, exampleday, examplenext, 6).risefalltext, "");
}

TEST(Height, TraceFollowsTheForm) {
    std::ostringstream trace;
    heightofconstants(exampleport, exampleday, examplenext, 19, &trace);
    const std::string text = trace.str();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 * 12) << text;
    for (const char* part : {"Line 15 ", "Line 19 ppm2,pps2,ppk1,ppo1 548.625 ", " Line 23 ",
                             "LINE 33 radius= ", "HEIGHT = ", " @ 19\n", " @ 19.05\n"})
        EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST(Height, TimeGuards) {
    using Row = std::pair<double, double>;
    for (const auto& [given, afterwards] :
         {Row{0, 1.0 / 60 + 0.05}, Row{12, 12.05}, Row{23.79, 23.84}, Row{23.9, 23.9 - 1.0 / 6 + 0.05}})
        EXPECT_NEAR(heightofconstants(exampleport, exampleday, examplenext, given).time, afterwards, 1e-12);
}

TEST(Height, InstantLeavesOutMonthlyLevelAndDepth) {
    HarmonicRecord port = roundport();
    port.DeltaZ0.fill(0.1F);
    PortFiles files(port, 5.0F);
    files.settings.currentoutput = 2;
    Prediction prediction;
    predictday(files.settings, {2024, 4, 100, 0}, prediction);
    // The curve reckons from 00:00 of the day before and changes each factor at its own rate: a few centimetres.
    EXPECT_NEAR(prediction.curvesamples[61].height - heightat(files.settings, 4, 2024, 100, 10).first, 5.1, 0.05);
    EXPECT_FALSE(heightat(files.settings, 1, 1990, 0, 12).defined);
}

TEST(Height, MonthWithoutAmplitudeHasNone) {
    HarmonicRecord port = roundport();
    port.MHm2[3] = 0;
    port.DeltaZ0[11] = 0.25F;
    using Row = std::tuple<int, double, double>;
    for (const auto& [month, amplitude, level] :
         {Row{4, 0, 0}, Row{5, 1.5, 0}, Row{12, 1.5, 0.25}, Row{0, 1.5, 0}, Row{13, 1.5, 0}}) {
        EXPECT_EQ(seasonalconstants(port, month).M2Hm, amplitude) << month;
        EXPECT_EQ(seasonalconstants(port, month).DeltaZ0, level) << month;
    }
}

TEST(Height, ZoneTimeHandsOnlyTheNextDayOn) {
    using Row = std::tuple<double, std::int16_t, double, int>;
    for (const auto& [time, zone, expectedtime, expectedday] :
         {Row{12, -1, 11, 40}, Row{0.5, -1, 23.5, 99}, Row{23.5, 1, 0.5, 41}, Row{23, 1, 0, 41}, Row{1, -1, 0, 40}}) {
        double zoned = -1;
        int day = 99;
        zonetime(time, 40, zone, zoned, day);
        EXPECT_DOUBLE_EQ(zoned, expectedtime) << time;
        EXPECT_EQ(day, expectedday) << time;
    }
}

}  // namespace
}  // namespace tarvane
