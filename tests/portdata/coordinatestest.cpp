#include "portdata/coordinates.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarvane {
namespace {

TEST(Coordinates, Parse) {
    using Row = std::tuple<const char*, double, double>;
    for (const auto& [text, latitude, longitude] :
         {Row{"50.45.00N", 50.75, 50.75}, Row{"001.23.00W", 1 + 23 / 60.0, -1 - 23 / 60.0},
          Row{"50.30.00S", -50.5, 50.5}, Row{"50.30.59N", 50.5, 50.5}, Row{"50.30.00SS", 50.5, 50.5},
          Row{"50S.30S.00S", -50.5, 50.5}, Row{"50.30.00s", 50.5, 50.5}, Row{"W1.30", 0.5, -0.5},
          Row{"-1.30.00", -0.5, -0.5}, Row{" 50. 30 .00N", 50.5, 50.5}, Row{"50W", 50, -50}, Row{".30.N", 0.5, 0.5},
          Row{"", 0, 0}, Row{"N.E", 0, 0}}) {
        EXPECT_DOUBLE_EQ(ParseLatitude(text), latitude) << text;
        EXPECT_DOUBLE_EQ(ParseLongitude(text), longitude) << text;
    }
}

TEST(Coordinates, ShortTexts) {
    using Row = std::tuple<double, const char*, const char*>;
    for (const auto& [degrees, latitude, longitude] :
         {Row{50.75, " 50.45N", " 50.45E"}, Row{-1.5, " 1.30S", " 1.30W"}, Row{-0.0, " 0.00", " 0.00"},
          Row{-1e-9, " 0.00S", " 0.00W"}, Row{50 + 0.5 / 60, " 50.0.5N", " 50.0.5E"},
          Row{50 + 5.25 / 60, " 50.05.25N", " 50.05.25E"}, Row{50.999999, " 50.60N", " 50.60E"},
          Row{179.5, " 179.30N", " 179.30E"}}) {
        EXPECT_EQ(LatitudeText(degrees), latitude);
        EXPECT_EQ(LongitudeText(degrees), longitude);
    }
}

TEST(Coordinates, EditTextsByBothRoutes) {
    using Row = std::tuple<double, const char*, const char*>;
    for (const auto& [degrees, point, comma] :
         {Row{0, "00.00.00N", "00.00.00N"}, Row{-0.5, "00.30.00S", "00.30.00S"},
          Row{-1.383333, "01.23.00S", "01.22.99S"}, Row{50.01, "50.00.60N", "50.00.60N"},
          Row{50 + 27.09 / 60, "50.27.09N", "50.27.9.N"}, Row{50 + 27.096 / 60, "50.27.10N", "50.27.9.N"},
          Row{50 + 5.009995 / 60, "50.05.01N", "50.05.0.N"}, Row{50 + 5.00998 / 60, "50.05.01N", "50.05.00N"},
          Row{50.99999999999, "51.00.00N", "51.00.00N"}, Row{50.999995, "51.00.00N", "50.59.99N"},
          Row{50.99997, "50.60.00N", "50.59.99N"}, Row{-50.99999999999, "50.60.00S", "51.00.00S"},
          Row{9.999, "09.59.94N", "09.59.94N"}}) {
        EXPECT_EQ(LatitudeEditText(degrees), point);
        EXPECT_EQ(LatitudeEditText(degrees, DecimalMark::comma), comma);
    }
    for (const DecimalMark mark : {DecimalMark::point, DecimalMark::comma})
        EXPECT_EQ(LongitudeEditText(-1.5, mark) + LongitudeEditText(0, mark), "001.30.00W000.00.00E");
}

// Every whole minute comes back, from the double as it is computed and from the single that a record holds.
TEST(Coordinates, EveryMinuteComesBackFromTheEditText) {
    for (int minute = 1; minute < 180 * 60; ++minute) {
        for (const double degrees : {minute / 60.0, -minute / 60.0}) {
            const auto held = static_cast<double>(static_cast<float>(degrees));
            ASSERT_NEAR(ParseLongitude(LongitudeEditText(degrees)), degrees, 1e-9);
            ASSERT_NEAR(ParseLongitude(LongitudeEditText(held)), degrees, 1e-9);
            if (minute >= 90 * 60) continue;
            ASSERT_NEAR(ParseLatitude(LatitudeEditText(held)), degrees, 1e-9);
            ASSERT_NEAR(ParseLatitude(LatitudeEditText(degrees, DecimalMark::comma)), degrees, 1e-9);
        }
    }
}

}  // namespace
}  // namespace tarvane
