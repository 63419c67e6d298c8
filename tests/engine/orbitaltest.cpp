#include "engine/orbital.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <tuple>

namespace tarvane {
namespace {

/// Figures made apart from the program: the two worked days, then both walks, the gap, and days past a year's ends. In
/// the backward walk nearly every year counts 366 days, and 2001 needn't agree with what follows on from 2000.
TEST(Orbital, DaysOfEveryKindOfYear) {
    std::ifstream rows(TARVANE_TESTDATA "/orbital.txt");
    int number = 0, year = 0, dayofyear = 0;
    for (AnglesAndFactors row;
         rows >> year >> dayofyear >> row.ma >> row.sa >> row.ka >> row.oa >> row.mf >> row.sf >> row.kf >> row.of;
         ++number) {
        SCOPED_TRACE(year);
        const auto day = orbitalconstants(year, dayofyear);
        ASSERT_TRUE(day);
        EXPECT_EQ(std::tuple(day->ma, day->sa, day->ka, day->oa), std::tuple(row.ma, row.sa, row.ka, row.oa));
        for (const auto factor :
             {&AnglesAndFactors::mf, &AnglesAndFactors::sf, &AnglesAndFactors::kf, &AnglesAndFactors::of})
            EXPECT_NEAR((*day).*factor, row.*factor, 1e-9);
    }
    EXPECT_EQ(number, 21);
}

TEST(Orbital, WrapKeepsItsEdges) {
    using Row = std::pair<double, double>;
    for (const auto& [given, wrapped] :
         {Row{0, 0}, Row{360, 0}, Row{720, 360}, Row{1080, 360}, Row{-360, 0}, Row{-1, 359}, Row{361, 1},
          Row{-720.5, 359.5}, Row{7.2e8, 360}, Row{-7.2e8, 0}, Row{-3.6e9 - 90, 270}, Row{1e7 + 40, 320}})
        EXPECT_DOUBLE_EQ(wrap360(given), wrapped) << given;
    EXPECT_TRUE(std::isinf(wrap360(std::numeric_limits<double>::infinity())));
    EXPECT_TRUE(std::isnan(wrap360(std::nan(""))));
}

TEST(Orbital, PolarAngleGoesRoundTheCircle) {
    for (const auto& [degrees, a, b] : {std::tuple{45, 1, 1},
                                        {135, 1, -1},
                                        {225, -1, -1},
                                        {315, -1, 1},
                                        {0, 0, 1},
                                        {90, 1, 0},
                                        {180, 0, -1},
                                        {270, -1, 0}})
        EXPECT_NEAR(polarangle(a, b), degrees, 1e-6);
    EXPECT_EQ(polarangle(0, 0), 0);
}

TEST(Orbital, VectorPartsLeaveOutsideAnglesUntouched) {
    double sinepart = 7, cosinepart = 8;
    for (const double angle : {-0.001, 360.001})
        vectorparts(angle, 2, sinepart, cosinepart);
    EXPECT_EQ(sinepart + cosinepart, 15);
    vectorparts(360, 2, sinepart, cosinepart);
    EXPECT_NEAR(cosinepart, 2, 1e-9);
}

}  // namespace
}  // namespace tarvane
