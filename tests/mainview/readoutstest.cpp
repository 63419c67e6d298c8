#include "mainview/readouts.h"

#include "session/title.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

using Readouts = LoadedMain;

/// A day whose height rises half a metre an hour until 12:00 and falls from there on.
void roofday(Session& session) {
    for (std::size_t row = 1; row <= 149; ++row) {
        const double hours = (static_cast<double>(row) - 1) / 6;
        session.prediction.curvesamples[row] = {hours, hours <= 12 ? hours / 2 : 12 - hours / 2};
    }
    session.prediction.samplecount = 147;
}

TEST_F(Readouts, TitleTellsHeightTendencyAndRateAtTheClock) {
    roofday(session);
    using Row = std::tuple<int, int, const char*>;
    for (const auto& [hour, minute, told] :
         {Row{8, 0, "08:00 : Height = 4.0M. : Rising"}, Row{15, 4, "15:04 : Height = 4.5M. : Falling"},
          Row{0, 0, "00:00 : Height = 0.0M. : Rising"}, Row{23, 59, "23:59 : Height = 0.0M. : Falling"}}) {
        scripted.clock.set(2024, 4, 9, hour, minute);
        rewritetitle(session, scripted.clock);
        EXPECT_EQ(session.view.caption,
                  "Tarvane Tides   (v9.5.0)     [Time Now " + std::string(told) + " @ 0.5 Mtrs/Hr]");
    }
}

TEST_F(Readouts, FlatTideRisesAndAStandingClockOfTimesStays) {
    session.prediction.curvesamples.fill({});
    session.view.caption = "as it was";
    rewritetitle(session, scripted.clock);
    EXPECT_EQ(session.view.caption, "as it was");
    for (std::size_t row = 1; row <= 149; ++row)
        session.prediction.curvesamples[row] = {static_cast<double>(row) / 6, 2};
    rewritetitle(session, scripted.clock);
    EXPECT_NE(session.view.caption.find("Rising @ 0.0"), std::string::npos);
    session.prediction.defined = false;
    EXPECT_FALSE(picturemousemove(session, picture, 9));
}

TEST_F(Readouts, MouseTouchesThePassingLayerAlone) {
    const std::string before = ScriptedSurface::log(picture.persistentlayer);
    for (const double x : {-3.0, 0.0, 0.01, 12.34, 23.99, 24.0, 40.0, std::numeric_limits<double>::quiet_NaN()}) {
        picturemousemove(session, picture, x);
        EXPECT_EQ(picture.passinglayer.size(), 1U) << x;
    }
    EXPECT_EQ(ScriptedSurface::log(picture.persistentlayer), before);
    picturemousemove(session, picture, 4.7);
    EXPECT_EQ(session.view.timeval, "04:40");
    EXPECT_EQ(session.view.hiteval, "5.5");
    EXPECT_EQ(session.view.lblrate.rfind("(Falling @ 0.", 0), 0U) << session.view.lblrate;
    EXPECT_NE(session.view.lblrate.find(" Mtrs/Hr  : Draft=0.5M : Clearance=0.5M)"), std::string::npos);
    const auto lines = ScriptedSurface::only(picture.passinglayer, ScriptedSurface::Kind::line, red);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].x1, 4.7);
    EXPECT_EQ(lines[0].y1, session.curve.curvetop);
}

TEST_F(Readouts, SecondTickDrawsOnceMoreAndNoOtherDoes) {
    FirstDrawing first;
    int drawings = 0;
    for (int tick = 1; tick <= 25000; ++tick)
        drawings += timer1tick(first, session, context.surfaces) ? 1 : 0;
    EXPECT_EQ(drawings, 1);
}

TEST_F(Readouts, ConstituentsAddUpAtTheMouse) {
    session.layersmode = 1;
    ASSERT_TRUE(picturemousemove(session, picture, 7.5));
    const LayerReadout& values = session.layervalues;
    EXPECT_EQ(values.parts[meanlevelplace], "3");
    EXPECT_EQ(values.sum, session.view.hiteval);
    double sum = 0;
    for (const std::string& part : values.parts)
        sum += std::stod(part);
    EXPECT_NEAR(sum, std::stod(values.sum), 0.035);
    EXPECT_NEAR(std::stod(values.sum), session.prediction.curvesamples[46].height, 0.006);
}

}  // namespace
}  // namespace tarvane::tests
