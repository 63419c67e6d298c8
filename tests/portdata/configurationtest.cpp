#include "portdata/configuration.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <limits>

#include "fakes/temporaryfolder.h"
#include "portdata/bytes.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

struct Home {
    fakes::TemporaryFolder folder;
    ProgramFolders folders;

    Home() {
        folders = {folder / "program", folder / "docs", folder / "data", folder / "out"};
        fs::create_directories(folders.programfolder);
        fs::create_directories(folders.configfolder());
        fs::create_directories(folders.depthsfolder());
    }
};

TEST(Configuration, AFreshFolderGetsTheFirstRecord) {
    const Home home;
    Settings settings;
    loadsettings(home.folders, settings);
    const auto bytes = readwhole(home.folder / "data/TarvaneTides/TarTidesv9.cfg");
    ASSERT_EQ(bytes.size(), 1307u);
    const std::string texts[] = {home.folders.programfolder + "/UK.hc", "Owner Tarvane", "", "",
                                 home.folders.programfolder + "/Sample.way"};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(textat(bytes, 255 * i, 255), filled(texts[i], 255));
    const float numbers[] = {77, 3, 0.5f, 0.5f, 1};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(numberat<float>(bytes, 1275 + 4 * i), numbers[i]) << i;
    EXPECT_EQ(textat(bytes, 1295, 12), std::string("\0\0\xFF\xFF\0\0\0\0\0\0\0\0", 12));
    EXPECT_EQ(settings.hcfile, home.folders.programfolder + "/UK.hc");
    EXPECT_EQ(settings.currentport, 77);
}

TEST(Configuration, ModuleValuesMirrorTheRecord) {
    Settings settings;
    settings.configrec.hcfilepath = "  /a b/UK.hc   ";
    settings.configrec.portnumber = 12.5f;
    settings.configrec.outputoption = 2;
    settings.configrec.draught = 1.75f;
    settings.configrec.ukc = std::numeric_limits<float>::quiet_NaN();
    settings.configrec.spareoption = 1e9f;
    settings.configrec.summertimeflag = -1;
    takesettings(settings);
    EXPECT_EQ(settings.hcfile, "/a b/UK.hc");
    EXPECT_EQ(settings.areafile, settings.hcfile);
    EXPECT_EQ(settings.configrec.hcfilepath, "/a b/UK.hc");
    EXPECT_EQ(settings.currentport, 12);
    EXPECT_EQ(settings.currentoutput, 2.0f);
    EXPECT_EQ(settings.currentdraught, 1.75f);
    EXPECT_EQ(settings.spareoptionvalue, 32767);
    EXPECT_EQ(settings.currentsummer, -1);
    EXPECT_EQ(settings.summerflag2, -1);
}

TEST(Configuration, AFileOfAnyLengthReadsAsOneRecord) {
    const Home home;
    ConfigRecord record = defaultconfig(home.folders);
    record.reserved1 = -2;
    record.reserved2 = 0x01020304;
    ASSERT_TRUE(SaveConfig(home.folders, record));
    const std::string whole = filetext(home.folders.cfgpath());
    EXPECT_EQ(whole.substr(1303), "\x04\x03\x02\x01");
    const struct {
        std::size_t length;
        float portnumber;
        float ukc;
        std::int32_t reserved1;
    } rows[] = {{0, 0, 0, 0}, {1279, 77, 0, 0}, {1291, 77, 0.5f, 0}, {1307, 77, 0.5f, -2}, {1400, 77, 0.5f, -2}};
    for (const auto& row : rows) {
        putfile(home.folders.cfgpath(), (whole + std::string(200, 'x')).substr(0, row.length));
        const ConfigRecord read = LoadConfig(home.folders);
        EXPECT_EQ(read.portnumber, row.portnumber) << row.length;
        EXPECT_EQ(read.ukc, row.ukc) << row.length;
        EXPECT_EQ(read.reserved1, row.reserved1) << row.length;
        EXPECT_EQ(read.hcfilepath, row.length ? record.hcfilepath : "") << row.length;
    }
}

TEST(Configuration, PathsComeBackWhateverTheirCharacters) {
    const Home home;
    const struct {
        const char* path;
        const char* stored;
    } rows[] = {{"/home/ann/UK.hc", "/home/ann/UK.hc"},
                {"/home/José/UK.hc", "/home/Jos\xE9/UK.hc"},
                {"/home/日本/UK.hc", "/home/日本/UK.hc"},
                {"/home/Ã©/UK.hc", "/home/Ã©/UK.hc"},  // its single bytes would read as another name in UTF-8
                {"/home/€–é/UK.hc", "/home/\x80\x96\xE9/UK.hc"}};
    for (const auto& row : rows) {
        ConfigRecord record = defaultconfig(home.folders);
        record.hcfilepath = row.path;
        record.wayfilepath = row.path;
        ASSERT_TRUE(SaveConfig(home.folders, record));
        EXPECT_EQ(textat(readwhole(home.folders.cfgpath()), 0, 255), filled(row.stored, 255));
        EXPECT_EQ(LoadConfig(home.folders).hcfilepath, row.path);
        EXPECT_EQ(LoadConfig(home.folders).wayfilepath, row.path);
    }
    for (const std::string letter : {"a", "é", "日"}) {
        ConfigRecord record;
        while (record.hcfilepath.size() < 800)
            record.hcfilepath += letter;
        const std::string cut = decodeconfig(encode(record)).hcfilepath;
        EXPECT_TRUE(record.hcfilepath.starts_with(cut)) << letter;
        EXPECT_EQ(cut.size(), letter == "é" ? 510u : 255u) << letter;
    }
    ConfigRecord uneven;
    uneven.hcfilepath = std::string("//");
    while (uneven.hcfilepath.size() < 300)
        uneven.hcfilepath += "日";
    EXPECT_EQ(decodeconfig(encode(uneven)).hcfilepath, uneven.hcfilepath.substr(0, 254));
}

TEST(Configuration, AFolderThatCantBeWrittenStillStarts) {
    const Home home;
    fs::remove_all(home.folder / "data");
    putfile(home.folder / "data", "a file where the folder should be");
    Settings settings;
    loadsettings(home.folders, settings);
    EXPECT_EQ(settings.currentport, 77);
    EXPECT_EQ(settings.currentoutput, 3.0f);
    EXPECT_FALSE(SaveConfig(home.folders, settings.configrec));
    EXPECT_EQ(filetext(home.folder / "data"), "a file where the folder should be");
}

TEST(Userdepths, TheNameComesFromTheAreaFile) {
    const ProgramFolders folders{"/opt/tarvane", "/home/ann/Documents", "", ""};
    const struct {
        const char* hcfile;
        const char* name;
    } rows[] = {{"/opt/tarvane/UK.hc", "UK"},
                {"/opt/tarvane/North.Sea.2.hc", "North"},
                {"/opt/tarvane/.hc", ""},
                {"/opt/tarvane/noextension", "noextension"},
                {"/opt/tarvane/sub/Baltic.hc", "Baltic"},
                {"/elsewhere/v1.2/Fal.hc", "Fal"},
                {"C:\\Tides\\UK.hc", "UK"},
                {"UK.hc", "UK"},
                {"", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(hcbasename(folders, row.hcfile), row.name) << row.hcfile;
    EXPECT_EQ(depfileof(folders, "/opt/tarvane/UK.hc"), "/home/ann/Documents/TarvaneTides/UserDepths/UK.DEP");
}

TEST(Userdepths, TheFirstUseMakesOneRecordAPort) {
    const Home home;
    Settings settings;
    settings.hcfile = home.folders.programfolder + "/UK.hc";
    EXPECT_FALSE(EnsureDepFile(home.folders, settings));
    EXPECT_FALSE(canopen(settings.depfile));
    HarmonicRecord port;
    port.PortName = "Roscoff";
    port.PortLat = 48.7184f;
    port.PortLong = -3.9656f;
    ASSERT_TRUE(writeport(settings.hcfile, 3, port));
    ASSERT_TRUE(EnsureDepFile(home.folders, settings));
    ASSERT_EQ(filetext(settings.depfile).size(), 3 * 305u);
    const UserDepthRecord third = readdepth(settings.depfile, 3);
    EXPECT_EQ(third.DepthPortName, filled("Roscoff", 35));
    EXPECT_EQ(third.DepthPortNo, 3);
    EXPECT_EQ(third.UserDepth, 0.0f);
    EXPECT_EQ(third.Notes, filled("Position 48.43.1N   3.57.94W", 256));
    EXPECT_EQ(readdepth(settings.depfile, 1).Notes, filled("Position 0.00   0.00", 256));

    UserDepthRecord mine = third;
    mine.UserDepth = 2.5f;
    ASSERT_TRUE(writedepth(settings.depfile, 3, mine));
    ASSERT_TRUE(writeport(settings.hcfile, 4, port));
    EXPECT_TRUE(EnsureDepFile(home.folders, settings));
    EXPECT_EQ(readdepth(settings.depfile, 3).UserDepth, 2.5f);
    EXPECT_EQ(readdepth(settings.depfile, 4).Notes, "");

    fs::remove_all(home.folders.depthsfolder());
    EXPECT_FALSE(EnsureDepFile(home.folders, settings));
}

}  // namespace
}  // namespace tarvane
