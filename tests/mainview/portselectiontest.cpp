#include "mainview/portselection.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "mainview/mainfixture.h"
#include "mainview/stepping.h"

namespace tarvane::tests {
namespace {

constexpr const char* notrecognised = "File name not recognised- you should click on a sea area.";
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

    /// A second area of two ports beside the first.
    std::string secondarea() {
        const std::string path = session.folders.programfolder + "/Channel.hc";
        writeport(path, 1, fixtureport("Dunlin Point", 7));
        writeport(path, 2, fixtureport("Eider Bay", 8, "S"));
        return path;
    }

    Settings& settings = session.settings;
};

TEST_F(PortSelection, OkStoresTheChoiceAndShowsThePortsDay) {
    session.month.monthspredictions = {"a row"};
    session.view.monthvisible = true;
    session.month.monthtitle = "stays";
    ConfigRecord other = stored();
    other.draught = 2.5F;
    SaveConfig(session.folders, other);
    scripted.clock.reading.hour = 18;
    scripted.clock.reading.minute = 15;
    const double before = session.prediction.z0level;

    EXPECT_TRUE(portconfigok(context, picked("Birch Sound"), 1, false));

    EXPECT_EQ(stored().portnumber, 2);
    EXPECT_EQ(stored().sortmode, 0);
    EXPECT_EQ(stored().hcfilepath, area());
    EXPECT_EQ(stored().draught, 2.5F) << "fields of others survive";
    EXPECT_EQ(settings.currentport, 2);
    EXPECT_EQ(session.port.portname, "Birch Sound");
    EXPECT_EQ(session.port.zonehours, -1);
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
    EXPECT_DOUBLE_EQ(session.timenow, 18.25);
    EXPECT_NEAR(session.prediction.z0level, before + 1, 1e-6);
    EXPECT_EQ(session.daytable.daylines[1], "Port : Birch Sound");
    EXPECT_EQ(session.curve.curvesamplescopy[60].height, session.prediction.curvesamples[60].height);
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_FALSE(session.view.monthvisible);
    EXPECT_EQ(session.month.monthtitle, "stays");
    EXPECT_TRUE(picture.passinglayer.empty()) << "the marker goes with the curve";
}

TEST_F(PortSelection, OfPortsWithOneNameTheLaterIsTaken) {
    EXPECT_TRUE(portconfigok(context, picked("Alder Quay"), 0, true));
    EXPECT_EQ(stored().portnumber, 4);
    EXPECT_EQ(stored().sortmode, -1);
    EXPECT_EQ(stored().reserved2, 0);
}

TEST_F(PortSelection, WithoutASelectionNothingIsStored) {
    const auto before = readwhole(session.folders.cfgpath());
    scripted.messages.expectshow("Select a port", "Tarvane");
    EXPECT_FALSE(portconfigok(context, picked("Birch Sound"), -1, false));
    scripted.messages.expectshow("Select a port", "Tarvane");
    EXPECT_FALSE(portconfigok(context, picked("no such port"), 0, false));
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
    const std::string second = secondarea();
    const auto before = readwhole(session.folders.cfgpath());
    scripted.filedialogs.expectopen(" " + second, "Select Sea Area");
    scripted.messages.expectshow(notrecognised, "");
    EXPECT_FALSE(choosesearea(context)) << "the name is tried as it came";
    scripted.filedialogs.expectopen(second);
    ASSERT_TRUE(choosesearea(context));
    const FileRequest& request = scripted.filedialogs.requests.back();
    EXPECT_EQ(request.folder, session.folders.programfolder);
    EXPECT_EQ(request.filename, "");
    EXPECT_EQ(request.filter, "Harmonics (*.HC)|*.hc");
    EXPECT_EQ(settings.areafile, second);
    EXPECT_EQ(settings.hcfile, area());
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);

    portconfigcancel(context);
    EXPECT_EQ(settings.areafile, second) << "the area listed isn't restored";
    EXPECT_EQ(settings.hcfile, area());
    EXPECT_EQ(settings.depfile, session.folders.depthsfolder() + "/UK.DEP");
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);

    EXPECT_TRUE(portconfigok(context, picked("Eider Bay"), 1, true));
    EXPECT_EQ(stored().hcfilepath, second);
    EXPECT_EQ(settings.hcfile, second);
    EXPECT_EQ(settings.depfile, session.folders.depthsfolder() + "/Channel.DEP");
    EXPECT_EQ(std::filesystem::file_size(settings.depfile), 2 * userdepthrecordsize);
    EXPECT_EQ(session.port.zonehours, -7);
}

TEST_F(PortSelection, AnAreaThatIsCancelledOrMissingChangesNothing) {
    scripted.filedialogs.expectopen(std::nullopt);
    EXPECT_FALSE(choosesearea(context));
    scripted.filedialogs.expectopen("");
    EXPECT_FALSE(choosesearea(context));
    for (const std::string& bad : {session.folders.programfolder + "/No.hc", session.folders.programfolder}) {
        scripted.filedialogs.expectopen(bad);
        scripted.messages.expectshow(notrecognised, "");
        EXPECT_FALSE(choosesearea(context));
    }
    EXPECT_EQ(settings.areafile, area());
}

TEST_F(PortSelection, OpeningAndCancellingTakeWhatTheConfigurationHolds) {
    nextport(context);
    nextport(context);
    ASSERT_EQ(settings.currentport, 3);
    settings.currentdraught = 9;
    settings.currentukc = 9;
    settings.currentoutput = 1;
    settings.wayfile.clear();
    reloadforportlist(context);
    EXPECT_EQ(settings.currentport, 2) << "the file is one step behind";
    EXPECT_EQ(settings.areafile, area());
    EXPECT_EQ(settings.currentdraught, 0.5F);
    EXPECT_EQ(settings.currentukc, 0.5F);
    EXPECT_EQ(settings.currentoutput, 3);
    EXPECT_EQ(settings.wayfile, "");

    settings.currentport = 4;
    settings.currentdraught = 9;
    settings.hcfile.clear();
    portconfigcancel(context);
    EXPECT_EQ(settings.currentport, 2);
    EXPECT_EQ(settings.currentdraught, 0.5F);
    EXPECT_EQ(settings.hcfile, area());
    EXPECT_EQ(settings.wayfile, session.folders.programfolder + "/Sample.way");
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
