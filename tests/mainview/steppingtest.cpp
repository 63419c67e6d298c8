#include "mainview/stepping.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

using DayStep = LoadedMain;
using PortStep = LoadedMain;

TEST_F(DayStep, ForwardAcrossNewYear) {
    scripted.clock.set(2024, 12, 31, 14, 47);
    load();
    EXPECT_EQ(session.onshow.tidedayofyear, 366);
    MainView& view = session.view;
    view.disclaimer.clear();
    view.caption.clear();
    view.topmenusenabled = false;
    nextday(context);
    EXPECT_TRUE(view.disclaimer.starts_with("Times from midnight local time - WITHOUT")) << view.disclaimer;
    EXPECT_TRUE(view.caption.starts_with("Tarvane Tides   (v9.5.0)     [Time Now 14:47 : ")) << view.caption;
    EXPECT_TRUE(view.topmenusenabled);
    EXPECT_EQ(session.onshow.tideyear, 2025);
    EXPECT_EQ(session.onshow.tidedayofyear, 1);
    EXPECT_EQ(session.onshow.tidemonth, 1);
    EXPECT_EQ(session.onshow.tideday, 31);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 01 January 2025 (Wednesday)");
    previousday(context);
    EXPECT_EQ(session.onshow.tideyear, 2024);
    EXPECT_EQ(session.onshow.tidedayofyear, 366);
    EXPECT_EQ(session.onshow.tidemonth, 1);
    EXPECT_EQ(session.daytable.daylines[2], "Date : 31/1/2024");
    EXPECT_EQ(session.view.tidedatebox, "Date   : 31 December 2024 (Tuesday)");
}

TEST_F(DayStep, PredictsTheNewDayAndDrawsTheSunLinesOfTheOld) {
    const double sunrise = session.sun.sunrise;
    session.onshow.tidedate = makedate(2024, 6, 20);
    session.onshow.tideday = 20;
    nextday(context);
    const auto dashes = ScriptedSurface::only(picture.persistentlayer, ScriptedSurface::Kind::line, grey);
    ASSERT_EQ(dashes.size(), 50U);
    EXPECT_EQ(dashes[0].x1, sunrise);
    EXPECT_LT(session.sun.sunrise, sunrise);
    EXPECT_FALSE(picture.persistent);
}

TEST_F(PortStep, KeepsThePortLeftInTheFile) {
    const ConfigRecord before = stored();
    EXPECT_TRUE(nextport(context));
    EXPECT_TRUE(nextport(context));
    EXPECT_EQ(session.settings.currentport, 3);
    EXPECT_EQ(stored().portnumber, 2.0F);
    EXPECT_EQ(stored().hcfilepath, before.hcfilepath);
    EXPECT_EQ(stored().sortmode, before.sortmode);
    load();
    EXPECT_EQ(session.port.portname, "Birch Sound");
    EXPECT_EQ(session.port.zonehours, -1);
    std::filesystem::remove(session.folders.cfgpath());
    nextport(context);
    EXPECT_EQ(stored().portnumber, 2.0F);
    EXPECT_EQ(stored().hcfilepath, before.hcfilepath) << "a configuration that vanished comes back whole";
}

TEST_F(PortStep, StaysAtBothEnds) {
    previousport(context);
    EXPECT_EQ(session.settings.currentport, 1);
    const int drawn = picture.persistentclears;
    previousport(context);
    EXPECT_GT(picture.persistentclears, drawn);
    for (int step = 0; step < 6; ++step)
        nextport(context);
    EXPECT_EQ(session.settings.currentport, 4);
    std::filesystem::remove(area());
    EXPECT_FALSE(nextport(context));
}

TEST_F(PortStep, HidesTheMonthKeepsTheDisclaimerAndCatchesTheDateUp) {
    session.month.monthspredictions = {"a", "b"};
    session.view.monthvisible = true;
    session.view.disclaimer = "as it was";
    session.onshow.tideday = 1;
    nextport(context);
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_FALSE(session.view.monthvisible);
    EXPECT_EQ(session.view.disclaimer, "as it was");
    EXPECT_EQ(session.onshow.tideday, 9);
    EXPECT_EQ(session.view.portbox, "Port    : " + session.port.portname);
    EXPECT_EQ(session.port.portname.size(), 35U);
}

TEST_F(PortStep, UnwritableConfigurationLosesNothing) {
    std::filesystem::remove(session.folders.cfgpath());
    std::filesystem::remove(session.folders.configfolder());
    putfile(session.folders.configfolder(), "in the way");
    EXPECT_TRUE(nextport(context));
    EXPECT_EQ(session.port.portname.substr(0, 5), "Birch");
}

}  // namespace
}  // namespace tarvane::tests
