#include "shell/startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fakes/services.h"
#include "shell/conditions.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

TEST(startup, makesthefoldersandgoesonsilentlywhentheystand) {
    ScriptedServices scripted;
    for (int start = 1; start <= 2; ++start) {
        const auto started = startup(scripted.services());
        ASSERT_TRUE(started) << start;
        const ProgramFolders& folders = started->folders;
        EXPECT_EQ(folders.programfolder, scripted.folders.programfolder);
        EXPECT_EQ(folders.textoutputfolder, scripted.folders.root / "documents/TarvaneTides/TextOutput");
        EXPECT_EQ(started->conventions.dateformat, "DD/MM/YYYY");
        EXPECT_EQ(started->today.monthname, "November");
        for (const char* made :
             {"appdata/TarvaneTides", "documents/TarvaneTides/UserDepths", "documents/TarvaneTides/TextOutput"})
            EXPECT_TRUE(fs::is_directory(scripted.folders.root / made)) << made;
    }
    EXPECT_TRUE(fs::is_empty(scripted.folders.root / "appdata/TarvaneTides")) << "no configuration is written yet";
}

TEST(startup, foldersthatcannotbemadearepassedover) {
    ScriptedServices scripted;
    scripted.folders.refused = {scripted.folders.appdatafolder + "/TarvaneTides",
                                *scripted.folders.documentsfolder + "/TarvaneTides/UserDepths"};
    EXPECT_TRUE(startup(scripted.services()));
    EXPECT_TRUE(fs::is_directory(scripted.folders.root / "documents/TarvaneTides/TextOutput"));
}

TEST(startup, withoutdocumentstheroottakestheirplace) {
    ScriptedServices scripted;
    scripted.folders.documentsfolder.reset();
    const ProgramFolders folders = findfolders(scripted.folders);
    EXPECT_EQ(folders.docsfolder, "/");
    EXPECT_EQ(fs::path(folders.textoutputfolder).lexically_normal(), "/TarvaneTides/TextOutput");
}

TEST(startup, unknowndaywordsendtheprogram) {
    ScriptedServices scripted;
    scripted.locale.shortdays[3] = "ons";
    scripted.locale.shortdays[4] = "tor";
    scripted.messages.expectshow(
        "TARVANE CANNOT DETECT THE REQUIRED TIME AND DATE SETTINGS\r\n\r\n"
        "To setup use the Control Panel -> Regional Settings -> Date Tab\r\n\r\nSet as follows :\r\n\r\n"
        "      Short date Style dd/MM/yyyy\r\n\r\n      Date separator = /\r\n\r\n"
        "      Long Date style = dd MMMM yyyy\r\n\r\n      PLEASE CONTACT US IF YOU REQUIRE ANY SUPPORT",
        "Apologies !!");
    EXPECT_FALSE(startup(scripted.services()));
}

TEST(startup, awrongseparatorendstheprogram) {
    ScriptedServices scripted;
    scripted.locale.separator = " ";
    scripted.messages.expectshow(nodatesettingstext, "Apologies !!");
    EXPECT_FALSE(startup(scripted.services()));
}

TEST(restoredefaults, deletesthefileandnothingelse) {
    ScriptedServices scripted;
    const ProgramFolders folders = startup(scripted.services())->folders;
    ConfigRecord record = defaultconfig(folders);
    record.portnumber = 5;
    ASSERT_TRUE(SaveConfig(folders, record));

    restoredefaults(scripted.folders, scripted.messages, folders);
    EXPECT_FALSE(fs::exists(folders.cfgpath()));
    Settings settings;
    loadsettings(folders, settings);
    EXPECT_EQ(settings.currentport, 77);

    fs::remove(folders.cfgpath());
    restoredefaults(scripted.folders, scripted.messages, folders);

    ASSERT_TRUE(SaveConfig(folders, record));
    scripted.folders.refused = {folders.cfgpath()};
    scripted.messages.expectshow("The saved settings could not be removed:\n" + folders.cfgpath(), "Tarvane",
                                 MessageIcon::exclamation);
    restoredefaults(scripted.folders, scripted.messages, folders);
    EXPECT_TRUE(fs::exists(folders.cfgpath()));
}

TEST(conditions, twentyfivelinesinsixblocks) {
    const std::vector<std::string> lines = conditionslines();
    ASSERT_EQ(lines.size(), 26u);
    EXPECT_EQ(lines.front(), "");
    EXPECT_NE(lines[1], "");
    EXPECT_NE(lines.back(), "");
    int blocks = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty()) {
            EXPECT_NE(lines[i - 1], "") << i;
            continue;
        }
        if (lines[i - 1].empty()) ++blocks;
        EXPECT_EQ(lines[i].find_first_not_of(' '), 16u) << lines[i];
        EXPECT_LE(charactercount(lines[i]), 16u + 90u) << lines[i];
    }
    EXPECT_EQ(blocks, 6);
}

}  // namespace
}  // namespace tarvane
