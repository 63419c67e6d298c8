#include "ports/portselection.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

constexpr const char* toolarge = "Error in Port selection, Port number greater than the number of records in the file";

struct PortSelection : LoadedMain {
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
    store([](ConfigRecord& record) { record.draught = 2.5F; });
    const double before = session.prediction.z0level;
    EXPECT_TRUE(portconfigok(context, picked("Birch Sound"), 1, false));
    EXPECT_EQ(stored().draught, 2.5F) << "fields of others survive";
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
    EXPECT_NEAR(session.prediction.z0level, before + 1, 1e-6);
    EXPECT_TRUE(session.month.monthspredictions.empty());

    EXPECT_TRUE(portconfigok(context, picked("Alder Quay"), 0, true));
    EXPECT_EQ(stored().portnumber, 4) << "of two ports with one name the later";
    EXPECT_EQ(stored().sortmode, -1);
}

TEST_F(PortSelection, APortPastTheEndIsToldAfterItWasStoredAndAPathTooLongIsNoArea) {
    const PortList list = picked("Cedar Head");
    std::filesystem::resize_file(area(), 2 * harmonicrecordsize);
    scripted.messages.expectshow(toolarge, "");
    EXPECT_FALSE(portconfigok(context, list, 2, true));
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");

    std::string deep = session.folders.programfolder;
    for (int i = 0; i < 6; ++i)
        deep += "/" + std::string(50, 'd');
    std::filesystem::create_directories(deep);
    settings.areafile = deep + "/Far.hc";
    writeport(settings.areafile, 1, fixtureport("Far Haven", 1));
    scripted.messages.expectshow(toolarge, "");
    EXPECT_FALSE(portconfigok(context, picked("Far Haven"), 0, true)) << "a path too long for the record";
    EXPECT_EQ(settings.hcfile, area());
}

TEST_F(PortSelection, AnAreaIsStoredOnlyByOkAndNoneIsTakenThatIsCancelledOrMissing) {
    const std::string second = session.folders.programfolder + "/Channel.hc";
    writeport(second, 1, fixtureport("Eider Bay", 8, "S"));
    const auto before = filetext(session.folders.cfgpath());
    scripted.filedialogs.expectopen(std::nullopt);
    EXPECT_FALSE(choosesearea(context));
    scripted.filedialogs.expectopen(session.folders.programfolder);
    scripted.messages.expectshow("File name not recognised- you should click on a sea area.", "");
    EXPECT_FALSE(choosesearea(context));
    EXPECT_EQ(settings.areafile, area());

    scripted.filedialogs.expectopen(second, "Select Sea Area");
    ASSERT_TRUE(choosesearea(context));
    EXPECT_EQ(scripted.filedialogs.requests.back().filter, "Harmonics (*.HC)|*.hc");
    portconfigcancel(context);
    EXPECT_EQ(settings.areafile, second) << "the area listed isn't restored";

    session.folders.ownfolder = folder / "own";
    std::filesystem::create_directories(session.folders.ownfolder);
    writeport(session.folders.ownfolder + "/Channel.hc", 1, fixtureport("Eider Bay", 9, "S"));
    scripted.filedialogs.expectopen(second);
    ASSERT_TRUE(choosesearea(context));
    EXPECT_EQ(settings.areafile, session.folders.ownfolder + "/Channel.hc") << "as the user changed it";
    const std::string programfolder = session.folders.programfolder;
    const std::vector<FileRequest>& asked = scripted.filedialogs.requests;
    EXPECT_EQ(asked.back().places, (std::vector<std::string>{session.folders.ownfolder, programfolder}));
    EXPECT_EQ(asked.back().folder, programfolder) << "where the area in use lies";
    EXPECT_EQ(asked[asked.size() - 2].places, std::vector<std::string>{}) << "one folder needs no choice";
    settings.hcfile = settings.areafile;
    scripted.filedialogs.expectopen(std::nullopt);
    EXPECT_FALSE(choosesearea(context));
    EXPECT_EQ(asked.back().folder, session.folders.ownfolder);
    settings.hcfile = area();
    session.folders.ownfolder.clear();
    settings.areafile = second;
    EXPECT_EQ(filetext(session.folders.cfgpath()), before);

    picture.point(1, 1, black);
    scripted.clock.set(2024, 4, 9, 16, 45, 0);
    EXPECT_TRUE(portconfigok(context, picked("Eider Bay"), 0, true));
    EXPECT_EQ(session.view.portbox, "Port    : Eider Bay");
    EXPECT_EQ(session.port.zonehours, -7);
    EXPECT_EQ(session.timenow, 16.75);
    EXPECT_TRUE(picture.passinglayer.empty());
    EXPECT_EQ(stored().hcfilepath, second);
    EXPECT_EQ(settings.depfile, session.folders.depthsfolder() + "/Channel.DEP");
    EXPECT_EQ(std::filesystem::file_size(settings.depfile), userdepthrecordsize);
}

TEST_F(PortSelection, OpeningAndCancellingTakeWhatTheConfigurationHolds) {
    changeconfig(session.folders, settings, [](ConfigRecord& record) { record.portnumber = 2; });
    settings.currentport = 3;
    for (const auto& take : {reloadforportlist, portconfigcancel}) {
        settings.currentport = 4;
        settings.hcfile.clear();
        settings.wayfile.clear();
        take(context);
        EXPECT_EQ(settings.currentport, 2) << "the file is one step behind";
        EXPECT_EQ(settings.hcfile, area());
        EXPECT_EQ(settings.areafile, area());
        EXPECT_EQ(settings.wayfile, take == portconfigcancel ? session.folders.programfolder + "/Sample.way" : "");
    }
}

TEST_F(PortSelection, AVanishedConfigurationIsMadeAgainAndFilesThatCannotBeWrittenAreTold) {
    std::filesystem::remove(session.folders.cfgpath());
    reloadforportlist(context);
    portconfigcancel(context);
    EXPECT_EQ(settings.currentport, 1);
    EXPECT_TRUE(portconfigok(context, picked("Birch Sound"), 1, true));
    EXPECT_EQ(stored().portnumber, 2);

    std::filesystem::remove_all(session.folders.configfolder());
    std::filesystem::remove_all(session.folders.depthsfolder());
    scripted.messages.expectshow("The choice of port can't be stored: " + session.folders.cfgpath(), "Tarvane");
    scripted.messages.expectshow("The file of user depths and notes can't be made: " + settings.depfile, "Tarvane");
    EXPECT_TRUE(portconfigok(context, picked("Cedar Head"), 2, true));
}

}  // namespace
}  // namespace tarvane::tests
