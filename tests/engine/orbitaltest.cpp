#include "engine/orbital.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace tarvane {
namespace {

/// Figures made apart from the program: the two worked days, then both walks, the gap, and days past a year's ends. In
/// the backward walk nearly every year counts 366 days, and 2001 needn't agree with what follows on from 2000.
TEST(Orbital, DaysOfEveryKindOfYear) {
    const struct {
        int year, day, ma, sa, ka, oa;
        double mf, sf, kf, of;
    } rows[] = {{1991, 200, 187, 18, 156, 42, 1.0035903295, 0.8773257592, 1.2004687995, 1.0158849018},
                {1992, 200, 70, 16, 160, 288, 0.8612579367, 0.8844940167, 1.1404941579, 0.8415351216},
                {1993, 200, 343, 15, 161, 206, 1.0847211861, 0.8896828024, 1.1767952953, 1.0598238004},
                {1994, 200, 253, 13, 159, 113, 1.1675517050, 0.8765600014, 1.1476383611, 1.0251539919},
                {1995, 200, 169, 12, 162, 19, 1.0323698438, 0.8589475840, 1.0683453984, 0.7760704574},
                {1996, 200, 52, 11, 168, 258, 0.8960717684, 0.8408085790, 1.0642340790, 0.6784678048},
                {1997, 200, 326, 10, 170, 174, 1.1371165026, 0.8278200683, 1.1352481121, 0.9453558785},
                {1999, 200, 151, 9, 170, 345, 1.0068464010, 0.7812768430, 1.1387539189, 0.8194575879},
                {2000, 200, 35, 10, 174, 228, 0.8853982552, 0.7574059659, 1.1639494896, 0.7874987372},
                {1998, 1, 58, 4, 359, 68, 1.1283849358, 0.8632875599, 1.2480295336, 0.9240250259},
                {2024, 100, 7, 355, 240, 115, 1.1976208571, 1.3082696607, 0.9394822186, 1.4668897598},
                {2001, 1, 141, 1, 4, 137, 0.8763216704, 0.8025236644, 1.2775494743, 0.8326395476},
                {2000, 367, 141, 1, 4, 137, 0.8763256867, 0.8025187380, 1.2775293468, 0.8326086282},
                {1990, 2, 24, 359, 266, 120, 1.2123390304, 1.4147175953, 0.8517102257, 1.5316620989},
                {1989, 365, 357, 10, 354, 12, 0.8943549084, 0.7637246728, 1.3885107391, 1.0422735077},
                {1899, 60, 198, 5, 351, 209, 1.0817918833, 0.7835037697, 1.3816482485, 1.0790701261},
                {1800, 0, 245, 18, 151, 107, 1.0684891254, 0.9867856326, 1.1614988675, 1.2275718891},
                {2100, 366, 22, 13, 349, 43, 1.1323988957, 0.7768934912, 1.4464409057, 1.3725923874},
                {2025, 123, 143, 343, 209, 275, 1.0773882353, 1.0586343117, 1.1891876067, 1.2842945136},
                {2028, 334, 287, 348, 5, 274, 0.8614415171, 0.7988176207, 1.2748138909, 0.9293971483},
                {9999, 367, 48, 5, 350, 64, 0.9475040104, 0.7832401239, 1.1359299184, 0.7221854273}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.year);
        const auto day = orbitalconstants(row.year, row.day);
        ASSERT_TRUE(day);
        EXPECT_EQ(std::tuple(day->ma, day->sa, day->ka, day->oa), std::tuple(row.ma, row.sa, row.ka, row.oa));
        EXPECT_NEAR(day->mf, row.mf, 1e-9);
        EXPECT_NEAR(day->sf, row.sf, 1e-9);
        EXPECT_NEAR(day->kf, row.kf, 1e-9);
        EXPECT_NEAR(day->of, row.of, 1e-9);
    }
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

TEST(Orbital, PolarAngleHasItsEdges) {
    EXPECT_NEAR(polarangle(1, 0), 90, 1e-6);
    EXPECT_NEAR(polarangle(0, -1), 180, 1e-6);
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
