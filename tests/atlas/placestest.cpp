// Places as they are typed and told, and what lies between them.
#include <gtest/gtest.h>

#include "atlas/typedplace.h"

namespace tarvane {
namespace {

TEST(Places, DistancesAndBearingsAreTheKnownOnes) {
    constexpr double quarterturn = 5403.65;  // of the mean sphere, miles
    constexpr EarthPlace falmouth{50.15, -5.05}, brest{48.3833, -4.495}, sydney{-33.85, 151.2},
        wellington{-41.28, 174.78};
    const struct {
        EarthPlace from, to;
        double miles, within;
        double bearing, back;
        const char* told;
    } rows[] = {
        {falmouth, brest, 108.4, 0.5, 168.2, 348.6, "108 nm S"},
        {sydney, wellington, 1203, 3, 118.7, 284.1, "1203 nm SE"},
        {{0, 0}, {0, 90}, quarterturn, 0.05, 90, 270, "5404 nm E"},
        {{90, 0}, {0, 40}, quarterturn, 0.05, 140, 0, "5404 nm SE"},
        {{50, -4}, {-50, 176}, 2 * quarterturn, 0.05, -1, -1, nullptr},
        {{-17, 179.5}, {-17, -179.5}, 57.42, 0.02, 90.1, 269.9, "57 nm E"},
        {{50, 0}, {50.05, 0}, 3.002, 0.001, 0, 180, "3.0 nm N"},
        {{50, 0}, {50.0000001, 0.0000001}, 0, 0.0001, -1, -1, "here"},
        {{50, 181}, {50, -179}, 0, 1e-9, -1, -1, "here"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.told ? row.told : "antipodes");
        EXPECT_NEAR(milesbetween(row.from, row.to), row.miles, row.within);
        EXPECT_NEAR(milesbetween(row.to, row.from), row.miles, row.within);
        if (row.told) {
            EXPECT_EQ(distancetext(row.from, row.to), row.told);
        }
        if (row.bearing < 0) continue;
        EXPECT_NEAR(bearingof(row.from, row.to), row.bearing, 0.5);
        EXPECT_NEAR(bearingof(row.to, row.from), row.back, 0.5);
    }
    for (const auto& [bearing, point] : {std::pair(22.4, "N"), {22.6, "NE"}, {337.4, "NW"}, {337.6, "N"}, {359.9, "N"}})
        EXPECT_STREQ(pointof(bearing), point) << bearing;
    EXPECT_LT(bearingof({0, 0}, {1, -1e-18}), 360);
}

TEST(Places, AreReadAsPersonsTypeThem) {
    struct Row {
        const char* typed;
        double latitude, longitude;
    };
    for (const Row& row : {Row{"50.1 N 1.4 W", 50.1, -1.4},
                           {"50.1N1.4W", 50.1, -1.4},
                           {"50,1 n, 1,4 w", 50.1, -1.4},
                           {"50,1 n 1.4 w", 50.1, -1.4},
                           {"-33.85,151.2", -33.85, 151.2},
                           {"50 06.2 N 1 24 W", 50.103333, -1.4},
                           {"50 06,2 N 1 24 W", 50.103333, -1.4},
                           {"50° 06.2′ N, 1° 24′ W", 50.103333, -1.4},
                           {"33 51 36 S 151 12 18.5 E", -33.86, 151.205139},
                           {"N 50 6 W 1 24", 50.1, -1.4},
                           {"1.4 W 50.1 N", 50.1, -1.4},
                           {"-33.85, 151.2", -33.85, 151.2},
                           {"-33.85,151.2", -33.85, 151.2},
                           {"-33,85 151,2", -33.85, 151.2},
                           {"\u221233,85; +151,2", -33.85, 151.2},
                           {"50.1 N 1.4 W\n", 50.1, -1.4},
                           {"50.1 N\r\n1.4 W", 50.1, -1.4},
                           {"-33.85\n151.2", -33.85, 151.2},
                           {"50-06N 001-24W", 50.1, -1.4},
                           {"lat 50.1 lon -1.4", 50.1, -1.4},
                           {"Longitude: 1\u00B0 24' W, Latitude: 50\u00B0 6' N", 50.1, -1.4},
                           {"90 -180", 90, -180}}) {
        const auto read = readplace(row.typed);
        ASSERT_TRUE(read) << row.typed;
        EXPECT_NEAR(read->latitude, row.latitude, 1e-6) << row.typed;
        EXPECT_NEAR(read->longitude, row.longitude, 1e-6) << row.typed;
    }
    for (const char* typed : {"",
                              "50",
                              "50.1 N",
                              "50.1 N 1.4",
                              "N",
                              "N W",
                              "50.1 N 1.4 S",
                              "91 N 1 W",
                              "50 N 181 E",
                              "-50 N 1 W",
                              "50 60 N 1 W",
                              "50.5 30 N 1 W",
                              "50 6 1 24",
                              "1.2.3 4",
                              "--5 6",
                              "50 N 1 W 3",
                              "50 N 1 W 3 E",
                              "1 2 3 4 N 1 W",
                              "inf 3",
                              "lat 50 6 lon -1 24",
                              "50-06N -001-24W",
                              "lat 50.1",
                              "3 lat 50.1 lon -1.4",
                              "1e1 2",
                              "50 N 1 X",
                              "Sydney",
                              "N50 1 W"})
        EXPECT_FALSE(readplace(typed)) << typed;
}

TEST(Places, AreToldInDegreesAndMinutes) {
    for (const auto& [place, text] : {std::pair(EarthPlace{50.103333, -1.4}, "50° 06.2' N, 1° 24.0' W"),
                                      {EarthPlace{-33.99999, 151.2}, "34° 00.0' S, 151° 12.0' E"},
                                      {EarthPlace{0, 181}, "0° 00.0' N, 179° 00.0' W"}})
        EXPECT_EQ(placetext(place), text);
}

}  // namespace
}  // namespace tarvane
