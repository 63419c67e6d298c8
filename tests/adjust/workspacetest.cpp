#include "adjust/workspace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "adjust/savelocation.h"
#include "fakes/mainfixture.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane::tests {
namespace {

TEST(ConstantRows, MeansAndSteps) {
    HarmonicRecord first, second;
    first.M2g = 350;
    second.M2g = 10;
    first.Z0 = 3;
    second.Z0 = 4.5F;
    first.S2g = 100;
    second.S2g = 140;
    const ConstantTexts plain = plainmeans(first, second);
    EXPECT_EQ(plain[0], "3.75");
    EXPECT_EQ(plain[1], "180") << "no care for north";
    EXPECT_TRUE(acrossnorth(constantrows[1], first, second));
    EXPECT_FALSE(acrossnorth(constantrows[3], first, second));
    EXPECT_FALSE(acrossnorth(constantrows[0], first, second));
    EXPECT_NEAR(circlemean(350, 10), 0, 1e-9);
    EXPECT_NEAR(circlemean(350, 10, 0.75), 355, 0.1);
    EXPECT_NEAR(circlemean(100, 140), 120, 1e-9);
    EXPECT_EQ(steptext(constantrows[0], -2000), "-20");
    EXPECT_EQ(steptext(constantrows[2], 7), "0.07");
    EXPECT_EQ(steptext(constantrows[1], 359), "359");
    EXPECT_EQ(stepof(constantrows[2], 7.5), 600) << "no further than the control goes";
    EXPECT_EQ(stepof(constantrows[0], -1.234), -123);
}

TEST(ConstantRows, ByDistanceTheNearerPortCountsMore) {
    HarmonicRecord south, north;
    south.PortLat = 50;
    north.PortLat = 51;
    south.PortLong = north.PortLong = -2;
    south.M2Hm = 1;
    north.M2Hm = 2;
    south.M2g = 350;
    north.M2g = 30;
    const ConstantTexts quarter = distancemeans(south, north, 50.25, -2);
    EXPECT_EQ(quarter[2], "1.250");
    EXPECT_NEAR(val(quarter[1]), 359.6, 0.3) << "on the circle";
    EXPECT_EQ(distancemeans(south, north, 51, -2)[2], "2.000");
}

struct Workspace : LoadedMain {
    Workspace() {
        HarmonicRecord later = fixtureport("Birch Sound", 4, "M");
        later.M2g = 160;
        writeport(area(), 2, later);
    }
    AdjustWorkspace opened() { return openworkspace(context); }

    /// Readings of the intermediate curve, every half hour, so much higher and later.
    std::string readings(const AdjustWorkspace& workspace, double higher, int later, std::size_t count) {
        std::vector<HeightRecord> all;
        for (std::size_t i = 0; i < count; ++i) {
            const auto& sample = workspace.curves[intermediatecurve].curvesamples[20 + 3 * i];
            all.push_back({static_cast<float>(sample.time + later / 60.0), static_cast<float>(sample.height + higher)});
        }
        writeheights(folder / "creek.ht", all);
        return folder / "creek.ht";
    }
};

TEST_F(Workspace, OpensOnTheCurrentPortAndTheNextWithTheirMeans) {
    const AdjustWorkspace workspace = opened();
    EXPECT_EQ(workspace.name1 + "|" + workspace.name2, "Alder Quay|Birch Sound");
    EXPECT_EQ(session.settings.currentport, 1) << "Port 2 is current for its reading alone";
    EXPECT_EQ(workspace.port1[1] + "|" + workspace.port2[1] + "|" + workspace.boxes[1], "120|160|140");
    EXPECT_EQ(workspace.steps[0], 350);
    EXPECT_EQ(workspace.tidedatebox, "Date   : 9 April 2024 (Tuesday)");
    EXPECT_EQ(workspace.timeval, "(Click mouse to freeze)");
    // 40 degrees of M2 are an hour and 23 minutes; the intermediate tide lies half way.
    const auto firstwater = [&](CurvePlace place) { return workspace.curves[place].turningpoints[1].time; };
    EXPECT_NEAR(firstwater(port2curve) - firstwater(port1curve), 1.2, 0.25);
    EXPECT_NEAR(firstwater(intermediatecurve) - firstwater(port1curve), 0.6, 0.2);
    EXPECT_EQ(workspace.curves[port1curve].curvesamples[1].time, -99);
    EXPECT_EQ(workspace.curves[port1curve].samplecount, 148);
}

TEST_F(Workspace, WithoutAFollowingRecordItSaysSo) {
    changeconfig(session.folders, session.settings, [](ConfigRecord& record) { record.portnumber = 4; });
    AdjustWorkspace workspace = opened();
    EXPECT_NE(workspace.answer.find("Alder Quay is the last port of its area"), std::string::npos);
    EXPECT_EQ(workspace.boxes, workspace.port1);
    workspacemove(workspace, 6);
    EXPECT_EQ(workspace.columns[port2curve].total, "");
    EXPECT_NE(workspace.columns[port1curve].total, "");
    std::filesystem::remove(area());
    EXPECT_NE(opened().answer.find("There is no current port"), std::string::npos);
}

TEST_F(Workspace, NothingMovesUntilCalculate) {
    AdjustWorkspace workspace = opened();
    const double before = workspace.curves[intermediatecurve].curvesamples[40].height;
    stepconstant(workspace, 0, 600);
    EXPECT_EQ(workspace.boxes[0], "6");
    workspace.boxes[2] = "7.5 or so";
    EXPECT_EQ(workspace.curves[intermediatecurve].curvesamples[40].height, before);
    cmdcalc(workspace, context);
    EXPECT_GT(workspace.curves[intermediatecurve].turningpoints[1].height, 12) << "a typed value knows no limit";
    EXPECT_EQ(session.settings.currentport, 1) << "as the configuration has it";
    workspacemove(workspace, 9.02);
    EXPECT_EQ(workspace.timeval, "09:00");
    EXPECT_NEAR(val(workspace.columns[intermediatecurve].total),
                workspace.curves[intermediatecurve].curvesamples[55].height, 0.02);
    EXPECT_EQ(workspace.columns[intermediatecurve].parts[meanlevelplace], "6");
    workspacepress(workspace);
    workspacemove(workspace, 15);
    EXPECT_EQ(workspace.timeval, "09:00");
}

TEST_F(Workspace, DrawsCurvesOverOneFloorAndReadingsUntilTheDayIsStepped) {
    AdjustWorkspace workspace = opened();
    chooseheights(workspace, readings(workspace, 0, 0, 9));
    EXPECT_EQ(workspace.answer, "Not enough data to draw in a curve");
    chooseheights(workspace, readings(workspace, 0, 0, 10));
    using Kind = ScriptedSurface::Kind;
    const auto greenlines = [&](CurvePlace place) {
        DrawAdjustCurve(workspace, place, picture);
        return ScriptedSurface::only(picture.persistentlayer, Kind::line, 0x00FF00).size();
    };
    const std::size_t f4 = greenlines(port1curve);
    EXPECT_EQ(greenlines(intermediatecurve), f4 + 9);
    EXPECT_EQ(picture.bottom, -2);
    EXPECT_EQ(picture.top, std::trunc(picture.top));
    stepworkspace(workspace, context, 1);
    EXPECT_EQ(workspace.heightfile, "");
    EXPECT_EQ(TurningText(workspace.curves[port1curve]).substr(0, 5),
              timetext(workspace.curves[0].turningpoints[1].time));
    EXPECT_EQ(greenlines(intermediatecurve), f4);
    EXPECT_EQ(workspace.tidedatebox, "Date   : 10 April 2024 (Wednesday)");
}

TEST_F(Workspace, AFitFillsTheBoxesAndOneUndoBringsThemBack) {
    AdjustWorkspace workspace = opened();
    const ConstantTexts before = workspace.boxes;
    EXPECT_NE(fitworkspace(workspace, context).refusal.find("There are 0 readings"), std::string::npos);
    EXPECT_EQ(workspace.boxes, before);
    chooseheights(workspace, readings(workspace, 0.5, 30, 25));
    const HeightFit fit = fitworkspace(workspace, context);
    ASSERT_EQ(fit.refusal, "");
    EXPECT_NEAR(val(workspace.boxes[0]), 4.0, 0.01);
    EXPECT_NEAR(val(workspace.boxes[1]), 140 + 14.45, 0.3) << "half an hour of M2";
    EXPECT_NE(fittext(fit, workspace.readings).find("Tide later by 30.0 minutes (+/- 0."), std::string::npos)
        << fittext(fit, workspace.readings);
    const auto& sample = workspace.curves[intermediatecurve].curvesamples[23];
    EXPECT_NEAR(sample.height, workspace.readings[0].obsheight, 0.02);
    // What is saved carries the fit's own figures, as long as the boxes are those that it filled.
    const auto saved = [&](const char* name) {
        const SaveChoice choice{"Mine", name, false, -1, ""};
        EXPECT_EQ(savelocation(workspace, session, choice, makedate(2026, 3, 3)).message, "");
        const std::string mine = session.folders.programfolder + "/Mine.hc";
        return *madeof(areanotes(session.folders, mine), readports(mine).back());
    };
    const OwnMade fitted = saved("Creek");
    EXPECT_EQ(fitted.how, OwnHow::fitted);
    EXPECT_EQ(fitted.date, "2026-03-03");
    ASSERT_TRUE(fitted.fit);
    EXPECT_EQ(fitted.fit->readings + fitted.fit->leftout, static_cast<int>(workspace.readings.size()));
    EXPECT_EQ(fitted.fit->after, fit.after.rms);
    EXPECT_EQ(fitted.fit->day, "2024-04-09");
    EXPECT_NEAR(fitted.fit->hours, workspace.readings.back().obstime - workspace.readings.front().obstime, 1e-6);
    undoboxes(workspace);
    EXPECT_EQ(workspace.boxes, before);
    EXPECT_FALSE(workspace.undo.has_value());
    const OwnMade derived = saved("Pool");
    EXPECT_EQ(derived.how, OwnHow::derived);
    EXPECT_EQ(derived.from, workspace.name1 + " and " + workspace.name2);
    loadintermediate(workspace, readport(area(), 3));
    EXPECT_EQ(saved("Head").from, "Cedar Head");
}

}  // namespace
}  // namespace tarvane::tests
