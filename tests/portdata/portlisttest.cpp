#include "portdata/portlist.h"

#include <gtest/gtest.h>

#include "fakes/temporaryfolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

using Names = std::vector<std::string>;

class PortListTest : public testing::Test {
  protected:
    void store(const Names& names) {
        std::filesystem::remove(area);
        std::int16_t number = 0;
        for (const std::string& name : names) {
            HarmonicRecord port;
            port.PortName = name;
            writeport(area, ++number, port);
        }
        loadportlist(list, "  " + area + " ");
    }
    Names sorted() {
        sortbyname(list);
        return portnames(list);
    }

    fakes::TemporaryFolder folder;
    std::string area = folder / "Area.hc";
    PortList list;
};

TEST_F(PortListTest, SortingTakesTheLastEntryOffEachTime) {
    struct Row {
        Names file, first, second;
    };
    const Row rows[] = {
        {{"Whitby", "Aberdeen", "Leith", "Dover"}, {"Aberdeen", "Leith", "Whitby"}, {"Aberdeen", "Leith"}},
        {{"b", "B", "a", "x"}, {"a", "b", "B"}, {"a", "b"}},
        {{"Alone"}, {}, {}},
        // The blank that fills a name counts: "Port" comes before "Port Ellen", and both before "Port-en-Bessin".
        {{"Port-en-Bessin", "Port Ellen", "Port", "x"},
         {"Port", "Port Ellen", "Port-en-Bessin"},
         {"Port", "Port Ellen"}},
        // A letter past "~" sorts behind the overwritten entry and is the one that goes.
        {{"\u00CEle", "Zennor", "x"}, {"Zennor", "~~~~~~~~"}, {"Zennor"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.file.front());
        store(row.file);
        EXPECT_EQ(portnames(list), row.file);
        EXPECT_EQ(sorted(), row.first);
        EXPECT_EQ(sorted(), row.second);
        EXPECT_EQ(list.filelist.size(), row.file.size());
        loadportlist(list, area);
        EXPECT_EQ(portnames(list), row.file);
    }
    loadportlist(list, folder / "nowhere.hc");
    EXPECT_TRUE(list.displaylist.empty() && list.filelist.empty());
    EXPECT_EQ(sorted(), Names{});
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
}

TEST_F(PortListTest, PicksByWholeNameTheLastOfEqualNames) {
    store({"Dover", "Ryde", "Deal", "Ryde", "Ryde Pier", "a\tb"});
    const struct {
        const char* entry;
        std::optional<std::string> picked;
        int selectedport;
    } rows[] = {{"Deal", "Deal", 3}, {"  Ryde ", "Ryde", 4}, {"17\tDover", "Dover", 1}, {"ryde", {}, 1}, {"Ryd", {}, 1},
                {"", {}, 1},         {"a\tb", {}, 1},        {"Dover\tTown", {}, 1}};
    for (const auto& row : rows) {
        EXPECT_EQ(pickport(list, row.entry), row.picked) << row.entry;
        EXPECT_EQ(list.selectedport, row.selectedport) << row.entry;
    }
}

TEST_F(PortListTest, SearchesAnyPartWhateverTheCaseFromHitToHit) {
    store({"St Mary's", "Newlyn", "Saint-Malo", "\u00C9tretat", "Malin Head"});
    EXPECT_EQ(searchfromstart(list, "MAL"), 2U);
    EXPECT_EQ(searchnext(list, "mal"), 4U);
    EXPECT_EQ(searchnext(list, "mal"), std::nullopt);
    EXPECT_EQ(searchnext(list, "mal"), 2U) << "from the top again";
    EXPECT_EQ(searchfromstart(list, "\u00E9TRE"), 3U);
    EXPECT_EQ(searchfromstart(list, "nowhere"), std::nullopt);
    EXPECT_EQ(searchnext(list, "mal"), 4U) << "a typed text without a hit leaves the last one";
    EXPECT_TRUE(searchhits(list, "HEAD"));
    EXPECT_FALSE(searchhits(list, "headd"));
    EXPECT_EQ(searchfromstart(list, "newl"), 1U);
    ASSERT_EQ(sorted().size(), 4U);
    EXPECT_EQ(searchnext(list, "s"), 2U) << "the new order is searched from behind the old place";
}

TEST_F(PortListTest, AnEmptyTextStepsThroughThePortsUpToOneWithoutAName) {
    store({"One", "Two", "", "Four"});
    EXPECT_EQ(searchnext(list, ""), 0U);
    EXPECT_EQ(searchnext(list, ""), 1U);
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
    EXPECT_EQ(list.searchposition, 1) << "neither selected nor passed";
    EXPECT_EQ(searchnext(list, "o"), 3U);
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
    EXPECT_EQ(searchnext(list, ""), 0U);
}

}  // namespace
}  // namespace tarvane
