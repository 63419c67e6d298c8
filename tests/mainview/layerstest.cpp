#include <gtest/gtest.h>

#include <array>

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
    using Row = std::array<int, 4>;
    for (const auto& [year, dayofyear, yearthen, daythen] :
         {Row{2024, 367, 2025, 1}, Row{2024, 366, 2024, 366}, Row{2023, 366, 2024, 1}, Row{1900, 366, 1901, 1}}) {
        session.onshow.tideyear = year;
        session.onshow.tidedayofyear = dayofyear;
        togglelayers(context);
        EXPECT_EQ(session.onshow.tideyear, yearthen) << year;
        EXPECT_EQ(session.onshow.tidedayofyear, daythen) << year;
    }
}

}  // namespace
}  // namespace tarvane::tests
