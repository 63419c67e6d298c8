#include "portdata/configuration.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "fakes/temporaryfolder.h"
#include "files/wholefiles.h"
#include "portdata/bytes.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

struct Home : testing::Test {
    Home() {
        for (const std::string& made : {folders.programfolder, folders.configfolder(), folders.depthsfolder()})
            fs::create_directories(made);
    }

    fakes::TemporaryFolder folder;
    ProgramFolders folders{folder / "program", folder / "docs", folder / "data", folder / "out"};
    Settings settings;
};

using Configuration = Home;
using UserDepths = Home;

TEST_F(Configuration, AFreshFolderGetsTheFirstRecord) {
    loadsettings(folders, settings);
    const auto bytes = readwhole(folder / "data/TarvaneTides/TarTidesv9.cfg");
    ASSERT_EQ(bytes.size(), 1307u);
    const std::string texts[] = {folders.programfolder + "/UK.hc", "Owner Tarvane", "", "",
                                 folders.programfolder + "/Sample.way"};
    const float numbers[] = {77, 3, 0.5f, 0.5f, 1};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(textat(bytes, 255 * i, 255), filled(texts[i], 255));
        EXPECT_EQ(numberat<float>(bytes, 1275 + 4 * i), numbers[i]) << i;
    }
    EXPECT_EQ(textat(bytes, 1295, 12), std::string("\0\0\xFF\xFF\0\0\0\0\0\0\0\0", 12));
    EXPECT_EQ(settings.hcfile, texts[0]);
}

TEST_F(Configuration, PathsComeBackWhateverTheirCharacters) {
    using Row = std::pair<const char*, const char*>;
    for (const auto& [path, stored] :
         {Row{"/home/José/UK.hc", "/home/Jos\xE9/UK.hc"}, Row{"/home/日本/UK.hc", "/home/日本/UK.hc"},
          Row{"/home/Ã©/UK.hc", "/home/Ã©/UK.hc"},
          Row{"/home/€–é/UK.hc",
              "/home/\x80\x96\xE9/UK.hc"}}) {  // the single bytes of "Ã©" would read as another name in UTF-8
        ConfigRecord record;
        record.hcfilepath = record.wayfilepath = path;
        record.summertimeflag = -1;
        ASSERT_TRUE(SaveConfig(folders, record));
        EXPECT_EQ(textat(readwhole(folders.cfgpath()), 0, 255), filled(stored, 255));
        loadsettings(folders, settings);
        EXPECT_EQ(settings.hcfile + settings.areafile + settings.wayfile, std::string(path) + path + path);
        EXPECT_EQ(settings.currentsummer + settings.summerflag2, -2);
    }
    using Cut = std::tuple<std::string, const char*, std::size_t>;
    for (auto [path, letter, width] :
         {Cut{"", "a", 255}, Cut{"", "é", 510}, Cut{"", "日", 255}, Cut{"//", "日", 254}}) {
        while (path.size() < 800)
            path += letter;
        settings.configrec.hcfilepath = path;
        EXPECT_EQ(decodeconfig(encode(settings.configrec)).hcfilepath, path.substr(0, width)) << letter;
    }
}

TEST_F(Configuration, AFolderThatCantBeWrittenStillStarts) {
    fs::remove_all(folder / "data");
    putfile(folder / "data", "a file where the folder should be");
    loadsettings(folders, settings);
    EXPECT_EQ(settings.currentport, 77);
    EXPECT_FALSE(SaveConfig(folders, settings.configrec));
    EXPECT_EQ(filetext(folder / "data"), "a file where the folder should be");
}

TEST_F(UserDepths, TheNameComesFromTheAreaFile) {
    const ProgramFolders installed{"/opt/tarvane", "/home/ann/Documents", "", ""};
    using Row = std::pair<const char*, const char*>;
    for (const auto& [hcfile, name] :
         {Row{"/opt/tarvane/North.Sea.2.hc", "North"}, Row{"/opt/tarvane/.hc", ""},
          Row{"/opt/tarvane/noextension", "noextension"}, Row{"/opt/tarvane/sub/Baltic.hc", "Baltic"},
          Row{"/elsewhere/v1.2/Fal.hc", "Fal"}, Row{"C:\\Tides\\UK.hc", "UK"}, Row{"", ""}})
        EXPECT_EQ(hcbasename(installed, hcfile), name) << hcfile;
    EXPECT_EQ(depfileof(installed, "/opt/tarvane/UK.hc"), "/home/ann/Documents/TarvaneTides/UserDepths/UK.DEP");
}

TEST_F(UserDepths, TheFirstUseMakesOneRecordAPort) {
    settings.hcfile = folders.programfolder + "/UK.hc";
    EXPECT_FALSE(EnsureDepFile(folders, settings));
    HarmonicRecord port;
    port.PortName = "Roscoff";
    port.PortLat = 48.7184f;
    port.PortLong = -3.9656f;
    ASSERT_TRUE(writeport(settings.hcfile, 3, port));
    ASSERT_TRUE(EnsureDepFile(folders, settings));
    ASSERT_EQ(filetext(settings.depfile).size(), 3 * 305u);
    UserDepthRecord third = readdepth(settings.depfile, 3);
    EXPECT_EQ(third.DepthPortName, filled("Roscoff", 35));
    EXPECT_EQ(third.DepthPortNo, 3);
    EXPECT_EQ(third.Notes, filled("Position 48.43.1N   3.57.94W", 256));
    EXPECT_EQ(readdepth(settings.depfile, 1).Notes, filled("Position 0.00   0.00", 256));

    third.UserDepth = 2.5f;
    ASSERT_TRUE(writedepth(settings.depfile, 3, third));
    EXPECT_TRUE(EnsureDepFile(folders, settings));
    EXPECT_EQ(readdepth(settings.depfile, 3).UserDepth, 2.5f);
}

}  // namespace
}  // namespace tarvane
