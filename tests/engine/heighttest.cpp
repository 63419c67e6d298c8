#include "engine/height.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <tuple>

#include "engine/prediction.h"
#include "fakes/testport.h"

namespace tarvane::tests {
namespace {

const HarmonicConstants exampleport{8, 0.94, 60, 0.42, 215, 0.23, 162, 0.14, 290, 0.185, 168, 0.038, 2.55, 0};
const AnglesAndFactors exampleday{19, 1.17, 12, 0.82, 161, 1.28, 229, 1.05};
const AnglesAndFactors examplenext{46, 1.19, 13, 0.82, 161, 1.29, 257, 1.07};

TEST(Height, WorkedExample) {
    const SpeedsAndRates rates = speedsandrates(exampleday, examplenext);
    const double speeds[] = {rates.dam, rates.das, rates.dak, rates.dao, rates.dfm, rates.dfs, rates.dfk, rates.dfo};
    const double wanted[] = {28.875, 29.958333, 15, 13.833333, 0.000833, 0, 0.000417, 0.000833};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(speeds[i], wanted[i], 5e-7) << i;
    // A turn of just 600 or 300 degrees is not yet the day's.
    const SpeedsAndRates edge = speedsandrates({240, 0, 240, 0, 300, 0, 300, 0}, {});
    EXPECT_EQ(edge.dam + edge.das + edge.dak + edge.dao, 2 * 960 / 24.0 + 2 * 660 / 24.0);
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
    EXPECT_EQ(trace.str(), filetext(TARVANE_TESTDATA "/height-trace.txt"));
}

TEST(Height, PhasesAreWrappedOnce) {
    const SpeedsAndRates rates = speedsandrates(exampleday, examplenext);
    // Degrees that M2 has turned through: 231 at 8 hours, 577.5 at 20. Its angle at midnight is 19.
    using Row = std::tuple<double, double, double, double>;
    for (const auto& [M2g, time, curvephase, instantphase] :
         {Row{592, 8, 20, 20}, Row{572, 8, 0, 0}, Row{212, 8, 0, 0}, Row{211, 8, 359, 359}, Row{341, 20, 142.5, -217.5},
          Row{400, 20, 201.5, -158.5}, Row{340, 20, 141.5, 141.5}, Row{0, 20, -198.5, -198.5}}) {
        const HarmonicConstants constants{M2g, 1};
        const auto expected = [&, hours = time](double phase) {
            return std::cos(phase * 0.017453925199433) * (hours * rates.dfm + exampleday.mf);
        };
        EXPECT_DOUBLE_EQ(heightformula({constants, exampleday, examplenext, rates}, time).height, expected(curvephase))
            << M2g;
        EXPECT_DOUBLE_EQ(heightofconstants(constants, exampleday, examplenext, time).first, expected(instantphase))
            << M2g;
    }
}

TEST(Height, TimeGuards) {
    using Row = std::pair<double, double>;
    for (const auto& [given, afterwards] :
         {Row{0, 1.0 / 60 + 0.05}, Row{12, 12.05}, Row{23.79, 23.84}, Row{23.8, 23.8 - 1.0 / 6 + 0.05}})
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
    EXPECT_NEAR(prediction.z0level, 3.1, 1e-6);
    EXPECT_FALSE(heightat(files.settings, 1, 1990, 0, 12).defined);
    EXPECT_FALSE(heightinputs(port, 1, 1990, 0) || heightinputs(port, 1, 1990, 1));
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
}  // namespace tarvane::tests
