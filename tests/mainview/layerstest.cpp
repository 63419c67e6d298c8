#include <gtest/gtest.h>

#include "fakes/mainfixture.h"
#include "mainview/layersview.h"
#include "mainview/stepping.h"

namespace tarvane {
namespace {

using tests::MainFixture;

TEST(LayersView, TurnsOnAndOffAndCatchesTheDateUp) {
    MainFixture main;
    main.load();
    nextday(main.context);
    main.session.month.monthcells[1][1][1] = "00:10";
    main.session.month.monthcolumn1 = {"kept"};
    main.session.view.monthvisible = true;
    togglelayers(main.context);
    EXPECT_EQ(main.session.layersmode, 1);
    EXPECT_EQ(main.picture.backcolour, 0xC0C0C0U);
    EXPECT_EQ(main.session.onshow.tideday, 10);
    EXPECT_EQ(main.session.view.tidedatebox, "Date   : 10 April 2024 (Wednesday)");
    EXPECT_EQ(main.session.month.monthcells[1][1][1], "");
    EXPECT_EQ(main.session.month.monthcolumn1.size(), 1U);
    EXPECT_FALSE(main.session.view.monthvisible);
    EXPECT_FALSE(main.picture.persistent);
    togglelayers(main.context);
    EXPECT_EQ(main.session.layersmode, 0);
    EXPECT_EQ(main.picture.backcolour, 0xFFFFFFU);
}

TEST(LayersView, SavingAndPrintingFollowADateStep) {
    MainFixture main;
    main.load();
    togglelayers(main.context);
    nextday(main.context);
    EXPECT_EQ(main.session.curve.curvesamplescopy[20].height, main.session.prediction.curvesamples[20].height);
}

TEST(LayersView, ADayPastTheYearBecomesTheNextYearsFirst) {
    const struct { int year, past; } rows[] = {{2024, 367}, {2023, 366}, {1900, 366}, {2000, 367}};
    for (const auto& row : rows) {
        MainFixture main;
        main.load();
        main.session.onshow.tideyear = row.year;
        main.session.onshow.tidedayofyear = row.past;
        togglelayers(main.context);
        EXPECT_EQ(main.session.onshow.tideyear, row.year + 1);
        EXPECT_EQ(main.session.onshow.tidedayofyear, 1);
        EXPECT_EQ(main.session.onshow.tidemonth, 1);
    }
}

}  // namespace
}  // namespace tarvane
