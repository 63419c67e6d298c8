#include "engine/curvelimits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace tarvane {
namespace {

/// The rows that count run from 1 to 146; the last one holds the least height.
std::array<TimedValue, 501> curvebetween(double least, double greatest) {
    std::array<TimedValue, 501> samples{};
    samples.fill({0, least});
    samples[1].height = greatest;
    samples[147].height = 50;
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
    const auto limits = [](double least, double greatest) {
        const auto samples = curvebetween(least, greatest);
        return curvelimits(curveseries(samples, 147, option(3, 20, 20)), samples, 147);
    };
    for (const auto& [edge, bottom] : {std::pair{-0.0000001, -1}, std::pair{-1.00000001, -2}, std::pair{-2.0000001, -3},
                                       std::pair{-3.0000001, -4}}) {
        for (const double least : {edge, double(bottom)})
            EXPECT_EQ(limits(least, 1).curvebottom, bottom) << least;
        for (const double between : {std::nextafter(edge, 0), std::nextafter(bottom, -9)})
            EXPECT_EQ(limits(between, 1).curvebottom, between);
    }
    for (const double least : {0.0, 0.5, -infinite})
        EXPECT_EQ(limits(least, 1).curvebottom, 0);
    using Row = std::pair<double, double>;
    for (const auto& [greatest, top] : {Row{4, 5}, Row{3.99, 4}, Row{-3, 1}, Row{infinite, 1}})
        EXPECT_EQ(limits(-3, greatest).curvetop, top);
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
        EXPECT_DOUBLE_EQ(series.curve2[1].height, second);
        EXPECT_DOUBLE_EQ(series.curve2[147].height, 48 + second);
    }
    const CurveSeries empty = curveseries(samples, 147, option(2.5F));
    EXPECT_FALSE(empty.drawn);
    EXPECT_EQ(curvelimits(empty, samples, 147).curvetop, 1);
}

}  // namespace
}  // namespace tarvane
