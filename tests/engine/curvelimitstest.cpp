#include "engine/curvelimits.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace tarvane {
namespace {

std::array<TimedValue, 501> curvebetween(double least, double greatest) {
    std::array<TimedValue, 501> samples{};
    samples[20].height = greatest;
    samples[90].height = least;
    return samples;
}

Settings option(float output, float draught = 0.5F, float ukc = 0.25F, float depth = 2) {
    Settings settings;
    settings.currentoutput = output;
    settings.currentdraught = draught;
    settings.currentukc = ukc;
    settings.userdepth = depth;
    return settings;
}

TEST(CurveLimits, TopAndBottomBands) {
    const double infinite = std::numeric_limits<double>::infinity();
    using Row = std::tuple<double, double, double, double>;
    for (const auto& [least, greatest, bottom, top] :
         {Row{0, 4.0, 0, 5}, Row{0.5, 3.99, 0, 4}, Row{-0.3, 1, -1, 2}, Row{-1, 1, -1, 2},
          Row{-1.000000005, 1, -1.000000005, 2}, Row{-0.00000005, 0, -0.00000005, 1}, Row{-1.5, 0, -2, 1},
          Row{-2.5, 0, -3, 1}, Row{-4, 0, -4, 1}, Row{-4.5, 0, -4.5, 1}, Row{-3.0, -3, -3, 1},
          Row{-infinite, infinite, 0, 1}}) {
        auto samples = curvebetween(least, greatest);
        samples[147].height = 50;  // neither the last sample nor the dotted curve counts
        const CurveLimits limits = curvelimits(curveseries(samples, 147, option(3, 20, 20)), samples, 147);
        EXPECT_EQ(limits.curvebottom, bottom) << least;
        EXPECT_EQ(limits.curvetop, top) << greatest;
    }
}

TEST(CurveSeries, NotesAndSecondCurveGoByTheOption) {
    const auto samples = curvebetween(0, 2);
    using Row = std::tuple<Settings, const char*, double>;
    for (const auto& [settings, note, second] :
         {Row{option(1), "Depths to Chart Datum", 2}, Row{option(2), ": User depth=2M", 2},
          Row{option(3), " : Draft=0.5M : Clearance=0.25M: User depth=2M", 1.25}, Row{option(3, 0, 0, 0), "", 2},
          Row{option(3, 1.8F, 0, 0), " : Draft=1.8M", 2 - double{1.8F}}}) {
        const CurveSeries series = curveseries(samples, 147, settings);
        EXPECT_TRUE(series.drawn);
        EXPECT_EQ(series.curvenote, note);
        EXPECT_DOUBLE_EQ(series.curve2[20].height, second);
    }
    const CurveSeries empty = curveseries(samples, 147, option(2.5F));
    EXPECT_FALSE(empty.drawn);
    EXPECT_EQ(curvelimits(empty, samples, 147).curvetop, 1);
}

}  // namespace
}  // namespace tarvane
