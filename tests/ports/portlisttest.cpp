#include "ports/portlist.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <tuple>

#include "fakes/temporaryfolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

using Names = std::vector<std::string>;

struct PortListTest : testing::Test {
    void store(const Names& names) {
        std::filesystem::remove(area);
        HarmonicRecord port;
        for (std::size_t i = 0; i < names.size(); ++i) {
            port.PortName = names[i];
            writeport(area, static_cast<std::int16_t>(i + 1), port);
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
    const std::tuple<Names, Names, Names> rows[] = {
        {{"Whitby", "Aberdeen", "Leith", "Dover"}, {"Aberdeen", "Leith", "Whitby"}, {"Aberdeen", "Leith"}},
        {{"b", "B", "a", "x"}, {"a", "b", "B"}, {"a", "b"}},
        {{"Alone"}, {}, {}},
        // The blank that fills a name counts.
        {{"Port-en-Bessin", "Port Ellen", "Port", "x"},
         {"Port", "Port Ellen", "Port-en-Bessin"},
         {"Port", "Port Ellen"}},
        // A letter past "~" sorts behind the overwritten entry and is the one that goes.
        {{"\u00CEle", "Zennor", "x"}, {"Zennor", "~~~~~~~~"}, {"Zennor"}}};
    for (const auto& [file, first, second] : rows) {
        store(file);
        EXPECT_EQ(sorted(), first);
        EXPECT_EQ(sorted(), second);
        loadportlist(list, area);
        EXPECT_EQ(portnames(list), file);
    }
    store({"Whitby", "Dover", "Ryde", "Ryde"});
    EXPECT_EQ(missingports(list), "");
    sorted();
    EXPECT_EQ(missingports(list), "Ryde is not in this list: sort geographically to choose there.");
    sorted();
    EXPECT_EQ(missingports(list), "Whitby and 1 more are not in this list: sort geographically to choose there.");
    loadportlist(list, folder / "nowhere.hc");
    EXPECT_EQ(sorted(), Names{});
}

TEST_F(PortListTest, PicksByWholeNameTheLastOfEqualNames) {
    store({"Dover", "Ryde", "Deal", "Ryde", "Ryde Pier"});
    EXPECT_EQ(pickport(list, "17\tDover"), "Dover");
    EXPECT_EQ(pickport(list, "  Ryde "), "Ryde");
    for (const char* other : {"ryde", "Ryd", "", "Dover\tTown"})
        EXPECT_EQ(pickport(list, other), std::nullopt) << other;
    EXPECT_EQ(list.selectedport, 4);
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
    EXPECT_EQ(searchfromstart(list, "newl"), 1U);
    ASSERT_EQ(sorted().size(), 4U);
    EXPECT_EQ(searchnext(list, "s"), 2U) << "the new order is searched from behind the old place";
}

TEST_F(PortListTest, ATextThatNoNameHasFindsWhatItIsLikelyToMean) {
    store({"St Mary's", "Saint-Malo", "Portland", "Portsmouth", "Saint-Quay-Portrieux"});
    EXPECT_EQ(searchfromstart(list, "Portsmuth"), 3U);
    EXPECT_EQ(searchfromstart(list, "st"), 0U);
    EXPECT_EQ(searchnext(list, "st"), std::nullopt) << "a name that has the text leaves no room for the likely ones";
    EXPECT_EQ(searchfromstart(list, "st."), 0U);
    EXPECT_EQ(searchnext(list, "st."), 1U);
    EXPECT_EQ(searchnext(list, "st."), 4U);
    EXPECT_EQ(searchnext(list, "st."), std::nullopt);
    EXPECT_FALSE(searchhits(list, "qqqqqqqq"));
}

TEST_F(PortListTest, ARecordIsFoundInEitherOrderAlsoAmongEqualNames) {
    store({"Ryde", "Deal", "Ryde", "Cowes", "Ryde"});
    EXPECT_EQ(placeofrecord(list, 3), 2U);
    EXPECT_EQ(sorted(), (Names{"Cowes", "Deal", "Ryde", "Ryde"}));
    for (const auto& [number, place] : {std::pair{1, 2U}, {2, 1U}, {3, 3U}, {4, 0U}})
        EXPECT_EQ(placeofrecord(list, static_cast<std::int16_t>(number)), place) << number;
    for (const std::int16_t missing : {std::int16_t{5}, std::int16_t{0}, std::int16_t{6}})
        EXPECT_EQ(placeofrecord(list, missing), std::nullopt) << missing;
    EXPECT_EQ(list.selectedport, 0) << "looked for, not picked";
}

TEST_F(PortListTest, LettersStepThroughTheirGroupAndRound) {
    store({"Poole", "Dover", "portland", "Port Ellen", "\u00C9tretat"});
    using Row = std::tuple<int, const char*, std::optional<std::size_t>>;
    for (const auto& [from, typed, place] :
         {Row{-1, "p", 0}, Row{0, "p", 2}, Row{2, "PPP", 3}, Row{3, "pp", 0}, Row{0, "po", 0}, Row{1, "po", 2},
          Row{2, "port ", 3}, Row{3, "d", 1}, Row{1, "d", 1}, Row{0, "x", {}}, Row{0, "pox", {}}, Row{0, "", {}},
          Row{0, "\u00E9", 4}, Row{4, "\u00E9\u00E9", 4}})
        EXPECT_EQ(stepbyletters(list, from, typed), place) << from << typed;
    EXPECT_EQ(stepbyletters(PortList(), -1, "p"), std::nullopt);
}

TEST_F(PortListTest, AnEmptyTextStepsUpToAPortWithoutAName) {
    store({"One", "Two", "", "Four"});
    EXPECT_EQ(searchnext(list, ""), 0U);
    EXPECT_EQ(searchnext(list, ""), 1U);
    EXPECT_EQ(searchnext(list, ""), std::nullopt);
    EXPECT_EQ(searchnext(list, "o"), 3U) << "neither selected nor passed";
}

}  // namespace
}  // namespace tarvane
