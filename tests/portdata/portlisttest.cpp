#include "portdata/portlist.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "fakes/temporaryfolder.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

using Names = std::vector<std::string>;

class PortListTest : public testing::Test {
  protected:
    void store(const Names& names) {
        std::int16_t number = 0;
        for (const std::string& name : names) {
            HarmonicRecord port;
            port.PortName = name;
            writeport(area, ++number, port);
        }
        loadportlist(list, area);
    }
    Names sorted() {
        sortbyname(list);
        return portnames(list);
    }

    fakes::TemporaryFolder folder;
    std::string area = folder / "Area.hc";
    PortList list;
};

TEST_F(PortListTest, LoadsInFileOrderAndForgetsTheLastHit) {
    store({"Whitby", "Aberdeen", "Leith"});
    EXPECT_EQ(portnames(list), (Names{"Whitby", "Aberdeen", "Leith"}));
    EXPECT_EQ(searchfromstart(list, "lei"), 2U);
    loadportlist(list, "  " + area + " ");
    EXPECT_EQ(list.searchposition, -1);
    EXPECT_EQ(list.filelist.size(), 3U);
    loadportlist(list, folder / "nowhere.hc");
    EXPECT_TRUE(list.displaylist.empty() && list.filelist.empty());
    EXPECT_EQ(sorted(), Names{});
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
    EXPECT_EQ(list.searchposition, -1);
}

TEST_F(PortListTest, SortingTakesTheLastEntryOffEachTime) {
    struct Row {
        Names file, first, second;
    };
    const Row rows[] = {
        {{"Whitby", "Aberdeen", "Leith", "Dover"}, {"Aberdeen", "Leith", "Whitby"}, {"Aberdeen", "Leith"}},
        {{"b", "B", "a", "x"}, {"a", "b", "B"}, {"a", "b"}},
        {{"St Mary's", "Saint-Malo", "St Helier", "Brest"},
         {"Saint-Malo", "St Helier", "St Mary's"},
         {"Saint-Malo", "St Helier"}},
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
        std::filesystem::remove(area);
        store(row.file);
        EXPECT_EQ(sorted(), row.first);
        EXPECT_EQ(sorted(), row.second);
        EXPECT_EQ(list.filelist.size(), row.file.size());
        loadportlist(list, area);
        EXPECT_EQ(portnames(list), row.file);
    }
}

TEST_F(PortListTest, PicksByWholeNameTheLastOfEqualNames) {
    store({"Dover", "Ryde", "Deal", "Ryde", "Ryde Pier", "a\tb"});
    EXPECT_EQ(pickport(list, "Deal"), "Deal");
    EXPECT_EQ(list.selectedport, 3);
    EXPECT_EQ(pickport(list, "  Ryde "), "Ryde");
    EXPECT_EQ(list.selectedport, 4);
    EXPECT_EQ(pickport(list, "17\tDover"), "Dover");
    EXPECT_EQ(list.selectedport, 1);
    for (const char* entry : {"ryde", "Ryd", "", "a\tb", "Dover\tTown"})
        EXPECT_EQ(pickport(list, entry), std::nullopt) << entry;
    EXPECT_EQ(list.selectedport, 1);
}

TEST_F(PortListTest, SearchesAnyPartWhateverTheCase) {
    store({"St Mary's", "Newlyn", "Saint-Malo", "\u00C9tretat", "Malin Head"});
    EXPECT_EQ(searchfromstart(list, "MAL"), 2U);
    EXPECT_EQ(searchnext(list, "mal"), 4U);
    EXPECT_EQ(searchnext(list, "mal"), std::nullopt);
    EXPECT_EQ(list.searchposition, -1);
    EXPECT_EQ(searchnext(list, "mal"), 2U);
    EXPECT_EQ(searchfromstart(list, "\u00E9TRE"), 3U);
    EXPECT_EQ(searchfromstart(list, "malo "), 2U);
    EXPECT_EQ(searchfromstart(list, "nowhere"), std::nullopt);
    EXPECT_EQ(list.searchposition, 2) << "a typed text without a hit leaves the last one";
    EXPECT_EQ(searchnext(list, "mal"), 4U);
    EXPECT_TRUE(searchhits(list, "HEAD"));
    EXPECT_FALSE(searchhits(list, "headd"));
}

TEST_F(PortListTest, AnEmptyTextStepsThroughEveryPort) {
    store({"One", "", "Three"});
    EXPECT_EQ(searchfromstart(list, ""), 0U);
    EXPECT_EQ(searchnext(list, ""), std::nullopt) << "a port without a name isn't selected";
    EXPECT_EQ(list.searchposition, 1);
    EXPECT_EQ(searchnext(list, ""), 2U);
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
    EXPECT_EQ(searchnext(list, ""), 0U);
}

TEST_F(PortListTest, TheAreaThatShipsSortsAndIsFound) {
    std::ifstream file(TARVANE_DATA "/uk-ports.csv");
    std::stringstream text;
    text << file.rdbuf();
    Names names;
    for (const HarmonicRecord& port : readportscsv(text.str()).ports)
        names.push_back(port.PortName);
    ASSERT_GT(names.size(), 50U);
    store(names);
    EXPECT_EQ(portnames(list), names);

    const Names byname = sorted();
    EXPECT_EQ(byname.size(), names.size() - 1);
    EXPECT_EQ(std::count(byname.begin(), byname.end(), names.back()), 0);
    EXPECT_TRUE(std::is_sorted(byname.begin(), byname.end())) << "all names of this area begin with capitals";
    const std::set<std::string> all(names.begin(), names.end());
    for (const std::string& name : byname) {
        EXPECT_TRUE(all.contains(name)) << name;
        EXPECT_EQ(pickport(list, name), name);
        EXPECT_EQ(names[static_cast<std::size_t>(list.selectedport - 1)], name);
    }
    const auto malo = searchfromstart(list, "malo");
    ASSERT_TRUE(malo);
    EXPECT_EQ(byname[*malo], "Saint-Malo");
    EXPECT_EQ(pickport(list, names.back()), names.back()) << "the port off the list is still in the file";
}

}  // namespace
}  // namespace tarvane
