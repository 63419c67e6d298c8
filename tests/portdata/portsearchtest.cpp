#include "portdata/portsearch.h"

#include <gtest/gtest.h>

#include "portdata/bytes.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

TEST(PortSearch, NamesFold) {
    using Row = std::pair<const char*, std::u32string_view>;
    for (const auto& [name, folded] :
         {Row{"  ÎLE de  Bréhat ", U"ile de brehat"}, Row{"Fe\u0301camp", U"fecamp"},
          Row{"Saint-Quay–Portrieux", U"saint quay portrieux"}, Row{"St. Mary’s", U"saint marys"},
          Row{"Ste Anne/STE.\u00A0Marie", U"saint anne saint marie"}, Row{"St.Malo", U"saint malo"},
          Row{"Sainte-Anne", U"saint anne"}, Row{"Stornoway Saints", U"stornoway saints"},
          Row{"Port Ellen (Islay)", U"port ellen islay"},
          Row{"Œuf Straße Þórshöfn Ærø Žďár", U"oeuf strasse thorshofn aero zďar"}, Row{"- . '", U""}, Row{"", U""}})
        EXPECT_TRUE(foldname(name) == folded) << name;
}

TEST(PortSearch, ShippedPortsAsAPersonTypesThem) {
    std::vector<std::string> names;
    for (const HarmonicRecord& port : readportscsv(filetext(TARVANE_DATA "/uk-ports.csv")).ports)
        names.push_back(trimmedname(port));
    ASSERT_EQ(names.size(), 84U);
    using Row = std::pair<const char*, std::vector<const char*>>;
    for (const auto& [name, texts] :
         {Row{"Saint-Malo", {"st malo", "saint malo", "st-malo", "ST. MALO", "malo"}},
          Row{"Portsmouth", {"Portsmuth", "Protsmouth", "portsmu"}}, Row{"St Mary's", {"saint marys"}},
          Row{"St Helier (Jersey)", {"sainte helier", "jersey"}}, Row{"Le Havre", {"lehavre"}},
          Row{"Kinlochbervie", {"kinloch bervie"}}, Row{"Boulogne-sur-Mer", {"boulogne sur mer"}},
          Row{"Liverpool (Gladstone Dock)", {"liverpol", "gladstnoe"}}, Row{"Dielette", {"diélette"}},
          Row{"Wick", {"wick"}}, Row{"Stornoway", {"sto"}}, Row{"Dover", {"dvoer"}}})
        for (const char* typed : texts)
            EXPECT_EQ(names[findports(names, typed).at(0).place], name) << typed;
    for (const char* typed : {"dvr", "xyz", "Reykjavik", "port of spain"})
        EXPECT_TRUE(findports(names, typed).empty()) << typed;
    for (const auto& name : names)
        EXPECT_EQ(findports(names, name).at(0).rank, PortHit::whole) << name;
    EXPECT_EQ(findports(names, " - ").size(), names.size());
}

TEST(PortSearch, BestFirst) {
    const std::vector<std::string> names{
        "Airport", "Le Port",     "Porth", "Port",       "Porto Santo",      "PORT", "St Thomas", "Brest Harbour",
        "Brests",  "Brest Roads", "",      "Saint-Port", "Weston Saint-Anne"};
    using Row = std::pair<const char*, std::vector<std::size_t>>;
    for (const auto& [typed, places] :
         {Row{"port", {3, 5, 2, 4, 1, 11, 0}}, Row{"st", {6, 11, 12, 7, 8, 9}}, Row{"sain", {6, 11, 12}},
          Row{"bresst", {7, 8, 9}}, Row{"prot", {3, 5, 1, 11, 2, 4}}, Row{"prt", {}}}) {
        std::vector<std::size_t> found;
        for (const PortHit& hit : findports(names, typed))
            found.push_back(hit.place);
        EXPECT_EQ(found, places) << typed;
    }
    EXPECT_EQ(findports(names, "prot")[0].distance, 1);
    const std::vector<std::string> harbour{"Southampton"};
    for (const auto& [typed, found] :
         {std::pair{"sxuth", 1U}, std::pair{"sxxth", 0U}, std::pair{"sxxthamp", 1U}, std::pair{"sxxxhamp", 0U},
          std::pair{"soxthaxxton", 1U}, std::pair{"soxthxxxton", 0U}})
        EXPECT_EQ(findports(harbour, typed).size(), found) << typed;
    EXPECT_EQ(nearestports(names, "Saint-Thmoas", 1), std::vector<std::size_t>{6});
    EXPECT_EQ(nearestports(names, "q", 3).size(), 3U);
}

}  // namespace
}  // namespace tarvane
