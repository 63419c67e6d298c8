#include "shell/startup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/services.h"
#include "shell/conditions.h"
#include "shell/localeinfo.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

TEST(startup, makesthefoldersandgoesonsilentlywhentheystand) {
    ScriptedServices scripted;
    for (int start = 1; start <= 2; ++start) {
        const auto started = startup(scripted.services());
        ASSERT_TRUE(started) << start;
        EXPECT_EQ(started->folders.programfolder, scripted.folders.programfolder);
        EXPECT_EQ(started->folders.textoutputfolder, scripted.folders.root / "documents/TarvaneTides/TextOutput");
        EXPECT_EQ(started->conventions.dateformat, "DD/MM/YYYY");
        EXPECT_EQ(started->today.monthname, "November");
        EXPECT_TRUE(fs::is_directory(scripted.folders.root / "documents/TarvaneTides/UserDepths"));
        EXPECT_TRUE(fs::is_empty(scripted.folders.root / "appdata/TarvaneTides")) << "no configuration yet";
    }
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

TEST(startup, unknowndaywordsorseparatorendtheprogram) {
    ScriptedServices words, separator;
    words.locale.shortdays.fill("ons");
    separator.locale.separator = " ";
    for (ScriptedServices* scripted : {&words, &separator}) {
        scripted->messages.expectshow(
            "TARVANE CANNOT DETECT THE REQUIRED TIME AND DATE SETTINGS\r\n\r\n"
            "To setup use the Control Panel -> Regional Settings -> Date Tab\r\n\r\nSet as follows :\r\n\r\n"
            "      Short date Style dd/MM/yyyy\r\n\r\n      Date separator = /\r\n\r\n"
            "      Long Date style = dd MMMM yyyy\r\n\r\n      PLEASE CONTACT US IF YOU REQUIRE ANY SUPPORT",
            "Apologies !!");
        EXPECT_FALSE(startup(scripted->services()));
    }
}

TEST(restoredefaults, deletesthefileortellsthatitcannot) {
    ScriptedServices scripted;
    const ProgramFolders folders = startup(scripted.services())->folders;
    restoredefaults(scripted.folders, scripted.messages, folders);

    ASSERT_TRUE(SaveConfig(folders, defaultconfig(folders)));
    restoredefaults(scripted.folders, scripted.messages, folders);
    EXPECT_FALSE(fs::exists(folders.cfgpath()));

    ASSERT_TRUE(SaveConfig(folders, defaultconfig(folders)));
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
    int blocks = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        if (lines[i - 1].empty()) ++blocks;
        EXPECT_EQ(lines[i].find_first_not_of(' '), 16u) << lines[i];
        EXPECT_LE(charactercount(lines[i]), 16u + 90u) << lines[i];
    }
    EXPECT_EQ(blocks, 6);
}

TEST(LocaleInfo, OrdersInWordsAndWhatTheSystemDoesNotKnowIsEmpty) {
    ScriptedLocale locale;
    locale.infotexts = {{1, "0809"}, {33, "1"}, {34, "2"}, {4107, std::nullopt}};
    auto rows = localeinforows(locale);
    EXPECT_EQ(rows[0].text, "0809");
    EXPECT_EQ(rows[3].text, "2   Year - Month - Day");
    EXPECT_EQ(rows[4].text, "1   Day - Month - Year");
    EXPECT_EQ(rows[10].text, "");
    locale.infotexts[33] = "0";
    EXPECT_EQ(localeinforows(locale)[4].text, "0   Month - Day - Year");
}

}  // namespace
}  // namespace tarvane
