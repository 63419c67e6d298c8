#include "portdata/coordinates.h"

#include <gtest/gtest.h>

namespace tarvane {
namespace {

TEST(Coordinates, Parse) {
    const struct {
        const char* text;
        double latitude;
        double longitude;
    } rows[] = {{"50.45.00N", 50.75, 50.75},  {"001.23.00W", 1 + 23 / 60.0, -1 - 23 / 60.0},
                {"50.30.00S", -50.5, 50.5},   {"50.30.59N", 50.5, 50.5},
                {"50.30.00SS", 50.5, 50.5},   {"50S.30S.00S", -50.5, 50.5},
                {"50.30.00s", 50.5, 50.5},    {"W1.30", 1.0 / 2, -1.0 / 2},
                {"001.30.00E", 1.5, 1.5},     {"-1.30.00", -0.5, -0.5},
                {" 50. 30 .00N", 50.5, 50.5}, {"50W", 50, -50},
                {".30.N", 0.5, 0.5}};
    for (const auto& row : rows) {
        EXPECT_DOUBLE_EQ(ParseLatitude(row.text), row.latitude) << row.text;
        EXPECT_DOUBLE_EQ(ParseLongitude(row.text), row.longitude) << row.text;
    }
    for (const char* nothing : {"", ".", "..", "N", "N.E"})
        EXPECT_EQ(ParseLatitude(nothing), 0) << nothing;
}

TEST(Coordinates, ShortTexts) {
    const struct {
        double degrees;
        const char* latitude;
        const char* longitude;
    } rows[] = {{50.75, " 50.45N", " 50.45E"},
                {-1.5, " 1.30S", " 1.30W"},
                {0, " 0.00", " 0.00"},
                {-0.0, " 0.00", " 0.00"},
                {-1e-9, " 0.00S", " 0.00W"},
                {50.7525, " 50.45.15N", " 50.45.15E"},
                {50 + 0.5 / 60, " 50.0.5N", " 50.0.5E"},
                {50 + 5.25 / 60, " 50.05.25N", " 50.05.25E"},
                {-0.25, " 0.15S", " 0.15W"},
                {50.999999, " 50.60N", " 50.60E"},
                {179.5, " 179.30N", " 179.30E"}};
    for (const auto& row : rows) {
        EXPECT_EQ(LatitudeText(row.degrees), row.latitude) << row.degrees;
        EXPECT_EQ(LongitudeText(row.degrees), row.longitude) << row.degrees;
    }
}

TEST(Coordinates, EditTextsByBothRoutes) {
    const struct {
        double degrees;
        const char* point;
        const char* comma;
    } rows[] = {{50.75, "50.45.00N", "50.45.00N"},
                {0, "00.00.00N", "00.00.00N"},
                {-0.5, "00.30.00S", "00.30.00S"},
                {-1.383333, "01.23.00S", "01.22.99S"},
                {50.01, "50.00.60N", "50.00.60N"},
                {50 + 5.053 / 60, "50.05.05N", "50.05.05N"},
                {50 + 27.09 / 60, "50.27.09N", "50.27.9.N"},
                {50 + 27.096 / 60, "50.27.10N", "50.27.9.N"},
                {50 + 5.009995 / 60, "50.05.01N", "50.05.0.N"},
                {50 + 5.00998 / 60, "50.05.01N", "50.05.00N"},
                {50.99999999999, "51.00.00N", "51.00.00N"},
                {50.999995, "51.00.00N", "50.59.99N"},
                {50.99997, "50.60.00N", "50.59.99N"},
                {-50.99999999999, "50.60.00S", "51.00.00S"},
                {9.999, "09.59.94N", "09.59.94N"}};
    for (const auto& row : rows) {
        EXPECT_EQ(LatitudeEditText(row.degrees), row.point) << row.degrees;
        EXPECT_EQ(LatitudeEditText(row.degrees, DecimalMark::comma), row.comma) << row.degrees;
    }
    for (const DecimalMark mark : {DecimalMark::point, DecimalMark::comma}) {
        EXPECT_EQ(LongitudeEditText(-1.5, mark), "001.30.00W");
        EXPECT_EQ(LongitudeEditText(0, mark), "000.00.00E");
        EXPECT_EQ(LongitudeEditText(179.75, mark), "179.45.00E");
    }
}

// Every whole minute comes back, from the double as it is computed and from the single that a record holds.
TEST(Coordinates, EveryMinuteComesBackFromTheEditText) {
    for (int minute = 1; minute < 180 * 60; ++minute) {
        const double degrees = minute / 60.0;
        const auto held = static_cast<double>(static_cast<float>(degrees));
        for (const double sign : {1.0, -1.0}) {
            ASSERT_NEAR(ParseLongitude(LongitudeEditText(sign * degrees)), sign * degrees, 1e-9);
            ASSERT_NEAR(ParseLongitude(LongitudeEditText(sign * held)), sign * degrees, 1e-9);
            if (minute >= 90 * 60) continue;
            ASSERT_NEAR(ParseLatitude(LatitudeEditText(sign * held)), sign * degrees, 1e-9);
            ASSERT_NEAR(ParseLatitude(LatitudeEditText(sign * degrees, DecimalMark::comma)), sign * degrees, 1e-9);
        }
    }
}

}  // namespace
}  // namespace tarvane
