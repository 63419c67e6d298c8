// Where places are on a map, near and far, and over the date line.
#include "world/mapview.h"

#include <gtest/gtest.h>

#include <array>

namespace tarvane {
namespace {

MapView viewof(double latitude, double longitude, double scale) {
    MapView view;
    resizeview(view, 1000, 600);
    view.scale = scale;
    centreview(view, mappoint(latitude, longitude));
    return view;
}

TEST(MapView, PlacesComeBackAsTheyWere) {
    for (const double latitude : {-84.0, -45.5, 0.0, 50.1, 78.9, 85.0})
        for (const double longitude : {-180.0, -179.9, -74.0, 0.0, 5.5, 179.9}) {
            const MapPoint point = mappoint(latitude, longitude);
            EXPECT_NEAR(latitudeof(point), latitude, 1e-9);
            EXPECT_NEAR(longitudeof(point), longitude, 1e-9);
            const MapView view = viewof(40, 10, 4000);
            const MapPoint back = view.pointof(view.placeof(point));
            EXPECT_NEAR(back.x, point.x, 1e-9);
            EXPECT_NEAR(back.y, point.y, 1e-9);
        }
    // By the formula: ln tan of half the latitude and an eighth of a turn.
    EXPECT_NEAR(mappoint(50, 0).y, 0.5 - 1.0106831886830212 / 6.283185307179586, 1e-12);
    EXPECT_NEAR(mappoint(85.0511287798066, 0).y, 0, 1e-9) << "as high as wide";
}

TEST(MapView, WhatLiesUnderThePointerStaysThere) {
    for (const Place about : {Place{500, 300}, Place{10, 590}, Place{900, 20}}) {
        MapView view = viewof(50, -2, 8000);
        const MapPoint under = view.pointof(about);
        zoomview(view, 1.7, about);
        EXPECT_NEAR(view.scale, 8000 * 1.7, 1e-6);
        EXPECT_NEAR(view.placeof(under).x, about.x, 1e-6);
        EXPECT_NEAR(view.placeof(under).y, about.y, 1e-6);
        moveview(view, 30, -40);
        EXPECT_NEAR(view.placeof(under).x, about.x + 30, 1e-6);
        EXPECT_NEAR(view.placeof(under).y, about.y - 40, 1e-6);
    }
}

TEST(MapView, TheWorldGoesOnAcrossTheDateLineAndEndsInTheNorthAndSouth) {
    MapView view = viewof(-17, 170, 4000);
    const MapPoint samoa = mappoint(-13.8, -172);
    EXPECT_NEAR(view.placeof(samoa).x, 500 + 18 / 360.0 * 4000, 1e-6) << "east of here, not round the world";
    for (int i = 0; i < 400; ++i)
        moveview(view, -100, 0);
    EXPECT_GE(view.middle.x, 0);
    EXPECT_LT(view.middle.x, 1);
    EXPECT_NEAR(longitudeof(view.middle), 170, 1e-6) << "ten times round";
    moveview(view, 0, 1e6);
    EXPECT_NEAR(view.pointof({0, 0}).y, 0, 1e-9);
    moveview(view, 0, -1e6);
    EXPECT_NEAR(view.pointof({0, 600}).y, 1, 1e-9);
    zoomview(view, 1e-9, {500, 300});
    EXPECT_EQ(view.scale, 1000) << "once round, no more";
    zoomview(view, 1e12, {500, 300});
    EXPECT_EQ(view.scale, greatestscale);
}

TEST(MapView, PointsAreFittedTheShorterWayRound) {
    const std::array pacific{mappoint(-18, 178), mappoint(-14, -172), mappoint(7, 171)};
    MapView view = viewof(50, 0, 5000);
    fitview(view, pacific);
    EXPECT_NEAR(longitudeof(view.middle), 179.5, 1e-6);
    for (const MapPoint& each : pacific) {
        const Place place = view.placeof(each);
        EXPECT_TRUE((Area{20, 20, 980, 580}.holds(place))) << place.x << " " << place.y;
    }
    // Nearly as close as they can be.
    EXPECT_GT(view.placeof(pacific[0]).y - view.placeof(pacific[2]).y, 400);
    fitview(view, std::array{mappoint(50, -5)});
    EXPECT_NEAR(latitudeof(view.middle), 50, 1e-9);
    EXPECT_LT(view.scale, greatestscale);
    fitview(view, {});
    EXPECT_EQ(view.scale, 1000);
}

}  // namespace
}  // namespace tarvane
