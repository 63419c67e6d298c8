#include "mainview/monthcommand.h"

#include <gtest/gtest.h>

#include "dates/summertime.h"
#include "fakes/mainfixture.h"
#include "mainview/stepping.h"
#include "session/refresh.h"

namespace tarvane {
namespace {

using tests::MainFixture;

TEST(MonthCommand, ShowsTheMonthRestoresTheDayAndOutlastsItsSteps) {
    MainFixture main;
    main.load();
    Session& session = main.session;
    session.settings.currentport = 2;  // its zone is an hour behind
    takecurrentport(session, true);
    main.scripted.clock.reading.hour = 0;
    refreshday(main.context);
    const auto samples = session.curve.curvesamplescopy;
    const auto lines = session.daytable.daylines;
    session.layersmode = 1;
    session.layers[0] = true;
    main.picture.backcolour = 0xC0C0C0;
    calculatemonth(main.context);
    EXPECT_TRUE(session.view.monthvisible);
    EXPECT_EQ(session.month.monthcolumn1[0] + session.month.monthspredictions[3], "Birch Sound4/2024");
    EXPECT_EQ(session.layersmode, 0);
    EXPECT_EQ(main.picture.backcolour, white);
    EXPECT_EQ(session.daytable.daylines, lines);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
    for (std::size_t i = 0; i < samples.size(); ++i)
        ASSERT_EQ(session.curve.curvesamplescopy[i].height, samples[i].height) << i;
    EXPECT_TRUE(ScriptedSurface::only(main.picture.persistentlayer, ScriptedSurface::Kind::line, blue).empty());
    EXPECT_FALSE(main.picture.persistentlayer.empty());
    EXPECT_DOUBLE_EQ(session.timenow, 23 + 32 / 60.0);
    nextday(main.context);
    EXPECT_FALSE(session.month.monthspredictions.empty());
    EXPECT_TRUE(session.view.monthvisible);
}

TEST(MonthCommand, TheCorrectionLineHasItsAre) {
    struct Row {
        std::int16_t option;
        unsigned month;
        const char* line;
    };
    for (const Row& row : {Row{0, 4, uncorrectedline}, Row{-1, 4, adjustedline}, Row{-1, 1, uncorrectedline}}) {
        MainFixture main;
        ConfigRecord record = main.stored();
        record.summertimeflag = row.option;
        ASSERT_TRUE(SaveConfig(main.session.folders, record));
        main.scripted.clock.set(2024, row.month, 9);
        main.load();
        const double sunrise = main.session.sun.sunrise;
        main.session.view.disclaimer.clear();
        calculatemonth(main.context);
        EXPECT_TRUE(
            main.session.view.disclaimer.starts_with(std::string(row.line) + "\r\nHeights in Metres, all data"));
        EXPECT_EQ(main.session.sun.sunrise, sunrise);
    }
}

}  // namespace
}  // namespace tarvane
