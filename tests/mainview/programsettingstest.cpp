#include "mainview/programsettings.h"

#include <gtest/gtest.h>

#include <limits>

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

    std::vector<std::byte> filebytes() const { return readwhole(session.folders.cfgpath()); }

    /// Puts a file where the configuration's folder was: nothing can be read or written there.
    void blockconfiguration() {
        std::filesystem::remove_all(session.folders.configfolder());
        ASSERT_TRUE(replacefile(session.folders.configfolder(), std::string("in the way")));
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
    const auto before = filebytes();
    chooseoutput(session, options, 3);
    EXPECT_EQ(session.settings.currentoutput, 3);
    EXPECT_EQ(filebytes(), before);
    EXPECT_EQ(openoptions(session).displayoption, 1);
    EXPECT_EQ(session.settings.currentoutput, 1);
}

TEST_F(ProgramSettingsTest, MaintenanceIsOfferedAndNeverWithdrawn) {
    ASSERT_FALSE(session.view.maintenancevisible);
    offermaintenance(session);
    offermaintenance(session);
    EXPECT_TRUE(session.view.maintenancevisible);
}

TEST_F(ProgramSettingsTest, ConfirmingWritesItsOwnFieldsOnly) {
    store([](ConfigRecord& record) {
        record.spare1 = "another's";
        record.portnumber = 4;
        record.sortmode = 0;
        record.reserved2 = 77;
    });
    session.settings.spareoptionvalue = 9;
    const auto before = filebytes();
    ProgramOptions options = openoptions(session);
    options.displayoption = 2;
    options.optDaylightSavings = true;
    options.optNonDaylightsavings = false;
    options.draughttext = "1.85";
    options.ukctext = "abc";
    confirmoptions(context, options);
    const ConfigRecord record = stored();
    EXPECT_EQ(record.outputoption, 2);
    EXPECT_EQ(record.draught, 1.85F);
    EXPECT_EQ(record.ukc, 0);
    EXPECT_EQ(record.spareoption, 9);
    EXPECT_EQ(record.summertimeflag, -1);
    const auto after = filebytes();
    ASSERT_EQ(after.size(), 1307U);
    ASSERT_EQ(before.size(), 1307U);
    const auto others = [](std::vector<std::byte> bytes) {
        bytes.erase(bytes.begin() + 1279, bytes.begin() + 1297);
        return bytes;
    };
    EXPECT_EQ(others(before), others(after));
    EXPECT_EQ(session.settings.summerflag2, -1);
    EXPECT_EQ(session.settings.currentoutput, 2);
}

TEST_F(ProgramSettingsTest, AnyTextIsANumber) {
    const struct {
        const char* text;
        float metres;
    } rows[] = {{"2.5", 2.5F},
                {"  .75 m", 0.75F},
                {"-1", -1},
                {"1.2.3", 1.2F},
                {"1,5", 1},
                {"", 0},
                {"none", 0},
                {"1e300", std::numeric_limits<float>::max()},
                {"-1e300", -std::numeric_limits<float>::max()}};
    for (const auto& row : rows) {
        ProgramOptions options = openoptions(session);
        options.displayoption = 1;
        options.draughttext = options.ukctext = row.text;
        confirmoptions(context, options);
        EXPECT_EQ(stored().draught, row.metres) << row.text;
        EXPECT_EQ(stored().ukc, row.metres) << row.text;
        EXPECT_EQ(session.settings.currentukc, row.metres) << row.text;
    }
}

TEST_F(ProgramSettingsTest, SummerTimeMovesTheDayByAnHour) {
    const double standard = session.prediction.turningpoints[1].time;
    ProgramOptions options = openoptions(session);
    options.optDaylightSavings = true;
    confirmoptions(context, options);
    EXPECT_EQ(session.view.disclaimer, accuracyfirst + adjustedline);
    EXPECT_NEAR(session.prediction.turningpoints[1].time, standard + 1, 1e-6);
    options.optDaylightSavings = false;
    confirmoptions(context, options);
    EXPECT_EQ(session.view.disclaimer, accuracyfirst + uncorrectedline);
    EXPECT_NEAR(session.prediction.turningpoints[1].time, standard, 1e-6);
    setdateonshow(session.onshow, makedate(2024, 12, 24));
    options.optDaylightSavings = true;
    confirmoptions(context, options);
    EXPECT_EQ(session.view.disclaimer, accuracyfirst + uncorrectedline);
    EXPECT_EQ(session.settings.summerflag2, -1);
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
    EXPECT_EQ(session.settings.userdepth, 20);
    EXPECT_NEAR(session.prediction.turningpoints[1].height, firstheight + 20, 1e-6);
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");
    EXPECT_EQ(session.timenow, 18.75);
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_EQ(session.month.monthcells[1][1][1], "");
    EXPECT_FALSE(session.view.monthvisible);
}

TEST_F(ProgramSettingsTest, AFailedWriteIsToldAndTheSettingsHold) {
    ProgramOptions options = openoptions(session);
    blockconfiguration();
    options.displayoption = 1;
    options.draughttext = "3";
    options.optDaylightSavings = true;
    scripted.messages.expectshow(
        "The program settings can't be stored in " + session.folders.cfgpath() + ". They are in force all the same.",
        "Tarvane", MessageIcon::exclamation);
    confirmoptions(context, options);
    EXPECT_EQ(session.settings.currentoutput, 1);
    EXPECT_EQ(session.settings.currentdraught, 3);
    EXPECT_EQ(session.settings.summerflag2, -1);
    EXPECT_EQ(session.view.disclaimer, accuracyfirst + adjustedline);
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

TEST_F(ProgramSettingsTest, TheConfigurationViewShowsSettingsAndPort) {
    const struct {
        float output;
        const char* text;
    } rows[] = {{1, " From chart datum only"},
                {2, " Includes charted depth"},
                {3, " Charted depth, draught and prog.ukc"},
                {0, ""},
                {3.5F, ""}};
    setdepth(3, -0.5F, "   Two berths  ");
    for (const auto& row : rows) {
        store([&](ConfigRecord& record) {
            record.outputoption = row.output;
            record.portnumber = 3;
            record.draught = 1.5F;
            record.ukc = 0.25F;
            record.summertimeflag = -1;
        });
        const ConfigurationView view = openconfiguration(session);
        EXPECT_EQ(view.confoutputoption, row.text);
        EXPECT_EQ(view.port.portnolabel, "3");
        EXPECT_EQ(view.port.portlabel, "Cedar Head");
        EXPECT_EQ(view.sealabel, "UK");
        EXPECT_EQ(view.confdraughtbox, "1.5");
        EXPECT_EQ(view.confukcbox, "0.25");
        EXPECT_EQ(view.port.depth, "-0.5");
        EXPECT_EQ(view.port.usernotes, "Two berths");
        EXPECT_EQ(view.port.rows,
                  (std::vector<std::string>{"1  Alder Quay", "2  Birch Sound", "3  Cedar Head", "4  Alder Quay"}));
        EXPECT_EQ(view.selectedrow, 2);
        EXPECT_EQ(session.settings.currentsummer, 0);
    }
}

TEST_F(ProgramSettingsTest, PickingAListedPortChangesNothingElse) {
    setdepth(2, 3.25F, "Bar");
    setdepth(4, 0, "");
    const auto before = filebytes();
    ConfigurationView view = openconfiguration(session);
    EXPECT_EQ(view.port.usernotes, "Position 50.30N   1.15W");
    pickusernotes(session.settings, view.port, 1);
    EXPECT_EQ(view.port.portnolabel, "2");
    EXPECT_EQ(view.port.portlabel, "Birch Sound");
    EXPECT_EQ(view.port.depth, "3.25");
    EXPECT_EQ(view.port.usernotes, "Bar");
    pickusernotes(session.settings, view.port, 3);
    EXPECT_EQ(view.port.portlabel, "Alder Quay");
    EXPECT_EQ(view.port.depth, "0");
    EXPECT_EQ(view.port.usernotes, "");
    EXPECT_EQ(session.settings.currentport, 1);
    EXPECT_EQ(filebytes(), before);
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
