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

TEST_F(datafolder, anupgradetouchesnothingandistold) {
    folders.ownfolder = root / "own/Areas";
    const std::string shipped = folders.programfolder + "/UK.hc";
    EXPECT_FALSE(originof(folders, shipped).own);
    const std::string own = datafiletowrite(folders, "UK.hc").path;
    ASSERT_TRUE(replacefile(own, std::string("mine")));
    for (const auto& [brought, told] : {std::pair{"shipped", false}, {"a newer one", true}, {"shipped", false}}) {
        ASSERT_TRUE(replacefile(shipped, std::string(brought)));
        const FileOrigin origin = originof(folders, datafile(folders, "UK.hc"));
        EXPECT_TRUE(origin.own);
        EXPECT_EQ(origin.shippedanother, told) << brought;
        EXPECT_EQ(readwhole(own).size(), 4U);
    }
    std::filesystem::remove(shipped);
    EXPECT_FALSE(originof(folders, own).shippedanother) << "the program doesn't bring it any more";
    const std::string made = datafiletowrite(folders, "creek2.hc").path;
    ASSERT_TRUE(replacefile(made, std::string("mine")));
    ASSERT_TRUE(replacefile(folders.programfolder + "/creek2.hc", std::string("brought later")));
    EXPECT_FALSE(originof(folders, made).shippedanother) << "made of nothing that the program brought";
    EXPECT_EQ(datafiles(folders, ".hc"), (std::vector<std::string>{"UK.hc", "creek.HC", "creek2.hc"}));
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
