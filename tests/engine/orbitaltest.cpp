#include "engine/orbital.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvane {
namespace {

/// Figures made apart from the program: the two worked days, then both walks, the gap, and days past a year's ends. In
/// the backward walk nearly every year counts 366 days, and 2001 needn't agree with what follows on from 2000.
TEST(Orbital, DaysOfEveryKindOfYear) {
    const struct {
        int year, day, ma, sa, ka, oa;
        double mf, sf, kf, of;
    } rows[] = {{1998, 1, 58, 4, 359, 68, 1.1283849358, 0.8632875599, 1.2480295336, 0.9240250259},
                {2024, 100, 7, 355, 240, 115, 1.1976208571, 1.3082696607, 0.9394822186, 1.4668897598},
                {2001, 1, 141, 1, 4, 137, 0.8763216704, 0.8025236644, 1.2775494743, 0.8326395476},
                {2000, 367, 141, 1, 4, 137, 0.8763256867, 0.8025187380, 1.2775293468, 0.8326086282},
                {1990, 2, 24, 359, 266, 120, 1.2123390304, 1.4147175953, 0.8517102257, 1.5316620989},
                {1989, 365, 357, 10, 354, 12, 0.8943549084, 0.7637246728, 1.3885107391, 1.0422735077},
                {1899, 60, 198, 5, 351, 209, 1.0817918833, 0.7835037697, 1.3816482485, 1.0790701261},
                {1800, 0, 245, 18, 151, 107, 1.0684891254, 0.9867856326, 1.1614988675, 1.2275718891},
                {2100, 366, 22, 13, 349, 43, 1.1323988957, 0.7768934912, 1.4464409057, 1.3725923874},
                {9999, 367, 48, 5, 350, 64, 0.9475040104, 0.7832401239, 1.1359299184, 0.7221854273}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.year);
        const auto day = orbitalconstants(row.year, row.day);
        ASSERT_TRUE(day);
        const int angles[] = {day->ma, day->sa, day->ka, day->oa}, wanted[] = {row.ma, row.sa, row.ka, row.oa};
        EXPECT_TRUE(std::equal(angles, angles + 4, wanted)) << testing::PrintToString(angles);
        EXPECT_NEAR(day->mf, row.mf, 1e-9);
        EXPECT_NEAR(day->sf, row.sf, 1e-9);
        EXPECT_NEAR(day->kf, row.kf, 1e-9);
        EXPECT_NEAR(day->of, row.of, 1e-9);
    }
}

TEST(Orbital, SpeedsOfAWorkedDay) {
    const SpeedsAndRates rates = speedsandrates(*orbitalconstants(2024, 100), *orbitalconstants(2024, 101));
    EXPECT_DOUBLE_EQ(rates.dam * 24, 692);
    EXPECT_DOUBLE_EQ(rates.das * 24, 721);
    EXPECT_DOUBLE_EQ(rates.dak * 24, 362);
    EXPECT_DOUBLE_EQ(rates.dao * 24, 332);
}

TEST(Orbital, WrapKeepsItsEdges) {
    const struct {
        double given, wrapped;
    } rows[] = {{0, 0},      {360, 0},           {720, 360},     {1080, 360},     {-360, 0},
                {-1, 359},   {361, 1},           {359.5, 359.5}, {-720.5, 359.5}, {7.2e8, 360},
                {-7.2e8, 0}, {-3.6e9 - 90, 270}, {1e7 + 40, 320}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(wrap360(row.given), row.wrapped) << row.given;
    EXPECT_TRUE(std::isinf(wrap360(std::numeric_limits<double>::infinity())));
    EXPECT_TRUE(std::isnan(wrap360(std::nan(""))));
}

TEST(Orbital, PolarAngleGoesRoundTheCircle) {
    for (int degrees = 0; degrees < 360; ++degrees) {
        const double radians = degrees * 3.14159265358979 / 180;
        EXPECT_NEAR(polarangle(std::sin(radians), std::cos(radians)), degrees, 1e-6) << degrees;
    }
    const struct { double a, b, angle; } axes[] = {{1, 0, 90}, {0, 1, 0}, {0, -1, 180}, {0, 0, 0}, {-1, 0, 270}};
    for (const auto& axis : axes)
        EXPECT_NEAR(polarangle(axis.a, axis.b), axis.angle, 1e-6);
}

TEST(Orbital, VectorPartsLeaveOutsideAnglesUntouched) {
    double sinepart = 7, cosinepart = 8;
    for (const double angle : {-0.001, 360.001}) {
        vectorparts(angle, 2, sinepart, cosinepart);
        EXPECT_EQ(sinepart, 7);
        EXPECT_EQ(cosinepart, 8);
    }
    vectorparts(360, 2, sinepart, cosinepart);
    EXPECT_NEAR(sinepart, 0, 1e-9);
    EXPECT_NEAR(cosinepart, 2, 1e-9);
}

TEST(Orbital, The1990GapDividesByZeroOnOneDayOnly) {
    EXPECT_FALSE(orbitalconstants(1990, 1));
    for (int day = 2; day <= 366; ++day)
        EXPECT_TRUE(orbitalconstants(1990, day)) << day;
    EXPECT_TRUE(orbitalconstants(1990, 0));
}

TEST(Orbital, FarYearsStayInRange) {
    for (const int year : {-4000, 0, 1, 1582, 2400, 30000}) {
        const auto constants = orbitalconstants(year, 60);
        ASSERT_TRUE(constants) << year;
        for (const int angle : {constants->ma, constants->sa, constants->ka, constants->oa})
            EXPECT_TRUE(angle >= 0 && angle <= 360) << year;
        for (const double factor : {constants->mf, constants->sf, constants->kf, constants->of})
            EXPECT_TRUE(factor > 0.3 && factor < 2) << year;
    }
}

}  // namespace
}  // namespace tarvane
