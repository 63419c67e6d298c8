#include "engine/daywaters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <limits>

#include "fakes/testport.h"
#include "files/wholefiles.h"
#include "portdata/portscsv.h"

namespace tarvane::tests {
namespace {

/// Looks whether the waters are those of the whole prediction, to the last bit.
void expectsame(const HarmonicRecord& record, const TideDay& day, float depth = 0) {
    const PredictedPort port{record, 1, depth, 3};
    Prediction whole;
    predictday(port, day, whole);
    findturningpoints(whole);
    const DayWaters waters = daywaters(port, day, spanofday(day));
    const std::string of = record.PortName + " " + std::to_string(day.tideyear) + "/" + std::to_string(day.dayofyear);
    ASSERT_EQ(waters.defined, whole.defined) << of;
    ASSERT_STREQ(waters.whynot, whole.whynot) << of;
    ASSERT_EQ(waters.count, whole.turningcount) << of;
    for (int i = 1; i <= waters.count; ++i) {
        const DayWater& water = waters.waters[static_cast<std::size_t>(i - 1)];
        const TimedValue& point = whole.turningpoints[static_cast<std::size_t>(i)];
        EXPECT_EQ(water.time(), point.time) << of;
        EXPECT_EQ(water.height, point.height) << of;
        EXPECT_EQ(water.high, ishighwater(whole, i)) << of;
    }
}

TEST(DayWaters, OfEveryShippedPortAreThoseOfThePrediction) {
    int places = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TARVANE_DATA)) {
        if (!entry.path().filename().string().ends_with("-ports.csv")) continue;
        const int days = entry.path().filename() == "uk-ports.csv" ? 24 : 2;
        for (const HarmonicRecord& port : readportscsv(wholetext(entry.path().string())).ports) {
            // other days for each port, over the years, in and out of summer time
            for (int i = 0; i < days; ++i) {
                const int step = ++places * 37;
                const auto dayofyear = static_cast<std::int16_t>(step % 366 + 1);
                expectsame(port, {2000 + step % 61, step % 12 + 1, dayofyear, static_cast<std::int16_t>(-(step % 2))});
            }
        }
    }
    EXPECT_GT(places, 6000);
}

TEST(DayWaters, OfOddRecordsAreThoseOfThePrediction) {
    struct Case {
        const char* name;
        void (*change)(HarmonicRecord&);
    };
    constexpr float infinite = std::numeric_limits<float>::infinity();
    const Case cases[] = {
        {"as it is", [](HarmonicRecord&) {}},
        {"flat", [](HarmonicRecord& r) { r.M2Hm = r.S2Hm = r.K1Hm = r.O1Hm = 0; }},
        {"much shallow water", [](HarmonicRecord& r) { r.LF4 = 2, r.LF6 = 1, r.SF4 = 360, r.SF6 = 0; }},
        {"many waters", [](HarmonicRecord& r) { r.LF4 = 0, r.LF6 = 90; }},
        {"upside down", [](HarmonicRecord& r) { r.M2Hm = -3, r.LF4 = -1; }},
        {"angles out of the circle", [](HarmonicRecord& r) { r.M2g = -500, r.S2g = 700, r.K1g = 360, r.O1g = 0; }},
        {"angles beyond all", [](HarmonicRecord& r) { r.M2g = 4e9F; }},
        {"heights beyond all", [](HarmonicRecord& r) { r.S2Hm = 3e38F, r.LF6 = 3e38F; }},
        {"no number", [](HarmonicRecord& r) { r.Z0 = std::numeric_limits<float>::quiet_NaN(); }},
        {"no number in a month", [](HarmonicRecord& r) { r.MHm2[3] = infinite; }},
    };
    for (const Case& each : cases) {
        HarmonicRecord port = roundport();
        port.PortName = each.name;
        each.change(port);
        port.MHm2.fill(std::isfinite(port.MHm2[3]) ? port.M2Hm : infinite);
        for (std::int16_t day = 80; day < 110; ++day)
            expectsame(port, {2024, 4, day, static_cast<std::int16_t>(-(day % 2))}, 2.5F);
        expectsame(port, {1990, 1, 1, 0});
        expectsame(port, {1990, 1, 2, 0}, infinite);
    }
}

}  // namespace
}  // namespace tarvane::tests
