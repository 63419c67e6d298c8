#include "portdata/datafolder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

class datafolder : public testing::Test {
  protected:
    datafolder() {
        std::filesystem::create_directories(root / "program");
        folders.programfolder = root / "program";
        folders.appdatafolder = root / "data";
        for (const char* name : {"UK.hc", "creek.HC", "tide.ht"})
            EXPECT_TRUE(replacefile(folders.programfolder + "/" + name, std::string("shipped")));
    }

    fakes::TemporaryFolder root;
    ProgramFolders folders;
};

TEST_F(datafolder, withoutonetheprogramsisused) {
    EXPECT_EQ(datafiles(folders, ".hc"), (std::vector<std::string>{"UK.hc", "creek.HC"}));
    EXPECT_EQ(datafile(folders, "uk.hc"), folders.programfolder + "/UK.hc") << "letters' case is not told apart";
    const WritableFile file = datafiletowrite(folders, "new.hc");
    EXPECT_TRUE(file.prepared);
    EXPECT_EQ(file.path, folders.programfolder + "/new.hc");
}

TEST_F(datafolder, oftheuserscomesfirst) {
    folders.ownfolder = root / "own/Areas";
    EXPECT_EQ(datafile(folders, "UK.hc"), folders.programfolder + "/UK.hc");
    const WritableFile file = datafiletowrite(folders, "uk.hc");
    EXPECT_TRUE(file.prepared);
    EXPECT_EQ(file.path, folders.ownfolder + "/UK.hc");
    EXPECT_EQ(readwhole(file.path), readwhole(folders.programfolder + "/UK.hc"));
    ASSERT_TRUE(replacefile(file.path, std::string("mine")));
    EXPECT_EQ(datafiletowrite(folders, "UK.hc").path, file.path);
    EXPECT_EQ(readwhole(file.path).size(), 4u) << "the shipped one must not come over the user's";
    EXPECT_EQ(datafiles(folders, ".hc"), (std::vector<std::string>{"UK.hc", "creek.HC"})) << "each name once";
    // The configuration names the shipped file still: the user's is meant.
    ConfigRecord record = defaultconfig(folders);
    std::filesystem::create_directories(folders.configfolder());
    ASSERT_TRUE(SaveConfig(folders, record));
    EXPECT_EQ(trim(readconfig(folders).hcfilepath), file.path);
}

TEST_F(datafolder, namesstayinside) {
    for (const char* bad : {"../UK", "a/b", "a\\b", ".hidden", "a\nb"})
        EXPECT_NE(filenamefault(bad), "") << bad;
    for (const char* good : {"UK", "Mon abri", "K\xC3\xBCste", "a..b"})
        EXPECT_EQ(filenamefault(good), "") << good;
    EXPECT_EQ(namebeforepoint("UK.old.hc"), "UK");
}

}  // namespace
}  // namespace tarvane
