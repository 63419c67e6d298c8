#include "mainview/programsettings.h"

#include <gtest/gtest.h>

#include "dates/summertime.h"
#include "mainview/mainfixture.h"
#include "mainview/stepping.h"
#include "portdata/userdepths.h"

namespace tarvane::tests {
namespace {

class ProgramSettingsTest : public testing::Test, protected MainFixture {
  protected:
    ProgramSettingsTest() { load(); }

    template <typename Change>
    void store(Change change) {
        ConfigRecord record = stored();
        change(record);
        ASSERT_TRUE(SaveConfig(session.folders, record));
    }

    void setdepth(std::int16_t port, float metres, const std::string& note) {
        UserDepthRecord record = readdepth(session.settings.depfile, port);
        record.UserDepth = metres;
        record.Notes = note;
        ASSERT_TRUE(writedepth(session.settings.depfile, port, record));
    }
};

const std::string accuracyfirst =
    "Heights in Metres, all data are derived and should therefore be considered as approximate\r\n";

TEST(OptionTextTest, MetresAsTheBoxesShowThem) {
    const struct {
        float metres;
        const char* text;
    } rows[] = {{0, "0.0"},      {-0.0F, "0.0"}, {0.5F, "0.5"},  {0.05F, "0.05"}, {1, "1"},
                {2.25F, "2.25"}, {10, "10"},     {-0.5F, "-.5"}, {-1.5F, "-1.5"}, {0.1F, "0.1"}};
    for (const auto& row : rows)
        EXPECT_EQ(optiontext(row.metres), row.text);
}

TEST_F(ProgramSettingsTest, OpensOnTheRecord) {
    const struct {
        float output;
        std::int16_t summer;
        int option;
        bool standard, adjusted;
    } rows[] = {{1, 0, 1, true, false},  {2, -1, 2, false, true},  {3, 0, 3, true, false},
                {0, 1, 1, false, false}, {4, -2, 1, false, false}, {2.5F, -1, 1, false, true}};
    for (const auto& row : rows) {
        store([&](ConfigRecord& record) {
            record.outputoption = row.output;
            record.summertimeflag = row.summer;
            record.draught = 1.75F;
            record.ukc = 0;
        });
        const ProgramOptions options = openoptions(session);
        EXPECT_EQ(options.displayoption, row.option) << row.output;
        EXPECT_EQ(options.optNonDaylightsavings, row.standard) << row.summer;
        EXPECT_EQ(options.optDaylightSavings, row.adjusted) << row.summer;
        EXPECT_EQ(options.draughttext, "1.75");
        EXPECT_EQ(options.ukctext, "0.0");
        EXPECT_EQ(session.settings.currentsummer, row.summer);
    }
}

TEST_F(ProgramSettingsTest, OpeningAfterAPortStepTakesThePortLeft) {
    nextport(context);
    nextport(context);
    ASSERT_EQ(session.settings.currentport, 3);
    openoptions(session);
    EXPECT_EQ(session.settings.currentport, 2);
    EXPECT_EQ(session.port.portname.substr(0, 10), "Cedar Head");
}

TEST_F(ProgramSettingsTest, AClickOnAnOptionCountsAtOnceAndTheNextOpeningUndoesIt) {
    store([](ConfigRecord& record) { record.outputoption = 1; });
    ProgramOptions options = openoptions(session);
    chooseoutput(session, options, 3);
    EXPECT_EQ(session.settings.currentoutput, 3);
    EXPECT_EQ(stored().outputoption, 1);
    EXPECT_EQ(openoptions(session).displayoption, 1);
    EXPECT_EQ(session.settings.currentoutput, 1);
}

TEST_F(ProgramSettingsTest, ConfirmingWritesItsOwnFieldsOnly) {
    store([](ConfigRecord& record) {
        record.spare1 = "another's";
        record.portnumber = 4;
        record.sortmode = 0;
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
    EXPECT_EQ(session.settings.summerflag2, -1);
    EXPECT_EQ(session.settings.currentoutput, 2);
}

TEST_F(ProgramSettingsTest, SummerTimeMovesTheDayByAnHour) {
    const double standard = session.prediction.turningpoints[1].time;
    const struct {
        bool savings;
        int month;
        const char* line;
    } rows[] = {{true, 4, adjustedline}, {false, 4, uncorrectedline}, {true, 12, uncorrectedline}};
    for (const auto& row : rows) {
        setdateonshow(session.onshow, makedate(2024, row.month, 9));
        ProgramOptions options = openoptions(session);
        options.optDaylightSavings = row.savings;
        confirmoptions(context, options);
        EXPECT_EQ(session.view.disclaimer, accuracyfirst + row.line);
        EXPECT_EQ(session.settings.summerflag2, row.savings ? -1 : 0);
        if (row.month == 4) {
            EXPECT_NEAR(session.prediction.turningpoints[1].time, standard + (row.savings ? 1 : 0), 1e-6);
        }
    }
}

TEST_F(ProgramSettingsTest, ConfirmingRefreshesTheMainView) {
    session.month.monthspredictions = {"a month"};
    session.month.monthcells[1][1][1] = "04:00";
    session.view.monthvisible = true;
    session.view.portbox.clear();
    setdepth(1, 20, "");
    scripted.clock.set(2024, 4, 9, 18, 45);
    const double firstheight = session.prediction.turningpoints[1].height;
    ProgramOptions options = openoptions(session);
    options.displayoption = 2;
    confirmoptions(context, options);
    EXPECT_NEAR(session.prediction.turningpoints[1].height, firstheight + 20, 1e-6);
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");
    EXPECT_EQ(session.timenow, 18.75);
    EXPECT_TRUE(session.month.monthspredictions.empty() && session.month.monthcells[1][1][1].empty());
    EXPECT_FALSE(session.view.monthvisible);
}

TEST_F(ProgramSettingsTest, AFailedWriteIsToldAndTheSettingsHold) {
    ProgramOptions options = openoptions(session);
    std::filesystem::remove_all(session.folders.configfolder());
    options.displayoption = 1;
    options.draughttext = "3";
    scripted.messages.expectshow(
        "The program settings can't be stored in " + session.folders.cfgpath() + ". They are in force all the same.",
        "Tarvane", MessageIcon::exclamation);
    confirmoptions(context, options);
    EXPECT_EQ(session.settings.currentoutput, 1);
    EXPECT_EQ(session.settings.currentdraught, 3);
}

TEST_F(ProgramSettingsTest, AConfigurationThatVanishedIsMadeAgain) {
    session.settings.currentdraught = 2;
    std::filesystem::remove(session.folders.cfgpath());
    const ProgramOptions options = openoptions(session);
    EXPECT_EQ(options.draughttext, "2");
    EXPECT_EQ(session.settings.hcfile, area());
    confirmoptions(context, options);
    EXPECT_EQ(stored().draught, 2);
    EXPECT_EQ(stored().hcfilepath, area());
    EXPECT_EQ(stored().portnumber, 1);
}

TEST_F(ProgramSettingsTest, TheConfigurationViewShowsSettingsAndPorts) {
    const std::pair<float, const char*> rows[] = {{1.0F, " From chart datum only"},
                                                  {2.0F, " Includes charted depth"},
                                                  {3.0F, " Charted depth, draught and prog.ukc"},
                                                  {3.5F, ""}};
    setdepth(3, -0.5F, "   Two berths  ");
    for (const auto& [output, text] : rows) {
        store([&](ConfigRecord& record) {
            record.outputoption = output;
            record.portnumber = 3;
            record.draught = 1.5F;
            record.ukc = 0.25F;
            record.summertimeflag = -1;
        });
        EXPECT_EQ(openconfiguration(session).confoutputoption, text);
    }
    const auto before = readwhole(session.folders.cfgpath());
    ConfigurationView view = openconfiguration(session);
    EXPECT_EQ(view.port.portnolabel, "3");
    EXPECT_EQ(view.port.portlabel, "Cedar Head");
    EXPECT_EQ(view.sealabel, "UK");
    EXPECT_EQ(view.confdraughtbox, "1.5");
    EXPECT_EQ(view.confukcbox, "0.25");
    EXPECT_EQ(view.port.depth, "-0.5");
    EXPECT_EQ(view.port.usernotes, "Two berths");
    EXPECT_EQ(view.port.rows, portrows(area()));
    EXPECT_EQ(view.selectedrow, 2);
    EXPECT_EQ(session.settings.currentsummer, 0) << "not among what this view loads";

    pickusernotes(session.settings, view.port, 1);
    EXPECT_EQ(view.port.portnolabel, "2");
    EXPECT_EQ(view.port.portlabel, "Birch Sound");
    EXPECT_EQ(view.port.depth, "0");
    EXPECT_EQ(view.port.usernotes, "Position 50.30N   1.15W");
    EXPECT_EQ(session.settings.currentport, 3);
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);
}

TEST_F(ProgramSettingsTest, AViewWithoutItsFilesIsEmpty) {
    for (const float number : {0.0F, 5.0F, -3.0F}) {
        store([&](ConfigRecord& record) { record.portnumber = number; });
        const ConfigurationView view = openconfiguration(session);
        EXPECT_EQ(view.selectedrow, -1) << number;
        EXPECT_EQ(view.port.rows.size(), 4U);
        EXPECT_EQ(view.port.portlabel, "");
        EXPECT_EQ(view.port.depth, "0");
    }
    store([&](ConfigRecord& record) { record.hcfilepath = session.folders.programfolder + "/Gone.East.hc"; });
    const ConfigurationView view = openconfiguration(session);
    EXPECT_EQ(view.sealabel, "Gone");
    EXPECT_TRUE(view.port.rows.empty());
    EXPECT_EQ(session.settings.depfile, session.folders.depthsfolder() + "/Gone.DEP");
    EXPECT_FALSE(canopen(session.settings.depfile));
}

}  // namespace
}  // namespace tarvane::tests
