#include "mainview/monthcommand.h"

#include <gtest/gtest.h>

#include "dates/summertime.h"
#include "mainview/mainfixture.h"
#include "mainview/stepping.h"

namespace tarvane {
namespace {

using tests::MainFixture;

const std::string accuracy =
    "\r\nHeights in Metres, all data are derived and should therefore be considered as approximate";

TEST(MonthCommand, ShowsTheMonthAndRestoresTheDay) {
    MainFixture main;
    main.load();
    refreshday(main.context);
    Session& session = main.session;
    const auto samples = session.prediction.curvesamples;
    const DateOnShow onshow = session.onshow;
    const auto lines = session.daytable.daylines;
    const std::string caption = session.daytable.daystide1;
    const auto drawn = ScriptedSurface::log(main.picture.persistentlayer);
    calculatemonth(main.context);
    EXPECT_TRUE(session.view.monthvisible);
    EXPECT_EQ(session.month.monthspredictions[2], "Alder Quay");
    EXPECT_EQ(session.month.monthspredictions[3], "4/2024");
    EXPECT_EQ(session.month.monthcells[30][3][1].size(), 1U);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        ASSERT_EQ(session.prediction.curvesamples[i].height, samples[i].height) << i;
    }
    EXPECT_EQ(session.daytable.daylines, lines);
    EXPECT_EQ(session.daytable.daystide1, caption);
    EXPECT_EQ(session.onshow.tidedate, onshow.tidedate);
    EXPECT_EQ(session.onshow.tidedayofyear, onshow.tidedayofyear);
    EXPECT_EQ(session.curve.curvesamplescopy[29].height, samples[29].height);
    EXPECT_TRUE(ScriptedSurface::log(main.picture.persistentlayer) == drawn);
    EXPECT_FALSE(main.picture.persistent);
}

TEST(MonthCommand, LeavesTheConstituentsView) {
    MainFixture main;
    main.load();
    main.session.layersmode = 1;
    main.session.layers.m2 = true;
    main.picture.backcolour = 0xC0C0C0;
    calculatemonth(main.context);
    EXPECT_EQ(main.session.layersmode, 0);
    EXPECT_EQ(main.picture.backcolour, white);
    EXPECT_TRUE(ScriptedSurface::only(main.picture.persistentlayer, ScriptedSurface::Kind::line, blue).empty());
    const std::string top = std::to_string(static_cast<int>(main.session.curve.curvetop)) + "M\n";
    EXPECT_NE(ScriptedSurface::log(main.picture.persistentlayer).find(top), std::string::npos);
}

TEST(MonthCommand, TheClockIsTakenToThePortsZone) {
    struct Row {
        std::int16_t port;  // its zone's letter: L, M, an eastern K
        int hour, minute;
        double timenow;
    };
    for (const Row& row : {Row{1, 14, 30, 14.5}, Row{2, 14, 30, 13.5}, Row{2, 0, 15, 23.25}, Row{5, 14, 30, 15.5},
                           Row{5, 23, 30, 0.5}}) {
        MainFixture main;
        writeport(main.area(), 5, tests::fixtureport("Kestrel Bank", 3, "K"));
        ConfigRecord record = main.stored();
        record.portnumber = row.port;
        ASSERT_TRUE(SaveConfig(main.session.folders, record));
        main.scripted.clock.reading.hour = row.hour;
        main.scripted.clock.reading.minute = row.minute;
        main.load();
        calculatemonth(main.context);
        EXPECT_DOUBLE_EQ(main.session.timenow, row.timenow) << row.port;
        EXPECT_DOUBLE_EQ(main.session.clocktime, row.hour + row.minute / 60.0);
        EXPECT_EQ(dayof(main.session.onshow.tidedate), 9);
    }
}

TEST(MonthCommand, TheCorrectionLineHasItsAre) {
    struct Row {
        std::int16_t option;
        int month;
        const char* line;
    };
    for (const Row& row : {Row{0, 4, uncorrectedline}, Row{-1, 4, adjustedline}, Row{-1, 1, uncorrectedline}}) {
        MainFixture main;
        ConfigRecord record = main.stored();
        record.summertimeflag = row.option;
        ASSERT_TRUE(SaveConfig(main.session.folders, record));
        main.scripted.clock.set(2024, static_cast<unsigned>(row.month), 9);
        main.load();
        calculatemonth(main.context);
        EXPECT_EQ(main.session.view.disclaimer, row.line + accuracy);
        EXPECT_EQ(main.session.sun.sunrise > 5.5, row.option != 0 || row.month == 1) << main.session.sun.sunrise;
    }
}

TEST(MonthCommand, StepsOfTheDateLeaveTheTableStepsOfThePortHideIt) {
    MainFixture main;
    main.load();
    calculatemonth(main.context);
    const auto rows = main.session.month.monthspredictions;
    nextday(main.context);
    previousday(main.context);
    EXPECT_EQ(main.session.month.monthspredictions, rows);
    EXPECT_TRUE(main.session.view.monthvisible);
    ASSERT_TRUE(nextport(main.context));
    EXPECT_TRUE(main.session.month.monthspredictions.empty());
    EXPECT_FALSE(main.session.view.monthvisible);
    calculatemonth(main.context);
    EXPECT_EQ(main.session.month.monthspredictions[2], "Birch Soun");
    EXPECT_EQ(main.session.month.monthcolumn1[0], "Birch Sound");
    EXPECT_EQ(main.session.month.monthcells[33 - 2][3][1], "");
}

TEST(MonthCommand, TheTableBeforeItIsSavedOrCopied) {
    struct Row {
        std::size_t rows;
        bool calculated;
        bool have;
    };
    for (const Row& row : {Row{0, true, true}, Row{9, true, true}, Row{10, false, false}, Row{11, false, true}}) {
        MainFixture main;
        main.load();
        main.session.month.monthspredictions.assign(row.rows, "x");
        if (!row.have)
            main.scripted.messages.expectshow("Calculate a months tides\rbefore choosing this option", "Tarvane",
                                              MessageIcon::information);
        EXPECT_EQ(havemonthtable(main.context), row.have) << row.rows;
        EXPECT_EQ(main.session.view.monthvisible, row.calculated) << row.rows;
    }
}

}  // namespace
}  // namespace tarvane
