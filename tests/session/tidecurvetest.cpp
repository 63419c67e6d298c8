#include "session/tidecurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

using TideCurve = LoadedMain;
using SpringsBar = LoadedMain;
using Constituents = LoadedMain;
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

TEST_F(TideCurve, ScaleGridAndLabels) {
    using Row = std::tuple<double, double, double, double, std::vector<std::string>>;
    for (const auto& [least, greatest, top, bottom, labels] :
         {Row{0.4, 3.5, 4, 0, {"-1", "0", "1", "2", "3", "4M"}},
          Row{-0.5, 4.0, 5, -1, {"-1", "0", "1", "2", "3", "4", "5M"}}, Row{-2.5, 0.5, 1, -3, {"-1", "0", "1M"}},
          Row{-6, -5, 1, -6, {"-1", "0", "1M"}}}) {
        wave(session, least, greatest);
        session.settings.currentoutput = 1;
        drawtidecurve(session, surfaces());
        EXPECT_EQ(picture.top, top);
        EXPECT_NEAR(picture.bottom, bottom, 1e-3);
        EXPECT_EQ(picture.left, 0);
        EXPECT_EQ(picture.right, 24);
        std::vector<std::string> wanted = labels;
        wanted.insert(wanted.end(), {"Sunrise", "Sunset"});
        EXPECT_EQ(texts(picture), wanted);
        const auto lines = ScriptedSurface::only(picture.persistentlayer, Kind::line);
        EXPECT_EQ(lines.size(), 146U + 8U + labels.size());
        EXPECT_TRUE(ScriptedSurface::only(picture.persistentlayer, Kind::point).empty());
        EXPECT_EQ(ScriptedSurface::log(window.persistentlayer),
                  "625 4220 0 0 0 1 03:00\n1350 4220 0 0 0 1 06:00\n2075 4220 0 0 0 1 09:00\n2800 4220 0 0 0 1 12:00\n"
                  "3525 4220 0 0 0 1 15:00\n4250 4220 0 0 0 1 18:00\n4975 4220 0 0 0 1 21:00 Hours\n");
    }
}

TEST_F(TideCurve, DottedCurveWithOptionThreeOnly) {
    wave(session, 0, 4);
    for (const float option : {1.0F, 2.0F, 3.0F, 7.0F}) {
        session.settings.currentoutput = option;
        session.settings.currentdraught = 1.5F;
        session.settings.currentukc = 0.5F;
        drawtidecurve(session, surfaces());
        const auto dots = ScriptedSurface::only(picture.persistentlayer, Kind::point);
        ASSERT_EQ(dots.size(), option == 3 ? 147U : 0U);
        if (!dots.empty()) {
            EXPECT_DOUBLE_EQ(dots[0].y1, 2);
        }
    }
    EXPECT_EQ(ScriptedSurface::only(picture.persistentlayer, Kind::line).size(), 8U + 3U);
}

TEST_F(TideCurve, SunLinesAreDashedToTheBottom) {
    session.curve.curvetop = 5;
    session.curve.curvebottom = 0;
    session.sun.sunrise = 6;
    session.sun.sunset = 19.5;
    picture.clear();
    drawsunlines(session, picture);
    const auto dashes = ScriptedSurface::only(picture.passinglayer, Kind::line, grey);
    ASSERT_EQ(dashes.size(), 50U);
    EXPECT_EQ(dashes[0].width, 2);
    EXPECT_DOUBLE_EQ(dashes[1].y1, 4.8);
    EXPECT_DOUBLE_EQ(dashes[1].y2, 4.7);
    EXPECT_DOUBLE_EQ(dashes[49].x1, 19.5);
    EXPECT_EQ(picture.linewidth, 1);
    const auto names = ScriptedSurface::only(picture.passinglayer, Kind::text);
    ASSERT_EQ(names.size(), 2U);
    EXPECT_DOUBLE_EQ(names[0].x1, 4.5);
}

TEST_F(SpringsBar, ChangesItsEndsHalfWay) {
    using Row = std::tuple<double, const char*, const char*, double>;
    for (const auto& [lag, left, right, filled] :
         {Row{2, "Springs", "Neaps", 12}, Row{5.7, "Springs", "Neaps", 34}, Row{6.1, "Neaps ", "Springs ", 0},
          Row{9, "Neaps ", "Springs ", 18}}) {
        wave(session, 0, 4);
        for (std::size_t i = 1; i <= 149; ++i) {
            const double hours = (static_cast<double>(i) - 1) / 6;
            session.prediction.s2layer[i].height = std::cos((hours - 2.05) * 2 * 3.14159265 / 12);
            session.prediction.m2layer[i].height = std::cos((hours - 2.05 - lag) * 2 * 3.14159265 / 12.42);
        }
        drawtidecurve(session, surfaces());
        EXPECT_EQ(session.view.lblSprings, left);
        EXPECT_EQ(session.view.lblNeap, right);
        ASSERT_EQ(bar.persistentlayer.size(), 1U);
        EXPECT_NEAR(bar.persistentlayer[0].x2, filled, 1.01);
    }
    EXPECT_EQ(bar.right, 39);
    const double kept = session.curve.springslag;
    session.prediction.s2layer.fill({});
    drawtidecurve(session, surfaces());
    EXPECT_EQ(session.view.lblSprings, "");
    EXPECT_EQ(session.curve.springslag, kept);
    EXPECT_EQ(bar.persistentlayer.size(), 1U);
}

TEST_F(Constituents, TickedSeriesOverTheTotal) {
    session.layersmode = 1;
    session.settings.currentoutput = 7;
    const std::size_t whole = 146, grid = 8 + 8;
    drawtidecurve(session, surfaces());
    EXPECT_EQ(ScriptedSurface::only(picture.persistentlayer, Kind::line).size(), whole + grid);
    EXPECT_EQ(texts(picture)[7], "6 Metres");
    session.layers.fill(true);
    drawtidecurve(session, surfaces());
    for (const Colour colour : {blue, red, yellow, green, magenta})
        EXPECT_EQ(ScriptedSurface::only(picture.persistentlayer, Kind::line, colour).size(), whole) << colour;
    EXPECT_EQ(ScriptedSurface::only(picture.persistentlayer, Kind::point, black).size(), 147U);
    EXPECT_EQ(ScriptedSurface::only(picture.persistentlayer, Kind::point, red).size(), 147U);
    for (const auto& line : ScriptedSurface::only(picture.persistentlayer, Kind::line, yellow))
        EXPECT_NEAR(line.x2 - line.x1, 1.0 / 6, 1e-9);
}

}  // namespace
}  // namespace tarvane::tests
