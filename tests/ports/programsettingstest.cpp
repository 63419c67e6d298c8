#include "ports/programsettings.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <tuple>

#include "dates/summertime.h"
#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "portdata/userdepths.h"

namespace tarvane::tests {
namespace {

using ProgramSettingsTest = LoadedMain;

TEST(OptionTextTest, MetresAsTheBoxesShowThem) {
    for (const auto& [metres, text] :
         {std::pair{-0.0F, "0.0"}, {0.5F, "0.5"}, {0.05F, "0.05"}, {10.0F, "10"}, {-0.5F, "-.5"}})
        EXPECT_EQ(optiontext(metres), text);
}

TEST_F(ProgramSettingsTest, OpensOnTheRecordAndThePortItHolds) {
    store([](ConfigRecord& record) { record.portnumber = 2; });
    session.settings.currentport = 3;
    using Row = std::tuple<float, std::int16_t, int, bool, bool>;
    for (const auto& [output, summer, option, standard, adjusted] :
         {Row{2.0F, -1, 2, false, true}, Row{3.0F, 0, 3, true, false}, Row{2.5F, 1, 1, false, false}}) {
        store([&](ConfigRecord& record) {
            record.outputoption = output;
            record.summertimeflag = summer;
        });
        const ProgramOptions options = openoptions(session);
        EXPECT_EQ(options.displayoption, option) << output;
        EXPECT_EQ(options.optNonDaylightsavings, standard) << summer;
        EXPECT_EQ(options.optDaylightSavings, adjusted) << summer;
        EXPECT_EQ(session.settings.currentsummer, summer);
        EXPECT_EQ(session.settings.currentport, 2) << "the port left by the last step";
    }
}

TEST_F(ProgramSettingsTest, ConfirmingWritesItsOwnFieldsOnly) {
    store([](ConfigRecord& record) {
        record.spare1 = "another's";
        record.portnumber = 4;
        record.reserved2 = 77;
    });
    session.settings.spareoptionvalue = 9;
    ConfigRecord wanted = stored();
    ProgramOptions options = openoptions(session);
    options.displayoption = 2;
    options.optDaylightSavings = true;
    options.optNonDaylightsavings = false;
    options.draughttext = " 1.85 m";
    options.ukctext = "abc";
    confirmoptions(context, options);
    wanted.outputoption = 2;
    wanted.draught = 1.85F;
    wanted.ukc = 0;
    wanted.spareoption = 9;
    wanted.summertimeflag = -1;
    EXPECT_EQ(encode(stored()), encode(wanted));
}

TEST_F(ProgramSettingsTest, ConfirmingMovesTheDayByTheHourAndTheDepthChosen) {
    const auto standard = session.prediction.turningpoints[1];
    storedepth(1, 20);
    session.month.monthspredictions = {"a month"};
    for (const auto& [savings, line] : {std::pair{true, adjustedline}, {false, uncorrectedline}}) {
        ProgramOptions options = openoptions(session);
        options.displayoption = 2;
        options.optDaylightSavings = savings;
        confirmoptions(context, options);
        EXPECT_TRUE(session.view.disclaimer.ends_with(line)) << savings;
        EXPECT_NEAR(session.prediction.turningpoints[1].time, standard.time + (savings ? 1 : 0), 1e-6);
        EXPECT_NEAR(session.prediction.turningpoints[1].height, standard.height + 20, 1e-6);
        EXPECT_TRUE(session.month.monthspredictions.empty());
    }
}

TEST_F(ProgramSettingsTest, AVanishedConfigurationIsMadeAgainAndAFailedWriteIsTold) {
    ProgramOptions options = openoptions(session);
    options.draughttext = "1.8";
    confirmoptions(context, options);
    std::filesystem::remove(session.folders.cfgpath());
    EXPECT_EQ(openoptions(session).draughttext, "1.8");
    // Whoever changes the record next brings back what was set.
    changeconfig(session.folders, session.settings, [](ConfigRecord& record) { record.portnumber = 2; });
    EXPECT_EQ(stored().draught, 1.8F);
    EXPECT_EQ(stored().portnumber, 2);

    std::filesystem::remove_all(session.folders.configfolder());
    options.draughttext = "3";
    scripted.messages.expectshow(
        "The program settings can't be stored in " + session.folders.cfgpath() + ". They are in force all the same.",
        "Tarvane", MessageIcon::exclamation);
    confirmoptions(context, options);
    EXPECT_EQ(session.settings.currentdraught, 3);
}

TEST_F(ProgramSettingsTest, TheConfigurationViewShowsSettingsAndPorts) {
    for (const auto& [output, text] :
         {std::pair{1.0F, " From chart datum only"}, {2.0F, " Includes charted depth"}, {3.5F, ""}}) {
        store([&](ConfigRecord& record) {
            record.outputoption = output;
            record.portnumber = 3;
            record.summertimeflag = -1;
        });
        EXPECT_EQ(openconfiguration(session).confoutputoption, text);
    }
    EXPECT_EQ(openconfiguration(session).selectedrow, 2);
    EXPECT_EQ(session.settings.currentsummer, 0) << "not among what this view loads";
}

TEST_F(ProgramSettingsTest, AViewWithoutItsAreaIsEmptyAndMakesNoFile) {
    store([&](ConfigRecord& record) { record.hcfilepath = session.folders.programfolder + "/Gone.East.hc"; });
    const ConfigurationView view = openconfiguration(session);
    EXPECT_EQ(view.sealabel, "Gone");
    EXPECT_TRUE(view.port.rows.empty());
    EXPECT_FALSE(canopen(session.folders.depthsfolder() + "/Gone.DEP"));
}

}  // namespace
}  // namespace tarvane::tests
