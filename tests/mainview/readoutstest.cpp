#include "mainview/readouts.h"

#include "session/title.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/mainfixture.h"
#include "session/tidecurve.h"

namespace tarvane {
namespace {

using tests::MainFixture;

/// A day whose height rises half a metre an hour until 12:00 and falls from there on.
void roofday(Session& session) {
    for (std::size_t row = 1; row <= 149; ++row) {
        const double hours = (static_cast<double>(row) - 1) / 6;
        session.prediction.curvesamples[row] = {hours, hours <= 12 ? hours / 2 : 12 - hours / 2};
    }
    session.prediction.samplecount = 147;
}

TEST(Readouts, TitleTellsHeightTendencyAndRateAtTheClock) {
    MainFixture main;
    roofday(main.session);
    const struct {
        int hour, minute;
        const char* tail;
    } rows[] = {{8, 0, "     [Time Now 08:00 : Height = 4.0M. : Rising @ 0.5 Mtrs/Hr]"},
                {15, 4, "     [Time Now 15:04 : Height = 4.5M. : Falling @ 0.5 Mtrs/Hr]"},
                {0, 0, "     [Time Now 00:00 : Height = 0.0M. : Rising @ 0.5 Mtrs/Hr]"},
                {23, 59, "     [Time Now 23:59 : Height = 0.0M. : Falling @ 0.5 Mtrs/Hr]"}};
    for (const auto& row : rows) {
        main.scripted.clock.reading.hour = row.hour;
        main.scripted.clock.reading.minute = row.minute;
        rewritetitle(main.session, main.scripted.clock);
        EXPECT_EQ(main.session.view.caption, "Tarvane Tides   (v9.5.0)" + std::string(row.tail));
    }
}

TEST(Readouts, FlatTideRisesAndAStandingClockOfTimesStays) {
    MainFixture main;
    main.session.prediction.samplecount = 147;
    main.session.view.caption = "as it was";
    rewritetitle(main.session, main.scripted.clock);
    EXPECT_EQ(main.session.view.caption, "as it was");
    for (std::size_t row = 1; row <= 149; ++row)
        main.session.prediction.curvesamples[row] = {static_cast<double>(row) / 6, 2};
    rewritetitle(main.session, main.scripted.clock);
    EXPECT_NE(main.session.view.caption.find("Rising @ 0.0"), std::string::npos);
}

TEST(Readouts, MouseTouchesThePassingLayerAlone) {
    MainFixture main;
    main.load();
    const std::string before = ScriptedSurface::log(main.picture.persistentlayer);
    for (const double x : {-3.0, 0.0, 0.01, 12.34, 23.99, 24.0, 40.0, std::numeric_limits<double>::quiet_NaN()}) {
        picturemousemove(main.session, main.picture, x);
        EXPECT_EQ(main.picture.passinglayer.size(), 1U) << x;
    }
    EXPECT_EQ(ScriptedSurface::log(main.picture.persistentlayer), before);
    picturemousemove(main.session, main.picture, 4.7);
    EXPECT_EQ(main.session.view.timeval, "04:40");
    EXPECT_EQ(main.session.view.hiteval, "5.5");
    EXPECT_EQ(main.session.view.lblrate.rfind("(Falling @ 0.", 0), 0U) << main.session.view.lblrate;
    EXPECT_NE(main.session.view.lblrate.find(" Mtrs/Hr  : Draft=0.5M : Clearance=0.5M)"), std::string::npos);
    const auto lines = ScriptedSurface::only(main.picture.passinglayer, ScriptedSurface::Kind::line, red);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].x1, 4.7);
    EXPECT_EQ(lines[0].y1, main.session.curve.curvetop);
}

TEST(Readouts, SecondTickDrawsOnceMoreAndNoOtherDoes) {
    MainFixture main;
    main.load();
    FirstDrawing first;
    int drawings = 0;
    for (int tick = 1; tick <= 25000; ++tick)
        drawings += timer1tick(first, main.session, main.surfaces()) ? 1 : 0;
    EXPECT_EQ(drawings, 1);
    EXPECT_FALSE(ScriptedSurface::only(main.picture.persistentlayer, ScriptedSurface::Kind::line, grey).empty());
}

TEST(Readouts, ADayWithoutPredictionTellsNothing) {
    MainFixture main;
    main.scripted.clock.reading.today = makedate(1990, 1, 2);
    main.load();
    EXPECT_FALSE(picturemousemove(main.session, main.picture, 9));
    EXPECT_EQ(main.session.view.hiteval, "");
}

TEST(Readouts, ConstituentsAddUpAtTheMouse) {
    MainFixture main;
    main.load();
    main.session.layersmode = 1;
    ASSERT_TRUE(picturemousemove(main.session, main.picture, 7.5));
    const LayerReadout& values = main.session.layervalues;
    EXPECT_EQ(values.parts[meanlevelplace], "3");
    EXPECT_EQ(values.sum, main.session.view.hiteval);
    double sum = 0;
    for (const std::string& part : values.parts)
        sum += std::stod(part);
    EXPECT_NEAR(sum, std::stod(values.sum), 0.035);
    EXPECT_NEAR(std::stod(values.sum), main.session.prediction.curvesamples[46].height, 0.006);
}

}  // namespace
}  // namespace tarvane
