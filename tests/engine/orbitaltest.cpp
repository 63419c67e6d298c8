#include "engine/orbital.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarvane {
namespace {

struct DayFigures {
    int year, day;
    int ma, sa, ka, oa;
    double mf, sf, kf, of;
};

TEST(Orbital, WorkedDays) {
    const DayFigures rows[] = {
        {1998, 1, 58, 4, 359, 68, 1.1284, 0.8633, 1.2480, 0.9240},
        {2024, 100, 7, 355, 240, 115, 1.1976, 1.3083, 0.9395, 1.4669},
    };
    for (const DayFigures& row : rows) {
        SCOPED_TRACE(row.year);
        const auto day = orbitalconstants(row.year, row.day);
        ASSERT_TRUE(day);
        EXPECT_EQ(day->ma, row.ma);
        EXPECT_EQ(day->sa, row.sa);
        EXPECT_EQ(day->ka, row.ka);
        EXPECT_EQ(day->oa, row.oa);
        EXPECT_NEAR(day->mf, row.mf, 0.00005);
        EXPECT_NEAR(day->sf, row.sf, 0.00005);
        EXPECT_NEAR(day->kf, row.kf, 0.00005);
        EXPECT_NEAR(day->of, row.of, 0.00005);
    }
}

TEST(Orbital, SpeedsOfAWorkedDay) {
    const auto day = orbitalconstants(2024, 100), next = orbitalconstants(2024, 101);
    ASSERT_TRUE(day && next);
    EXPECT_EQ(next->ma, 35);
    EXPECT_EQ(next->sa, 354);
    EXPECT_EQ(next->ka, 238);
    EXPECT_EQ(next->oa, 143);
    const SpeedsAndRates rates = speedsandrates(*day, *next);
    EXPECT_DOUBLE_EQ(rates.dam * 24, 692);
    EXPECT_DOUBLE_EQ(rates.das * 24, 721);
    EXPECT_DOUBLE_EQ(rates.dak * 24, 362);
    EXPECT_DOUBLE_EQ(rates.dao * 24, 332);
}

TEST(Orbital, WrapKeepsItsEdges) {
    const struct {
        double given, wrapped;
    } rows[] = {{0, 0},   {360, 0},       {720, 360},      {1080, 360},  {-360, 0},          {-1, 359},
                {361, 1}, {359.5, 359.5}, {-720.5, 359.5}, {7.2e8, 360}, {-3.6e9 - 90, 270}, {1e7 + 40, 320}};
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
    EXPECT_TRUE(orbitalconstants(1989, 365));
}

TEST(Orbital, YearsAreReachedByTheirOwnWalks) {
    // Day 367 of 2000 is reached from the table's own row and need not agree with day 1 of 2001 in the factors.
    const auto walked = orbitalconstants(2001, 1), ranpast = orbitalconstants(2000, 367);
    ASSERT_TRUE(walked && ranpast);
    EXPECT_NE(walked->mf, ranpast->mf);
    EXPECT_NEAR(walked->mf, ranpast->mf, 0.001);
    // Going back, a year that was left behind keeps its 366 days: 1989 lies 3 steps of 366 days before 1992.
    const auto back = orbitalconstants(1989, 1), extended = orbitalconstants(1992, 1 - 3 * 366);
    ASSERT_TRUE(back && extended);
    EXPECT_EQ(back->ma, extended->ma);
    EXPECT_NEAR(back->mf, extended->mf, 1e-6);
    // Past a century the length is 365 from there on until a leap year: 1899 is one 365-day step before 1900.
    const auto before = orbitalconstants(1899, 1), shorter = orbitalconstants(1900, 1 - 365);
    ASSERT_TRUE(before && shorter);
    EXPECT_EQ(before->ma, shorter->ma);
}

TEST(Orbital, FarYearsStayInRange) {
    for (const int year : {-4000, 0, 1, 1582, 1900, 2100, 2400, 9999, 30000}) {
        for (const int day : {0, 1, 60, 366, 367}) {
            const auto constants = orbitalconstants(year, day);
            ASSERT_TRUE(constants) << year;
            for (const int angle : {constants->ma, constants->sa, constants->ka, constants->oa}) {
                EXPECT_GE(angle, 0);
                EXPECT_LE(angle, 360);
            }
            for (const double factor : {constants->mf, constants->sf, constants->kf, constants->of}) {
                EXPECT_GT(factor, 0.3);
                EXPECT_LT(factor, 2);
            }
        }
    }
}

}  // namespace
}  // namespace tarvane
