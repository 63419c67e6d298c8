#include <gtest/gtest.h>

#include "fakes/mainfixture.h"
#include "mainview/layersview.h"
#include "mainview/stepping.h"

namespace tarvane::tests {
namespace {

using LayersView = LoadedMain;

TEST_F(LayersView, TurnsOnAndOffAndCatchesTheDateUp) {
    nextday(context);
    session.month.monthcells[1][1][1] = "00:10";
    session.month.monthcolumn1 = {"kept"};
    session.view.monthvisible = true;
    togglelayers(context);
    EXPECT_EQ(session.layersmode, 1);
    EXPECT_EQ(picture.backcolour, 0xC0C0C0U);
    EXPECT_EQ(session.onshow.tideday, 10);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 10 April 2024 (Wednesday)");
    EXPECT_EQ(session.month.monthcells[1][1][1], "");
    EXPECT_EQ(session.month.monthcolumn1.size(), 1U);
    EXPECT_FALSE(session.view.monthvisible);
    EXPECT_FALSE(picture.persistent);
    togglelayers(context);
    EXPECT_EQ(session.layersmode, 0);
    EXPECT_EQ(picture.backcolour, 0xFFFFFFU);
}

TEST_F(LayersView, SavingAndPrintingFollowADateStep) {
    togglelayers(context);
    nextday(context);
    EXPECT_EQ(session.curve.curvesamplescopy[20].height, session.prediction.curvesamples[20].height);
}

TEST_F(LayersView, ADayPastTheYearBecomesTheNextYearsFirst) {
    const struct { int year, past; } rows[] = {{2024, 367}, {2023, 366}, {1900, 366}, {2000, 367}};
    for (const auto& row : rows) {
        session.onshow.tideyear = row.year;
        session.onshow.tidedayofyear = row.past;
        togglelayers(context);
        EXPECT_EQ(session.onshow.tideyear, row.year + 1);
        EXPECT_EQ(session.onshow.tidedayofyear, 1);
        EXPECT_EQ(session.onshow.tidemonth, 1);
    }
}

}  // namespace
}  // namespace tarvane::tests
