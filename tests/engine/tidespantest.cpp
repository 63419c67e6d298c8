#include "engine/tidespan.h"

#include <gtest/gtest.h>

#include <cmath>

#include "fakes/testport.h"

namespace tarvane::tests {
namespace {

constexpr Date midsummer = std::chrono::sys_days{std::chrono::year{2026} / 6 / 28};

/// By the heights of each 20 seconds.
double slowrange(const TideSpan& tides, double from, double to) {
    double sum = 0, squares = 0;
    int count = 0;
    for (double at = from; at < to; at += 20.0 / 3600, ++count) {
        const double height = tides.height(at).value();
        sum += height;
        squares += height * height;
    }
    return 2 * std::sqrt(2 * (squares / count - std::pow(sum / count, 2)));
}

TEST(TideSpan, SpreadsOverAnyHoursAreThoseOfAllHeights) {
    int ports = 0;
    for (const HarmonicRecord& port : shippedports()) {
        if (++ports % 7 != 0) continue;
        // Over the end of a month, whose level is another.
        const TideSpan tides(port, midsummer, 6);
        for (const double from : {0.0, 30.04, 48.0, 71.3, 144 - 24.84}) {
            const double slow = slowrange(tides, from, from + 24.84);
            EXPECT_NEAR(tides.spreadrange(from, from + 24.84).value(), slow, slow / 1000)
                << port.PortName << " from " << from;
        }
        EXPECT_NEAR(tides.spreadrange(0, 144).value(), slowrange(tides, 0, 144), 0.005) << port.PortName;
    }
    EXPECT_GT(ports, 80);
}

TEST(TideSpan, NoSpreadBesideADayWithoutAPrediction) {
    const TideSpan tides(roundport(), std::chrono::sys_days{std::chrono::year{1989} / 12 / 30}, 6);
    ASSERT_FALSE(tides.height(72.5));
    EXPECT_TRUE(tides.spreadrange(20, 47.9));
    EXPECT_FALSE(tides.spreadrange(47, 73));
    EXPECT_TRUE(tides.spreadrange(96, 144));
    for (const auto& [from, to] : {std::pair{-0.1, 20.0}, {130.0, 144.1}, {20.0, 20.0}, {21.0, 20.0}})
        EXPECT_FALSE(tides.spreadrange(from, to)) << from << " to " << to;
}

TEST(TideSpan, AMonthOutOfMeasureSpoilsNoOther) {
    HarmonicRecord port = roundport();
    port.MHm2.fill(1);
    const double whole = TideSpan(port, midsummer, 10).spreadrange(120, 144.84).value();
    port.MHm2[5] = 3e38F;
    EXPECT_EQ(TideSpan(port, midsummer, 10).spreadrange(120, 144.84), whole);
}

TEST(TideSpan, RunsEndWhereTheTideTurnsAlsoWithAnglesOutOfMeasure) {
    for (const float beyond : {0.0F, 1440.0F}) {
        HarmonicRecord port = roundport();
        port.M2g += beyond;
        port.S2g -= beyond;
        const TideSpan tides(port, midsummer, 3);
        EXPECT_GE(tides.runs().size(), 12U);
        for (const TideRun& run : tides.runs()) {
            EXPECT_EQ(tides.rate((run.from + run.to) / 2).value() > 0, run.first < run.last) << run.from;
            // A second from a turn the tide moves by less than two millimetres an hour.
            const double rate = tides.rate(run.to).value();
            EXPECT_NEAR(std::fmod(run.to, 24) == 0 ? 0 : rate, 0, 0.002) << run.to;
        }
    }
}

}  // namespace
}  // namespace tarvane::tests
