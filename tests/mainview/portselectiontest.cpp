#include "mainview/portselection.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "mainview/mainfixture.h"
#include "mainview/stepping.h"

namespace tarvane::tests {
namespace {

constexpr const char* toolarge = "Error in Port selection, Port number greater than the number of records in the file";

class PortSelection : public testing::Test, protected MainFixture {
  protected:
    PortSelection() { load(); }

    /// The dialog's list of the area in hand, with a port of that name picked.
    PortList picked(const std::string& name) {
        PortList list;
        loadportlist(list, settings.areafile);
        pickport(list, name);
        return list;
    }

    Settings& settings = session.settings;
};

TEST_F(PortSelection, OkStoresTheChoiceAndShowsThePortsDay) {
    session.month.monthspredictions = {"a row"};
    session.view.monthvisible = true;
    ConfigRecord other = stored();
    other.draught = 2.5F;
    SaveConfig(session.folders, other);
    scripted.clock.set(2024, 4, 9, 18, 15);
    const double before = session.prediction.z0level;

    EXPECT_TRUE(portconfigok(context, picked("Birch Sound"), 1, false));

    EXPECT_EQ(stored().portnumber, 2);
    EXPECT_EQ(stored().sortmode, 0);
    EXPECT_EQ(stored().hcfilepath, area());
    EXPECT_EQ(stored().draught, 2.5F) << "fields of others survive";
    EXPECT_EQ(settings.currentport, 2);
    EXPECT_EQ(session.port.zonehours, -1);
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
    EXPECT_DOUBLE_EQ(session.timenow, 18.25);
    EXPECT_NEAR(session.prediction.z0level, before + 1, 1e-6);
    EXPECT_EQ(session.daytable.daylines[1], "Port : Birch Sound");
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_FALSE(session.view.monthvisible);
    EXPECT_TRUE(picture.passinglayer.empty()) << "the marker goes with the curve";

    EXPECT_TRUE(portconfigok(context, picked("Alder Quay"), 0, true));
    EXPECT_EQ(stored().portnumber, 4) << "of two ports with one name the later";
    EXPECT_EQ(stored().sortmode, -1);
}

TEST_F(PortSelection, WithoutASelectionNothingIsStored) {
    const auto before = readwhole(session.folders.cfgpath());
    for (const auto& [name, index] : {std::pair{"Birch Sound", -1}, std::pair{"no such port", 0}}) {
        scripted.messages.expectshow("Select a port", "Tarvane");
        EXPECT_FALSE(portconfigok(context, picked(name), index, false));
    }
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);
    EXPECT_EQ(settings.currentport, 1);
}

TEST_F(PortSelection, APortPastTheEndIsToldAfterItWasStored) {
    const PortList list = picked("Cedar Head");
    std::filesystem::resize_file(area(), 2 * harmonicrecordsize);
    scripted.messages.expectshow(toolarge, "");
    EXPECT_FALSE(portconfigok(context, list, 2, true));
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");

    std::filesystem::remove(area());
    scripted.messages.expectshow(toolarge, "");
    EXPECT_FALSE(portconfigok(context, list, 2, true));
}

TEST_F(PortSelection, AnAreaIsStoredOnlyByOk) {
    const std::string second = session.folders.programfolder + "/Channel.hc";
    writeport(second, 1, fixtureport("Dunlin Point", 7));
    writeport(second, 2, fixtureport("Eider Bay", 8, "S"));
    const auto before = readwhole(session.folders.cfgpath());
    scripted.filedialogs.expectopen(second, "Select Sea Area");
    ASSERT_TRUE(choosesearea(context));
    const FileRequest& request = scripted.filedialogs.requests.back();
    EXPECT_EQ(request.folder, session.folders.programfolder);
    EXPECT_EQ(request.filename, "");
    EXPECT_EQ(request.filter, "Harmonics (*.HC)|*.hc");
    EXPECT_EQ(settings.hcfile, area());
    portconfigcancel(context);
    EXPECT_EQ(settings.areafile, second) << "the area listed isn't restored";
    EXPECT_EQ(settings.hcfile, area());
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);

    EXPECT_TRUE(portconfigok(context, picked("Eider Bay"), 1, true));
    EXPECT_EQ(stored().hcfilepath, second);
    EXPECT_EQ(settings.hcfile, second);
    EXPECT_EQ(settings.depfile, session.folders.depthsfolder() + "/Channel.DEP");
    EXPECT_EQ(std::filesystem::file_size(settings.depfile), 2 * userdepthrecordsize);
    EXPECT_EQ(session.port.zonehours, -7);
}

TEST_F(PortSelection, AnAreaThatIsCancelledOrMissingChangesNothing) {
    for (const std::optional<std::string>& none : {std::optional<std::string>(), std::optional<std::string>("")}) {
        scripted.filedialogs.expectopen(none);
        EXPECT_FALSE(choosesearea(context));
    }
    for (const std::string& bad :
         {session.folders.programfolder + "/No.hc", session.folders.programfolder, " " + area()}) {
        scripted.filedialogs.expectopen(bad);
        scripted.messages.expectshow("File name not recognised- you should click on a sea area.", "");
        EXPECT_FALSE(choosesearea(context)) << bad;
    }
    EXPECT_EQ(settings.areafile, area());
}

TEST_F(PortSelection, OpeningAndCancellingTakeWhatTheConfigurationHolds) {
    nextport(context);
    nextport(context);
    ASSERT_EQ(settings.currentport, 3);
    for (const auto& take : {reloadforportlist, portconfigcancel}) {
        settings.currentport = 4;
        settings.hcfile.clear();
        settings.currentdraught = settings.currentukc = 9;
        settings.currentoutput = 1;
        settings.wayfile.clear();
        take(context);
        EXPECT_EQ(settings.currentport, 2) << "the file is one step behind";
        EXPECT_EQ(settings.hcfile, area());
        EXPECT_EQ(settings.areafile, area());
        EXPECT_EQ(settings.currentdraught, 0.5F);
        EXPECT_EQ(settings.currentukc, 0.5F);
        EXPECT_EQ(settings.currentoutput, 3);
        EXPECT_EQ(settings.wayfile, take == portconfigcancel ? session.folders.programfolder + "/Sample.way" : "");
    }
}

TEST_F(PortSelection, AVanishedConfigurationLeavesThePortInForce) {
    std::filesystem::remove(session.folders.cfgpath());
    reloadforportlist(context);
    portconfigcancel(context);
    EXPECT_EQ(settings.currentport, 1);
    EXPECT_EQ(settings.hcfile, area());
    EXPECT_TRUE(portconfigok(context, picked("Cedar Head"), 2, true));
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(stored().outputoption, 3);
}

TEST_F(PortSelection, FilesThatCannotBeWrittenAreTold) {
    std::filesystem::remove_all(session.folders.configfolder());
    std::filesystem::remove_all(session.folders.depthsfolder());
    scripted.messages.expectshow("The choice of port can't be stored: " + session.folders.cfgpath(), "Tarvane");
    scripted.messages.expectshow("The file of user depths and notes can't be made: " + settings.depfile, "Tarvane");
    EXPECT_TRUE(portconfigok(context, picked("Cedar Head"), 2, true));
    EXPECT_EQ(session.port.portname, "Cedar Head");
}

TEST_F(PortSelection, APathTooLongForTheRecordIsNoArea) {
    std::string deep = session.folders.programfolder;
    for (int i = 0; i < 6; ++i)
        deep += "/" + std::string(50, 'd');
    std::filesystem::create_directories(deep);
    settings.areafile = deep + "/Far.hc";
    writeport(settings.areafile, 1, fixtureport("Far Haven", 1));
    scripted.messages.expectshow(toolarge, "");
    EXPECT_FALSE(portconfigok(context, picked("Far Haven"), 0, true));
    EXPECT_EQ(settings.hcfile, area());
}

}  // namespace
}  // namespace tarvane::tests
