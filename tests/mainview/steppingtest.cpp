#include "mainview/stepping.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "files/wholefiles.h"

namespace tarvane {
namespace {

using tests::MainFixture;

TEST(DayStep, ForwardAcrossNewYear) {
    MainFixture main;
    main.scripted.clock.reading.today = makedate(2024, 12, 31);
    main.load();
    EXPECT_EQ(main.session.onshow.tidedayofyear, 366);
    MainView& view = main.session.view;
    view.disclaimer.clear();
    view.topmenusenabled = false;
    main.scripted.clock.reading.minute = 47;
    nextday(main.context);
    EXPECT_TRUE(view.disclaimer.starts_with("Times from midnight local time - WITHOUT")) << view.disclaimer;
    EXPECT_TRUE(view.caption.starts_with("Tarvane Tides   (v9.5.0)     [Time Now 14:47 : ")) << view.caption;
    EXPECT_TRUE(view.topmenusenabled);
    EXPECT_EQ(main.session.onshow.tideyear, 2025);
    EXPECT_EQ(main.session.onshow.tidedayofyear, 1);
    EXPECT_EQ(main.session.onshow.tidemonth, 1);
    EXPECT_EQ(main.session.onshow.tideday, 31);
    EXPECT_EQ(main.session.view.tidedatebox, "Date   : 01 January 2025 (Wednesday)");
    previousday(main.context);
    EXPECT_EQ(main.session.onshow.tideyear, 2024);
    EXPECT_EQ(main.session.onshow.tidedayofyear, 366);
    EXPECT_EQ(main.session.onshow.tidemonth, 1);
    EXPECT_EQ(main.session.daytable.daylines[2], "Date : 31/1/2024");
    EXPECT_EQ(main.session.view.tidedatebox, "Date   : 31 December 2024 (Tuesday)");
}

TEST(DayStep, PredictsTheNewDayAndDrawsTheSunLinesOfTheOld) {
    MainFixture main;
    main.load();
    const double sunrise = main.session.sun.sunrise;
    main.session.onshow.tidedate = makedate(2024, 6, 20);
    main.session.onshow.tideday = 20;
    nextday(main.context);
    const auto dashes = ScriptedSurface::only(main.picture.persistentlayer, ScriptedSurface::Kind::line, grey);
    ASSERT_EQ(dashes.size(), 50U);
    EXPECT_EQ(dashes[0].x1, sunrise);
    EXPECT_LT(main.session.sun.sunrise, sunrise);
    EXPECT_FALSE(main.picture.persistent);
}

TEST(PortStep, KeepsThePortLeftInTheFile) {
    MainFixture main;
    main.load();
    const ConfigRecord before = main.stored();
    EXPECT_TRUE(nextport(main.context));
    EXPECT_TRUE(nextport(main.context));
    EXPECT_EQ(main.session.settings.currentport, 3);
    EXPECT_EQ(main.stored().portnumber, 2.0F);
    EXPECT_EQ(main.stored().hcfilepath, before.hcfilepath);
    EXPECT_EQ(main.stored().sortmode, before.sortmode);
    main.load();
    EXPECT_EQ(main.session.port.portname, "Birch Sound");
    EXPECT_EQ(main.session.port.zonehours, -1);
}

TEST(PortStep, AVanishedConfigurationComesBackWhole) {
    MainFixture main;
    main.load();
    std::filesystem::remove(main.session.folders.cfgpath());
    nextport(main.context);
    EXPECT_EQ(main.stored().portnumber, 1.0F);
    EXPECT_EQ(main.stored().hcfilepath, main.area());
}

TEST(PortStep, StaysAtBothEnds) {
    MainFixture main;
    main.load();
    previousport(main.context);
    EXPECT_EQ(main.session.settings.currentport, 1);
    const int drawn = main.picture.persistentclears;
    previousport(main.context);
    EXPECT_GT(main.picture.persistentclears, drawn);
    for (int step = 0; step < 6; ++step)
        nextport(main.context);
    EXPECT_EQ(main.session.settings.currentport, 4);
    std::filesystem::remove(main.area());
    EXPECT_FALSE(nextport(main.context));
}

TEST(PortStep, HidesTheMonthKeepsTheDisclaimerAndCatchesTheDateUp) {
    MainFixture main;
    main.load();
    main.session.month.monthspredictions = {"a", "b"};
    main.session.view.monthvisible = true;
    main.session.view.disclaimer = "as it was";
    main.session.onshow.tideday = 1;
    nextport(main.context);
    EXPECT_TRUE(main.session.month.monthspredictions.empty());
    EXPECT_FALSE(main.session.view.monthvisible);
    EXPECT_EQ(main.session.view.disclaimer, "as it was");
    EXPECT_EQ(main.session.onshow.tideday, 9);
    EXPECT_EQ(main.session.view.portbox, "Port    : " + main.session.port.portname);
    EXPECT_EQ(main.session.port.portname.size(), 35U);
}

TEST(PortStep, UnwritableConfigurationLosesNothing) {
    MainFixture main;
    main.load();
    std::filesystem::remove(main.session.folders.cfgpath());
    std::filesystem::remove(main.session.folders.configfolder());
    replacefile(main.session.folders.configfolder(), std::string("in the way"));
    EXPECT_TRUE(nextport(main.context));
    EXPECT_EQ(main.session.port.portname.substr(0, 5), "Birch");
}

}  // namespace
}  // namespace tarvane
