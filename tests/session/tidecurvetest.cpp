#include "session/tidecurve.h"

#include <gtest/gtest.h>

#include <cmath>

#include "fakes/mainfixture.h"

namespace tarvane {
namespace {

using tests::MainFixture;
using Kind = ScriptedSurface::Kind;

/// A tide between two heights, half a day long.
void wave(Session& session, double least, double greatest) {
    for (std::size_t row = 1; row <= 149; ++row) {
        const double hours = (static_cast<double>(row) - 1) / 6;
        session.prediction.curvesamples[row] = {hours,
                                                (greatest + least) / 2 + (greatest - least) / 2 * std::cos(hours / 2)};
    }
    session.prediction.samplecount = 147;
}

std::vector<std::string> texts(const ScriptedSurface& surface) {
    std::vector<std::string> found;
    for (const auto& drawn : ScriptedSurface::only(surface.persistentlayer, Kind::text))
        found.push_back(drawn.text);
    return found;
}

TEST(TideCurve, ScaleGridAndLabels) {
    const struct {
        double least, greatest, top, bottom;
        std::vector<std::string> labels;
    } rows[] = {{0.4, 3.5, 4, 0, {"-1", "0", "1", "2", "3", "4M"}},
                {-0.5, 4.0, 5, -1, {"-1", "0", "1", "2", "3", "4", "5M"}},
                {-2.5, 0.5, 1, -3, {"-1", "0", "1M"}},
                {-6, -5, 1, -6, {"-1", "0", "1M"}}};
    for (const auto& row : rows) {
        MainFixture main;
        wave(main.session, row.least, row.greatest);
        main.session.settings.currentoutput = 1;
        drawtidecurve(main.session, main.surfaces());
        EXPECT_EQ(main.picture.top, row.top);
        EXPECT_NEAR(main.picture.bottom, row.bottom, 1e-3);
        EXPECT_EQ(main.picture.left, 0);
        EXPECT_EQ(main.picture.right, 24);
        std::vector<std::string> wanted = row.labels;
        wanted.insert(wanted.end(), {"Sunrise", "Sunset"});
        EXPECT_EQ(texts(main.picture), wanted);
        const auto lines = ScriptedSurface::only(main.picture.persistentlayer, Kind::line);
        EXPECT_EQ(lines.size(), 146U + 8U + row.labels.size());
        EXPECT_TRUE(ScriptedSurface::only(main.picture.persistentlayer, Kind::point).empty());
        EXPECT_EQ(ScriptedSurface::log(main.window.persistentlayer),
                  "text 625 4220 03:00\ntext 1350 4220 06:00\ntext 2075 4220 09:00\ntext 2800 4220 12:00\n"
                  "text 3525 4220 15:00\ntext 4250 4220 18:00\ntext 4975 4220 21:00 Hours\n");
    }
}

TEST(TideCurve, DottedCurveWithOptionThreeOnly) {
    MainFixture main;
    wave(main.session, 0, 4);
    for (const float option : {1.0F, 2.0F, 3.0F, 7.0F}) {
        main.session.settings.currentoutput = option;
        main.session.settings.currentdraught = 1.5F;
        main.session.settings.currentukc = 0.5F;
        drawtidecurve(main.session, main.surfaces());
        const auto dots = ScriptedSurface::only(main.picture.persistentlayer, Kind::point);
        ASSERT_EQ(dots.size(), option == 3 ? 147U : 0U);
        if (!dots.empty()) {
            EXPECT_DOUBLE_EQ(dots[0].y1, 2);
        }
    }
    EXPECT_EQ(ScriptedSurface::only(main.picture.persistentlayer, Kind::line).size(), 8U + 3U);
}

TEST(TideCurve, SunLinesAreDashedToTheBottom) {
    MainFixture main;
    main.session.curve.curvetop = 5;
    main.session.curve.curvebottom = 0;
    main.session.sun.sunrise = 6;
    main.session.sun.sunset = 19.5;
    drawsunlines(main.session, main.picture);
    const auto dashes = ScriptedSurface::only(main.picture.passinglayer, Kind::line, grey);
    ASSERT_EQ(dashes.size(), 50U);
    EXPECT_EQ(dashes[0].width, 2);
    EXPECT_DOUBLE_EQ(dashes[1].y1, 4.8);
    EXPECT_DOUBLE_EQ(dashes[1].y2, 4.7);
    EXPECT_DOUBLE_EQ(dashes[49].x1, 19.5);
    EXPECT_EQ(main.picture.linewidth, 1);
    const auto names = ScriptedSurface::only(main.picture.passinglayer, Kind::text);
    ASSERT_EQ(names.size(), 2U);
    EXPECT_DOUBLE_EQ(names[0].x1, 4.5);
}

TEST(TideCurve, MarkerStandsAtTheClockOnThePassingLayer) {
    MainFixture main;
    main.load();
    main.session.timenow = 17.0;
    main.picture.clear();
    drawtimemarker(main.session, main.picture);
    EXPECT_EQ(main.session.view.timeval, "17:00");
    EXPECT_EQ(main.session.view.hiteval, "5.5");
    EXPECT_EQ(main.session.view.lblrate, "");
    EXPECT_EQ(ScriptedSurface::only(main.picture.passinglayer, Kind::line, red).size(), 1U);
}

TEST(SpringsBar, ChangesItsEndsHalfWay) {
    MainFixture main;
    main.load();
    const struct {
        double lag;
        const char *left, *right;
        double filled;
    } rows[] = {{2, "Springs", "Neaps", 12},
                {5.7, "Springs", "Neaps", 34},
                {6.1, "Neaps ", "Springs ", 0},
                {9, "Neaps ", "Springs ", 18}};
    for (const auto& row : rows) {
        wave(main.session, 0, 4);
        for (std::size_t i = 1; i <= 149; ++i) {
            const double hours = (static_cast<double>(i) - 1) / 6;
            main.session.prediction.s2layer[i].height = std::cos((hours - 2.05) * 2 * 3.14159265 / 12);
            main.session.prediction.m2layer[i].height = std::cos((hours - 2.05 - row.lag) * 2 * 3.14159265 / 12.42);
        }
        drawtidecurve(main.session, main.surfaces());
        EXPECT_EQ(main.session.view.lblSprings, row.left);
        EXPECT_EQ(main.session.view.lblNeap, row.right);
        ASSERT_EQ(main.bar.persistentlayer.size(), 1U);
        EXPECT_NEAR(main.bar.persistentlayer[0].x2, row.filled, 1.01);
    }
    EXPECT_EQ(main.bar.right, 39);
    const double kept = main.session.curve.springslag;
    main.session.prediction.s2layer.fill({});
    drawtidecurve(main.session, main.surfaces());
    EXPECT_EQ(main.session.view.lblSprings, "");
    EXPECT_EQ(main.session.curve.springslag, kept);
    EXPECT_EQ(main.bar.persistentlayer.size(), 1U);
}

TEST(Constituents, TickedSeriesOverTheTotal) {
    MainFixture main;
    main.load();
    main.session.layersmode = 1;
    main.session.settings.currentoutput = 7;
    const std::size_t whole = 146, grid = 8 + 8;
    drawtidecurve(main.session, main.surfaces());
    EXPECT_EQ(ScriptedSurface::only(main.picture.persistentlayer, Kind::line).size(), whole + grid);
    EXPECT_EQ(texts(main.picture)[7], "6 Metres");
    main.session.layers.fill(true);
    drawtidecurve(main.session, main.surfaces());
    for (const Colour colour : {blue, red, yellow, green, magenta})
        EXPECT_EQ(ScriptedSurface::only(main.picture.persistentlayer, Kind::line, colour).size(), whole) << colour;
    EXPECT_EQ(ScriptedSurface::only(main.picture.persistentlayer, Kind::point, black).size(), 147U);
    EXPECT_EQ(ScriptedSurface::only(main.picture.persistentlayer, Kind::point, red).size(), 147U);
    for (const auto& line : ScriptedSurface::only(main.picture.persistentlayer, Kind::line, yellow))
        EXPECT_NEAR(line.x2 - line.x1, 1.0 / 6, 1e-9);
}

}  // namespace
}  // namespace tarvane
