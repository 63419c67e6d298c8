#include "diamonds/chartimport.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

struct ChartsImported : testing::Test, MainFixture {
    const std::string medium = folder / "medium", atlas = medium + "/Atlas";
    const std::string program = session.folders.programfolder;

    ChartsImported() {
        std::filesystem::create_directories(atlas);
        scripted.drives.mounted = {{folder.path(), ""}, {medium, "CHARTS"}};
    }

    void put(const std::vector<std::string>& names) const {
        for (const std::string& name : names)
            putfile(atlas + "/" + name, "of " + name);
    }
    ChartImport opened() {
        ChartImport import = openimport(context);
        EXPECT_TRUE(pickfolder(context, import, atlas));
        return import;
    }
};

TEST_F(ChartsImported, TheFilesOfEachAreaAreFoundWhateverTheirCase) {
    put({"SOLENT.CHA", "SOLENT.CHT", "Solent.l20", "SOLENT.L30", "solent.L40", "b.x.cha", "b.cht", "b.l20", "b.l30",
         "b.l40", "notes.txt", "._SOLENT.CHA"});
    ChartImport import = opened();
    EXPECT_EQ(import.areas, (std::vector<std::string>{"SOLENT.CHA", "b.x.cha"}));
    scripted.messages.expectshow(" 2 files transferred", "Tarvane");
    importareas(context, import);
    EXPECT_EQ(import.outcomes, (std::vector<std::string>{"SOLENT.cht: copied", "SOLENT.l20: copied",
                                                         "SOLENT.l30: copied", "SOLENT.l40: copied", "b.cht: copied",
                                                         "b.l20: copied", "b.l30: copied", "b.l40: copied"}));
    EXPECT_EQ(filetext(program + "/SOLENT.cht") + filetext(program + "/SOLENT.l20") + filetext(program + "/b.l40"),
              "of SOLENT.CHTof Solent.l20of b.l40");
    EXPECT_FALSE(canopen(program + "/SOLENT.CHA") || canopen(program + "/SOLENT.l20.bak"));
}

TEST_F(ChartsImported, WhatFailedIsNamedAndTheAreasAreCountedAllTheSame) {
    put({"a.cha", "a.l20", "a.l40"});
    std::filesystem::create_directory(program + "/a.l40");
    std::filesystem::create_directory(atlas + "/a.cht");
    ChartImport import = opened();
    scripted.messages.expectshow(
        " 1 files transferred\r\rNot copied:\ra.cht: it is not in the folder\ra.l30: it is not in the folder\r"
        "a.l40: it can't be written: Is a directory");
    importareas(context, import);
    EXPECT_EQ(filetext(program + "/a.l20"), "of a.l20");
    ASSERT_EQ(import.outcomes.size(), 4U);
    EXPECT_EQ(import.outcomes[1], "a.l20: copied");
    put({"b.cha", "c.cha", "d.cha"});
    import = opened();
    std::filesystem::remove_all(atlas);
    std::string missing;
    for (const char* name : {"a.cht", "a.l20", "a.l30", "a.l40", "b.cht", "b.l20", "b.l30", "b.l40"})
        missing += std::string("\r") + name + ": it is not in the folder";
    scripted.messages.expectshow(" 4 files transferred\r\rNot copied:" + missing + "\rand 8 more: see the list");
    importareas(context, import);
    EXPECT_EQ(import.outcomes.size(), 16U);
}

TEST_F(ChartsImported, WithoutAnAreaTheReportComesAllTheSame) {
    ChartImport import = opened();
    scripted.messages.expectshow("Nothing to import", "Tarvane");
    scripted.messages.expectshow(" 0 files transferred", "Tarvane");
    importareas(context, import);
}

TEST_F(ChartsImported, WhatTheUserChangedIsKeptBesideTheNewFile) {
    put({"a.cha", "a.cht", "a.l20", "a.l30", "a.l40"});
    putfile(program + "/A.L20", "amended");
    session.backups.kept.insert(program + "/A.L20");
    ChartImport import = opened();
    for (int times = 0; times < 2; ++times) {
        scripted.messages.expectshow(" 1 files transferred");
        importareas(context, import);
        EXPECT_EQ(filetext(program + "/A.L20"), "of a.l20");
        EXPECT_EQ(filetext(program + "/A.L20.bak"), "amended") << "the same files once more keep nothing new";
    }
    putfile(program + "/A.L20", "amended again");
    std::filesystem::remove(program + "/A.L20.bak");
    std::filesystem::create_directory(program + "/A.L20.bak");
    scripted.messages.expectshow(" 1 files transferred\r\rNot copied:\ra.l20: it can't be written: Is a directory");
    importareas(context, import);
    EXPECT_EQ(filetext(program + "/A.L20"), "amended again");
}

TEST_F(ChartsImported, DrivesAndFoldersComeInHandWhereTheyCanBeRead) {
    ChartImport import = openimport(context);
    EXPECT_EQ(import.drive, medium) << "the medium rather than the machine's own tree";
    ASSERT_TRUE(pickfolder(context, import, atlas));
    ASSERT_EQ(import.folders.size(), 2U);
    EXPECT_EQ(import.folders[1].path, atlas);
    EXPECT_TRUE(import.folders[1].open);
    scripted.messages.expectshow("The folder can't be read: " + medium + "/none: No such file or directory");
    EXPECT_FALSE(pickfolder(context, import, medium + "/none"));
    EXPECT_EQ(import.folder, atlas);
    EXPECT_TRUE(pickdrive(context, import, folder.path()));
    EXPECT_EQ(import.folder, folder.path());
    scripted.drives.mounted.push_back({folder / "gone", ""});
    scripted.messages.expectshow("Drive not ready");
    EXPECT_FALSE(pickdrive(context, import, folder / "gone"));
    scripted.drives.mounted.resize(1);
    scripted.messages.expectshow("Drive not ready");
    EXPECT_FALSE(pickdrive(context, import, medium)) << "it was taken out";
    EXPECT_EQ(import.drive, folder.path());
    EXPECT_EQ(import.drives.size(), 1U);
}

}  // namespace
}  // namespace tarvane::tests
