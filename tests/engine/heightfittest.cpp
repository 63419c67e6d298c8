#include "engine/heightfit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/testport.h"

namespace tarvane {
namespace {

/// Readings of a place whose tide differs from the round port's by known numbers, `noise` metres up and down in turn.
struct Creek {
    HarmonicConstants near = seasonalconstants(tests::roundport(), 0);
    AnglesAndFactors day = *orbitalconstants(2024, 100), next = *orbitalconstants(2024, 101);
    SpeedsAndRates rates = speedsandrates(day, next);

    std::vector<Reading> readings(const FitChange& change, double from, double to, double step,
                                  double noise = 0) const {
        const HarmonicConstants place = changedconstants(near, rates, change);
        const HeightInputs inputs{place, day, next, rates, place.Z0, 0, 1};
        std::vector<Reading> all;
        for (double t = from; t <= to + 1e-9; t += step)
            all.push_back({t, heightformula(inputs, t).height + (all.size() % 2 ? noise : -noise)});
        return all;
    }

    HeightFit fit(const std::vector<Reading>& readings) const { return fitheights(near, 2024, 100, readings); }
};

TEST(HeightFit, FindsTheThreeNumbersAgain) {
    const Creek creek;
    const FitChange rows[] = {{0, 1, 0}, {0.4, 1.25, 0.5}, {-1.1, 0.4, -2.3}, {3, 2.5, 3.1}};
    for (const FitChange& change : rows) {
        const HeightFit fit = creek.fit(creek.readings(change, 6, 18.5, 0.5));
        ASSERT_EQ(fit.refusal, "") << change.shift;
        EXPECT_NEAR(fit.change.level, change.level, 1e-6);
        EXPECT_NEAR(fit.change.factor, change.factor, 1e-6);
        EXPECT_NEAR(fit.change.shift, change.shift, 1e-6);
        EXPECT_LT(fit.after.rms, 1e-6);
        EXPECT_NEAR(fit.constants.M2Hm, 1.5 * change.factor, 1e-6);
        EXPECT_NEAR(fit.constants.LF4, static_cast<double>(0.02F) / change.factor, 1e-6);
        EXPECT_TRUE(fit.rejected.empty());
    }
}

TEST(HeightFit, AScaledAndShiftedTideKeepsItsShape) {
    const Creek creek;
    const auto plain = creek.readings({}, 2, 22, 0.25);
    const auto later = creek.readings({0.5, 2, 1}, 3, 23, 0.25);
    for (std::size_t i = 0; i < plain.size(); ++i)
        EXPECT_NEAR(later[i].height - 3.5, 2 * (plain[i].height - 3), 0.02) << plain[i].time;
}

TEST(HeightFit, TellsHowWellTheNumbersAreKnown) {
    const Creek creek;
    const HeightFit fit = creek.fit(creek.readings({0.3, 1.1, 0.4}, 5, 18, 0.25, 0.03));
    EXPECT_NEAR(fit.change.level, 0.3, 3 * fit.uncertainty.level);
    EXPECT_NEAR(fit.change.factor, 1.1, 3 * fit.uncertainty.factor);
    EXPECT_NEAR(fit.change.shift, 0.4, 3 * fit.uncertainty.shift);
    EXPECT_NEAR(fit.after.rms, 0.03, 0.003);
    EXPECT_GT(fit.before.rms, 10 * fit.after.rms);
    // 53 readings with 3 cm of noise know the level to about 0.03 / sqrt(53).
    EXPECT_NEAR(fit.uncertainty.level, 0.0042, 0.001);
}

TEST(HeightFit, AWildReadingIsLeftOut) {
    const Creek creek;
    for (const std::size_t place : {0U, 6U, 12U})
        for (const double slip : {-10.0, -1.0, 1.0}) {
            auto readings = creek.readings({0.2, 1.2, -0.6}, 6, 18, 1, 0.02);
            readings[place].height += slip;
            const HeightFit fit = creek.fit(readings);
            EXPECT_EQ(fit.rejected, std::vector<std::size_t>{place}) << slip;
            EXPECT_NEAR(fit.change.factor, 1.2, 0.05) << place << " " << slip;
            EXPECT_NEAR(fit.change.shift, -0.6, 0.05);
            EXPECT_LT(std::abs(fit.after.greatest), 0.06);
        }
}

TEST(HeightFit, RefusesWhatCannotCarryAFit) {
    const Creek creek;
    const auto whole = creek.readings({}, 6, 18, 1);
    auto nine = whole, broken = whole, late = whole;
    nine.resize(9);
    broken[3].height = std::numeric_limits<double>::quiet_NaN();
    late[3].time = 24.5;
    auto opposite = whole;
    for (std::size_t i = 0; i < opposite.size(); ++i)
        opposite[i].height = i % 3 == 0 ? 9 : static_cast<double>(i % 3);
    using Row = std::pair<std::vector<Reading>, const char*>;
    for (const auto& [readings, words] :
         {Row{nine, "There are 9 readings"}, Row{broken, "no numbers"}, Row{late, "outside the day"},
          Row{creek.readings({}, 6, 12, 0.5), "cover 6.0 hours"},
          Row{creek.readings({0, 0.01, 0}, 6, 18, 1), "a few centimetres only"}, Row{opposite, "No change of level"}}) {
        const HeightFit fit = creek.fit(readings);
        EXPECT_NE(fit.refusal.find(words), std::string::npos) << words << ": " << fit.refusal;
        EXPECT_EQ(fit.constants.M2Hm, 1.5);
    }
    EXPECT_NE(fitheights({}, 2024, 100, whole).refusal.find("no tide"), std::string::npos);
    EXPECT_NE(fitheights(creek.near, 1990, 1, whole).refusal.find("no constants"), std::string::npos);
}

}  // namespace
}  // namespace tarvane
