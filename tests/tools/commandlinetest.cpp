// What a command line may hold, which port it means, where the files are, and that nothing is ever written.
#include <gtest/gtest.h>

#include "tools/companion.h"

namespace tarvane::tests {
namespace {

using CommandLine = Companion;
using Files = Companion;

void expectrefused(const Outcome& outcome, const std::string& words) {
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(linesof(outcome.err).size(), 1U) << outcome.err;
    EXPECT_TRUE(has(outcome.err, words)) << outcome.err;
}

TEST_F(CommandLine, FaultsAreOneLineWhateverIsTyped) {
    expectrefused(run("--area " + folder / "None.hc"), "None.hc can't be read");
    expectrefused(run("--area " + environment.home), "can't be read");
    store({portnamed("Home")});
    store({portnamed("Abroad")}, "New South Sea.hc");
    for (const char* area : {"New South Sea", "new-south-sea", "NEW SOUTH SEA.HC", "New South Sea.hc"})
        EXPECT_TRUE(has(runwith({"--area", area, "--list"}).out, "Abroad")) << area;
    expectrefused(runwith({"--area", "new sout see", "--sun"}),
                  "no sea area is called so; the nearest names are New "
                  "South Sea, UK");
    expectrefused(runwith({"--bad\nline"}), "'--bad?line'");
    expectrefused(runwith({"--port", "  "}), "--port needs");
    expectrefused(runwith({"--date", "2024-01-01 "}), "is no date");
}

TEST_F(CommandLine, TheSameAskedInOtherForms) {
    store({portnamed("Fécamp"), portnamed("Le Havre")});
    const std::string wanted = csv("--port 2 --days 3");
    for (const char* line : {"--days=3 --port=2", "le --days 3 havre", "--days 3 -- HAVRE"})
        EXPECT_EQ(csv(line), wanted) << line;
    EXPECT_EQ(runwith({"--days", "3", "--port", "Le Havre", "--format=csv"}).out, wanted);
    const std::string help = run("-h").out;
    EXPECT_EQ(run("--nonsense --help").out, help);
    for (const char* part : {"--port NUMBER|NAME|all", "--orbital", "\"moment\"", "Exit status"})
        EXPECT_TRUE(has(help, part)) << help;
}

TEST_F(Files, WithoutConfigurationTheFirstStartsValuesAndNothingMade) {
    store(std::vector<HarmonicRecord>(76, portnamed("Other")));
    writeport(areapath(), 77, portnamed("Seventy-seven"));
    const auto before = everything();
    for (const char* line : {"--samples", "--sun", "--orbital", "--list", "--port 1 --format json", "--bad"})
        run(line);
    EXPECT_TRUE(has(run("").out, "Seventy-seven, port 77 of UK.hc"));
    EXPECT_TRUE(has(run("").out, "Tuesday 9 April 2024"));
    EXPECT_EQ(everything(), before);
}

TEST_F(Files, InstalledTheSharedAreaIsReadAndTheUsersOwnComesFirst) {
    const std::string shared = folder / "share/tarvane-tides/", own = foldersof(environment).configfolder() + "/Areas/";
    std::filesystem::create_directories(shared);
    writeport(shared + "UK.hc", 1, portnamed("As shipped"));
    EXPECT_TRUE(has(csv("--list"), "1,As shipped,"));
    const ProgramFolders folders = foldersof(environment);
    EXPECT_EQ(folders.programfolder + "/", shared);
    EXPECT_EQ(folders.ownfolder + "/", own) << "though the shared one can be written";
    configure(1);
    std::filesystem::create_directories(own);
    writeport(own + "UK.hc", 1, portnamed("Mine"));
    EXPECT_TRUE(has(csv("--list"), "1,Mine,"));
    std::filesystem::remove_all(own);
    EXPECT_TRUE(has(csv("--list"), "1,As shipped,"));
}

TEST_F(Files, StoredPortSummerAndArea) {
    store({portnamed("First"), portnamed("Second")});
    configure(2, 1, -1);
    const std::string shifted = csv("");
    EXPECT_TRUE(has(shifted, "2,Second,2024-04-09,05:40,")) << shifted;
    EXPECT_TRUE(has(csv("--summer off"), ",04:40,"));
    // the rule of the day still decides under --summer on
    EXPECT_EQ(csv("--date 2024-01-15 --summer on"), csv("--date 2024-01-15 --summer off"));
    configure(2, 1, 0);
    EXPECT_EQ(csv("--summer on"), shifted);
    configure(3);
    expectrefused(run(""), "has no port 3");
}

TEST_F(Files, DepthsOfTheAreaInTheUsersDocuments) {
    store({portnamed("Home"), portnamed("Next")});
    store({portnamed("Away")}, "Far.hc");
    configure(1, 2);
    const std::string bare = csv("");
    EXPECT_TRUE(has(bare, ",5.5")) << bare;
    std::filesystem::create_directories(environment.home + "/.config");
    putfile(environment.home + "/.config/user-dirs.dirs",
            "# XDG_DOCUMENTS_DIR=\"$HOME/No\"\nXDG_DESKTOP_DIR=\"$HOME/Desk\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers/\"\n");
    EXPECT_EQ(foldersof(environment).docsfolder, environment.home + "/Papers");
    storedepth(10);
    storedepth(20, "Far.DEP");
    EXPECT_TRUE(has(csv(""), ",15.5"));
    EXPECT_TRUE(has(csv("next"), ",5.5"));
    EXPECT_TRUE(has(csv("--area " + areapath("Far.hc")), ",25.5"));
    configure(1, 1);
    EXPECT_EQ(csv(""), bare);
}

TEST_F(Files, FoldersFromTheEnvironment) {
    environment.home = "/home/anne";
    EXPECT_EQ(foldersof(environment).docsfolder, "/home/anne/Documents");
    using Row = std::pair<const char*, const char*>;
    for (const auto& [datahome, appdata] :
         {Row{"", "/home/anne/.local/share"}, Row{"/srv/data", "/srv/data"}, Row{"here", "/home/anne/.local/share"}}) {
        environment.datahome = datahome;
        EXPECT_EQ(foldersof(environment).appdatafolder, appdata);
    }
}

TEST_F(Files, BrokenOnesAreRefused) {
    expectrefused(run(""), "UK.hc can't be read");
    EXPECT_EQ(run("--orbital").status, 0) << "needs none";
    putfile(areapath("Empty.hc"), "");
    expectrefused(run("--port 1 --area " + areapath("Empty.hc")), "holds no ports");
    store({portnamed("Home")});
    configure(1, 3);
    const ProgramFolders folders = foldersof(environment);
    std::filesystem::create_directories(folders.depthsfolder() + "/UK.DEP");
    expectrefused(run(""), "UK.DEP can't be read");
    std::filesystem::resize_file(folders.cfgpath(), 0);
    expectrefused(run(""), "names no sea area file");
    std::filesystem::remove(folders.cfgpath());
    std::filesystem::create_directory(folders.cfgpath());
    expectrefused(run(""), "configuration");
}

}  // namespace
}  // namespace tarvane::tests
