#include "mainview/monthcommand.h"

#include <gtest/gtest.h>

#include <tuple>

#include "dates/summertime.h"
#include "fakes/mainfixture.h"
#include "mainview/stepping.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

using MonthCommand = LoadedMain;

TEST_F(MonthCommand, ShowsTheMonthRestoresTheDayAndOutlastsItsSteps) {
    session.settings.currentport = 2;  // its zone is an hour behind
    takecurrentport(session, true);
    scripted.clock.reading.hour = 0;
    refreshday(context);
    const auto samples = session.curve.curvesamplescopy;
    const auto lines = session.daytable.daylines;
    session.layersmode = 1;
    session.layers[0] = true;
    picture.backcolour = 0xC0C0C0;
    calculatemonth(context);
    EXPECT_TRUE(session.view.monthvisible);
    EXPECT_EQ(session.month.monthcolumn1[0] + session.month.monthspredictions[3], "Birch Sound4/2024");
    EXPECT_EQ(session.layersmode, 0);
    EXPECT_EQ(picture.backcolour, white);
    EXPECT_EQ(session.daytable.daylines, lines);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
    for (std::size_t i = 0; i < samples.size(); ++i)
        ASSERT_EQ(session.curve.curvesamplescopy[i].height, samples[i].height) << i;
    EXPECT_TRUE(ScriptedSurface::only(picture.persistentlayer, ScriptedSurface::Kind::line, blue).empty());
    EXPECT_FALSE(picture.persistentlayer.empty());
    EXPECT_DOUBLE_EQ(session.timenow, 23 + 32 / 60.0);
    nextday(context);
    EXPECT_FALSE(session.month.monthspredictions.empty());
    EXPECT_TRUE(session.view.monthvisible);
}

TEST_F(MonthCommand, TheCorrectionLineHasItsAre) {
    using Row = std::tuple<std::int16_t, unsigned, const char*>;
    for (const auto& [option, month, line] :
         {Row{0, 4, uncorrectedline}, Row{-1, 4, adjustedline}, Row{-1, 1, uncorrectedline}}) {
        store([option_ = option](ConfigRecord& record) { record.summertimeflag = option_; });
        scripted.clock.set(2024, month, 9);
        load();
        const double sunrise = session.sun.sunrise;
        session.view.disclaimer.clear();
        calculatemonth(context);
        EXPECT_TRUE(session.view.disclaimer.starts_with(std::string(line) + "\r\nHeights in Metres, all data"));
        EXPECT_EQ(session.sun.sunrise, sunrise);
    }
}

}  // namespace
}  // namespace tarvane::tests
