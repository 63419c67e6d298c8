#include "diamonds/daystreams.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "diamonds/diamondofstreams.h"
#include "fakes/testport.h"
#include "text/timetext.h"

namespace tarvane::tests {
namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

TEST(DayStreams, MeanRangesOfAmplitudes) {
    const struct {
        float m2, s2;
        double neap, spring;  // neither where there are none
    } rows[] = {{1.5F, 0.5F, 2, 4}, {0.5F, 1.5F, 2, 4}, {1, 1, 0, 4},
                {1, 0, 0, 0},       {0, 1, 0, 0},       {-1.5F, 0.5F, 0, 0},
                {1, -1, 0, 0},      {nan, 1, 0, 0},     {std::numeric_limits<float>::infinity(), 1, 0, 0}};
    for (const auto& row : rows) {
        HarmonicRecord port = roundport();
        port.M2Hm = row.m2;
        port.S2Hm = row.s2;
        const auto means = meanranges(port);
        EXPECT_EQ(means.has_value(), row.spring > 0) << row.m2 << " " << row.s2;
        if (!means) continue;
        EXPECT_EQ(means->neap, row.neap);
        EXPECT_EQ(means->spring, row.spring);
    }
}

TEST(DayStreams, RatesOnTheLineThroughNeapsAndSprings) {
    const MeanRanges means{2, 4};
    const struct {
        double spring, neap, range, rate;
        Beyond beyond;
    } rows[] = {{1.6, 0.8, 3, 1.2, Beyond::nothing},  {1.6, 0.8, 4, 1.6, Beyond::nothing},
                {1.6, 0.8, 2, 0.8, Beyond::nothing},  {1.6, 0.8, 5, 2.0, Beyond::springs},
                {1.6, 0.8, 1, 0.4, Beyond::neaps},    {3, 1, 0.5, 0, Beyond::neaps},
                {0.5, 2.5, 4.75, 0, Beyond::springs}, {0, 0, 9, 0, Beyond::springs}};
    for (const auto& row : rows) {
        const Stream stream{0, static_cast<float>(row.spring), static_cast<float>(row.neap)};
        EXPECT_NEAR(streamrate(stream, row.range, means), row.rate, 1e-6);
        EXPECT_EQ(beyondmeans(row.range, means), row.beyond);
    }
    EXPECT_TRUE(std::isnan(streamrate({0, nan, 1}, 3, means)));
}

DayStreams dayof(const HarmonicRecord& port, const TideDay& day) {
    Prediction prediction;
    predictday({port, 1, 0, 1}, day, prediction);
    findturningpoints(prediction);
    return daystreams(rounddiamond(), prediction);
}

/// Ranges and high waters were reckoned by a separate script from the method's steps.
TEST(DayStreams, WorkedDays) {
    HarmonicRecord east = roundport();
    east.TimeZoneLetter = "M";  // an hour ahead of universal time
    const struct {
        HarmonicRecord port;
        TideDay day;
        double range, rate, ratehw;
        int ahead;
        std::vector<const char*> highwaters;
    } rows[] = {{roundport(), {2024, 1, 2, 0}, 2.7810434682, 1.112417, 1.781043, 0, {"08:10", "20:40"}},
                {roundport(), {2024, 4, 100, 0}, 4.8737793512, 1.949512, 3.873779, 0, {"04:40", "17:00"}},
                {roundport(), {2024, 4, 100, -1}, 4.8688585163, 1.947543, 3.868859, 1, {"05:40", "18:00"}},
                {east, {2024, 1, 6, 0}, 1.9260363635, 0.770415, 0.926036, 1, {"11:40"}}};
    for (const auto& row : rows) {
        const DayStreams day = dayof(row.port, row.day);
        EXPECT_EQ(day.whynot, "");
        EXPECT_NEAR(day.range, row.range, 1e-9);
        EXPECT_EQ(day.hoursahead, row.ahead);
        ASSERT_EQ(day.tides.size(), row.highwaters.size());
        for (std::size_t i = 0; i < day.tides.size(); ++i) {
            const TideStreams& tide = day.tides[i];
            EXPECT_EQ(timetext(tide.highwater.time), row.highwaters[i]);
            EXPECT_EQ(tide.rows[highwaterplace].moment.time, tide.highwater.time);
            EXPECT_NEAR(tide.rows[0].rate, row.rate, 1e-6);
            EXPECT_NEAR(tide.rows[highwaterplace].rate, row.ratehw, 1e-6);
            EXPECT_EQ(tide.rows[12].direction, 250);
        }
    }
}

TEST(DayStreams, CellsCarryTheirOwnDatesAndTheClockOfTheDay) {
    const auto cells = streamcells(dayof(roundport(), {2024, 4, 100, -1}));
    using Row = std::vector<std::string>;
    ASSERT_EQ(cells.size(), 26U);
    EXPECT_EQ(cells[0], (Row{"2024-04-09T05:40+01:00", "-6", "2024-04-08T23:40+01:00", "10", "1.95", "springs"}));
    EXPECT_EQ(cells[6], (Row{"2024-04-09T05:40+01:00", "0", "2024-04-09T05:40+01:00", "130", "3.87", "springs"}));
    EXPECT_EQ(cells[25], (Row{"2024-04-09T18:00+01:00", "6", "2024-04-10T00:00+01:00", "250", "1.95", "springs"}));
    EXPECT_EQ(streamcells(dayof(roundport(), {2024, 1, 2, 0}))[0][5], "");
    EXPECT_EQ(streamcells(dayof(roundport(), {2024, 1, 6, 0}))[12],
              (Row{"2024-01-06T11:40+00:00", "6", "2024-01-06T17:40+00:00", "250", "0.77", "neaps"}));
    EXPECT_EQ(streamcolumns(), (Row{"highwater", "hour", "moment", "direction", "rate", "beyond"}));
    EXPECT_EQ(hourtext(-6) + hourtext(0) + hourtext(1) + directiontext(5) + directiontext(nan), "-6HW+1005");
}

TEST(DayStreams, DaysWithoutStreamsSayWhy) {
    EXPECT_EQ(dayof(roundport(), {1990, 1, 1, 0}).whynot, noconstants);
    HarmonicRecord port = roundport();
    port.S2Hm = 0;
    EXPECT_EQ(dayof(port, {2024, 4, 100, 0}).whynot,
              "The port has no spring and neap ranges: its M2 or S2 is 0 or no amplitude");
    Prediction flat;
    flat.port.record = roundport();
    EXPECT_EQ(daystreams(rounddiamond(), flat).whynot, "No high water on this day");
}

}  // namespace
}  // namespace tarvane::tests
