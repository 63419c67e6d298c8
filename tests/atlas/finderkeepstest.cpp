// Favourites and recent ports in their file.
#include "atlas/finderkeeps.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"

namespace tarvane {
namespace {

struct FinderKeepsFile : testing::Test {
    fakes::TemporaryFolder folder;
    std::string path = folder / "Finder.json";

    std::string recents() const {
        std::string text;
        for (const KeptPort& each : readfinderkeeps(path).recents)
            text += each.name + " ";
        return text;
    }
};

TEST_F(FinderKeepsFile, WhatIsKeptComesBack) {
    const KeptPort sydney{"Australia.hc", "Sydney"}, etel{"France.hc", "Étel \"\\"}, brest{"France.hc", "Brest"};
    for (const KeptPort& each : {sydney, etel, brest, sydney})
        EXPECT_TRUE(togglefavourite(path, each));
    for (const KeptPort& each : {sydney, etel, brest, sydney})
        EXPECT_TRUE(noterecent(path, each));
    const FinderKeeps keeps = readfinderkeeps(path);
    EXPECT_EQ(keeps.favourites, (std::vector{etel, brest}));
    EXPECT_EQ(keeps.recents, (std::vector{sydney, brest, etel}));
    const auto written = std::filesystem::last_write_time(path);
    EXPECT_TRUE(noterecent(path, sydney));
    EXPECT_EQ(std::filesystem::last_write_time(path), written) << "nothing changed";
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(noterecent(path, {"UK.hc", std::to_string(i)}));
    EXPECT_EQ(recents(), "19 18 17 16 15 14 13 12 11 10 9 8 ");
    EXPECT_TRUE(noterecent(path, {"UK.hc", "10"}));
    EXPECT_EQ(recents(), "10 19 18 17 16 15 14 13 12 11 9 8 ");
    EXPECT_EQ(readfinderkeeps(path).favourites.size(), 2U);
    EXPECT_FALSE(noterecent(folder / "not/there/Finder.json", sydney));
}

TEST_F(FinderKeepsFile, AnOddFileGivesWhatCanBeUsedAndIsKept) {
    const std::string good = R"({"area": "UK.hc", "name": "Dover"})";
    int kept = 0;
    for (const std::string& text :
         {std::string("{"), std::string("[]"), std::string("\0\xFF", 2),
          std::string("{\"recents\": 5, \"favourites\": {}}"), std::string("{\"recents\": [], \"colours\": 2}"),
          "{\"recents\": [" + good + ", {\"area\": \"UK.hc\", \"name\": \"Wick\", \"note\": \"x\"}]}",
          "{\"recents\": [" + good + ", 3, {\"area\": 1, \"name\": \"x\"}, {\"name\": \"x\"}, null, " + good + "]}"}) {
        ASSERT_TRUE(replacefile(path, text));
        const FinderKeeps keeps = readfinderkeeps(path);
        EXPECT_TRUE(keeps.favourites.empty()) << text;
        EXPECT_EQ(recents().find("Dover") == std::string::npos, text.find("Dover") == std::string::npos) << text;
        EXPECT_TRUE(togglefavourite(path, {"UK.hc", "Wick"}));
        EXPECT_EQ(readfinderkeeps(path).favourites.size(), 1U) << text;
        const std::string copy = "Finder.json.broken" + (++kept == 1 ? "" : std::to_string(kept));
        EXPECT_EQ(wholetext(folder / copy), text) << "none is lost";
        const std::string told = tellfinderkeeps(path);
        EXPECT_TRUE(told.ends_with("and as it was it lies in " + folder / copy + ".")) << told;
        EXPECT_EQ(tellfinderkeeps(path), "") << "once";
        EXPECT_EQ(readfinderkeeps(path).favourites.size(), 1U) << text;
    }
    ASSERT_TRUE(replacefile(path, "["));
    EXPECT_TRUE(tellfinderkeeps(path).ends_with(std::to_string(kept + 1) + ".")) << "told before anything was changed";
    EXPECT_TRUE(readfinderkeeps(path).state.whole);
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_EQ(tellfinderkeeps(path), path + " can't be read: no favourites and no recent ports are listed.");
    EXPECT_FALSE(togglefavourite(path, {"UK.hc", "Wick"}));
    EXPECT_FALSE(noterecent(path, {"UK.hc", "Wick"}));
}

TEST_F(FinderKeepsFile, PortsThatAreGoneArePassedOverAndKept) {
    World world{{{"/a/UK.hc", "UK", ""}, {"/b/France.hc", "France", ""}}, {}};
    for (const auto& [area, name] :
         {std::pair(0U, "Brest"), {0U, "Dover"}, {1U, "Brest"}, {1U, "Dover"}, {1U, "Dover"}}) {
        WorldPort port;
        port.area = area;
        port.name = name;
        world.ports.push_back(port);
    }
    EXPECT_EQ(keptport(world, 2), (KeptPort{"France.hc", "Brest"}));
    const std::vector<KeptPort> kept{
        {"France.hc", "Dover"}, {"Peru.hc", "Callao"}, {"UK.hc", "Brest"}, {"UK.hc", "Gone"}};
    EXPECT_EQ(keptplaces(world, kept), (std::vector<std::size_t>{3, 4, 0}));
    for (const KeptPort& each : kept)
        togglefavourite(path, each);
    noterecent(path, {"UK.hc", "Dover"});
    EXPECT_EQ(readfinderkeeps(path).favourites, kept);
}

}  // namespace
}  // namespace tarvane
