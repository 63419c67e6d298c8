// Ports of all areas found by what a person types.
#include <gtest/gtest.h>

#include "atlas/namedplaces.h"
#include "atlas/portfinder.h"
#include "atlas/shippedworld.h"

namespace tarvane {
namespace {

struct FinderOfAll : testing::Test {
    static void SetUpTestSuite() { world = shippedworld(); }

    static std::size_t at(const std::string& area, const std::string& name) {
        for (std::size_t place = 0; place < world.ports.size(); ++place)
            if (world.ports[place].name == name && world.areas[world.ports[place].area].name == area) return place;
        throw std::runtime_error(name);
    }
    static std::string told(std::size_t place) {
        return world.ports[place].name + ", " + world.areas[world.ports[place].area].name;
    }
    static std::vector<std::string> first(const Found& found, std::size_t most) {
        std::vector<std::string> names;
        for (const FoundPort& each : found.ports)
            if (names.size() < most) names.push_back(told(each.place));
        return names;
    }
    using Names = std::vector<std::string>;

    static inline World world;
};

TEST_F(FinderOfAll, PortsAreFoundAsPersonsTypeThem) {
    ASSERT_EQ(world.ports.size(), 2427U);
    const Finder finder(world, at("uk", "Southampton"));
    const struct {
        const char* typed;
        Names names;  ///< these come first
        Fit fit;
    } rows[] = {
        {"nagasaki", {"Nagasaki, japan"}, Fit::whole},
        {"halifax", {"Halifax (NS), canada atlantic"}, Fit::begins},
        {"sydney", {"Sydney Port Jackson (NSW), australia", "North Sydney (NS), canada atlantic"}, Fit::begins},
        {"st malo", {"Saint-Malo, uk", "Saint Malo, france"}, Fit::whole},
        {"SAINT MALO france", {"Saint-Malo, uk", "Saint Malo, france"}, Fit::word},
        {"malo, st", {"Saint-Malo, uk", "Saint Malo, france"}, Fit::word},
        {"brest", {"Brest, uk", "Brest, france"}, Fit::whole},
        {"diélette", {"Dielette, uk"}, Fit::whole},
        {"newport us",
         {"Newport (RI), us new england and new york", "Newport River (NC), us south east",
          "Newport Bay Entrance (CA), us west coast"},
         Fit::word},
        {"usa newport california", {}, Fit::none},
        {"west coast newp", {"Newport Bay Entrance (CA), us west coast"}, Fit::word},
        {"dover uk", {"Dover, uk"}, Fit::word},
        {"great britain dover", {"Dover, uk"}, Fit::word},
        {"dover", {"Dover, uk", "Dover (NH), us new england and new york"}, Fit::whole},
        {"sydney australia", {"Sydney Port Jackson (NSW), australia"}, Fit::word},
        {"jackson sydney", {"Sydney Port Jackson (NSW), australia"}, Fit::word},
        {"auckland nz", {"Auckland (Bayswater), new zealand"}, Fit::word},
        {"usvi", {}, Fit::words},
        {"nagasky", {"Nagasaki, japan"}, Fit::nearmiss},
        {"sydey", {"Sydney Port Jackson (NSW), australia", "North Sydney (NS), canada atlantic"}, Fit::nearmiss},
        {"sydny australia", {"Sydney Port Jackson (NSW), australia"}, Fit::nearmiss},
        {"halifx canada", {"Halifax (NS), canada atlantic"}, Fit::nearmiss},
        {"sydney austrelia", {"Sydney Port Jackson (NSW), australia"}, Fit::nearmiss},
        {"irland", {"Wexford, uk", "Dunmore East, uk"}, Fit::nearmiss},
        {"austalia", {}, Fit::nearmiss},
        {"norwey", {}, Fit::nearmiss},
        {"xyzzy", {}, Fit::none},
        {"xyzzy uk", {}, Fit::none},
    };
    for (const auto& row : rows) {
        const Found found = finder.find(row.typed);
        EXPECT_EQ(first(found, row.names.size()), row.names) << row.typed;
        ASSERT_EQ(found.ports.empty(), row.fit == Fit::none) << row.typed;
        if (row.fit != Fit::none) {
            EXPECT_EQ(found.ports.front().fit, row.fit) << row.typed;
        }
    }
}

TEST_F(FinderOfAll, AMissedCountryComesBeforeFragmentsOfNames) {
    const Finder finder(world, at("uk", "Southampton"));
    for (const auto& [typed, country] : {std::pair("irland", "Ireland"),
                                         {"austalia", "Australia"},
                                         {"norwey", "Norway"},
                                         {"frnace", "France"},
                                         {"germny", "Germany"},
                                         {"japn", "Japan"},
                                         {"chilie", "Chile"},
                                         {"cannada", "Canada"},
                                         {"portugel", "Portugal"}}) {
        const Found found = finder.find(typed);
        std::size_t all = 0;
        for (const WorldPort& port : world.ports)
            all += port.about && port.about->country == country;
        ASSERT_GE(found.ports.size(), all) << typed;
        for (std::size_t i = 0; i < all; ++i) {
            const WorldPort& port = world.ports[found.ports[i].place];
            ASSERT_EQ(port.about->country, country) << typed << ": " << port.name;
        }
    }
}

TEST_F(FinderOfAll, ATownWithoutAPortListsWhatIsAboutIt) {
    const Finder finder(world, at("uk", "Southampton"));
    const Found cork = finder.find("Cork");
    EXPECT_EQ(cork.told, "No port is called so; 2427 ports, the nearest to Cork first");
    EXPECT_EQ(first(cork, 1), Names{"Ballycotton, uk"});
    EXPECT_EQ(first(finder.find("near cork"), 1), Names{"Ballycotton, uk"});
    const Found london = finder.find("london");
    EXPECT_TRUE(told(london.ports.front().place).ends_with(", uk")) << told(london.ports.front().place);
    EXPECT_GT(london.ports.size(), 5U) << "then those that have it in their names";
    EXPECT_EQ(first(finder.find("near london"), 1), first(london, 1));
    for (const char* country : {"deutschland", "espa\u00F1a", "scotland", "nippon"})
        EXPECT_GE(finder.find(country).ports.size(), 10U) << country;
    // One that has become a port needs no entry; one that lies elsewhere has a wrong position.
    for (const NamedPlace& each : namedplaces()) {
        const Found found = finder.find(each.name);
        ASSERT_FALSE(found.ports.empty()) << each.name;
        const WorldPort& port = world.ports[found.ports.front().place];
        EXPECT_EQ(found.ports.front().fit, Fit::none) << each.name << " is a port: " << port.name;
        EXPECT_LT(milesbetween(each.at, {port.latitude, port.longitude}), 100)
            << each.name << " is far from " << port.name;
    }
}

TEST_F(FinderOfAll, WhatIsListedIsTold) {
    const Finder finder(world, at("uk", "Southampton"));
    const std::string hint = ". Try less of the name, a country, or \u201Cnear 50.1 N 1.4 W\u201D";
    for (const auto& [typed, text] : {std::pair("sydney", "2 ports"),
                                      {"nagasaki", "1 port"},
                                      {"dover uk", "1 port"},
                                      {"nagasky", "No port is called so; 1 has a name like it"},
                                      {"sydey", "No port is called so; 2 have names like it"}})
        EXPECT_EQ(finder.find(typed).told, text) << typed;
    EXPECT_EQ(finder.find("xyzzy").told, "No port is called so" + hint);
    const auto all = finder.find("Japan").ports.size();
    EXPECT_EQ(finder.find("Japan").told, std::to_string(all) + " ports");
    EXPECT_GE(all, 154U);
}

TEST_F(FinderOfAll, FavouritesAndRecentOnesComeFirst) {
    Finder finder(world, at("uk", "Southampton"));
    EXPECT_EQ(first(finder.find(" "), 2), (Names{"Southampton, uk", "Portsmouth, uk"}));
    EXPECT_EQ(finder.find("").told, "2427 ports: the nearest to Southampton");
    finder.setkeeps({{{"us west coast.hc", "Newport Bay Entrance (CA)"}, {"none.hc", "Gone"}},
                     {{"uk.hc", "Southampton"}, {"japan.hc", "Nagasaki"}, {"us south east.hc", "Newport River (NC)"}}});
    EXPECT_EQ(first(finder.find(""), 4), (Names{"Newport Bay Entrance (CA), us west coast", "Nagasaki, japan",
                                                "Newport River (NC), us south east", "Southampton, uk"}));
    EXPECT_EQ(finder.find("").told, "2427 ports: your favourites, recent ones, then the nearest to Southampton");
    EXPECT_EQ(finder.find("").ports.size(), 2427U);
    EXPECT_EQ(first(finder.find("newport"), 4),
              (Names{"Newport, uk", "Newport Bay Entrance (CA), us west coast", "Newport River (NC), us south east",
                     "Newport (RI), us new england and new york"}))
        << "a better fit comes before them";
    EXPECT_TRUE(finder.isfavourite(at("us west coast", "Newport Bay Entrance (CA)")));
    EXPECT_FALSE(finder.isfavourite(at("japan", "Nagasaki")));
    for (const auto& [one, other] : {std::pair("uk", "france"), {"france", "uk"}})
        EXPECT_EQ(first(Finder(world, at(one, "Brest")).find("near 50.1 N 1.4 W"), 2),
                  (Names{std::string("Cherbourg, ") + one, std::string("Cherbourg, ") + other}));
    const Finder nowhere(world, std::nullopt);
    EXPECT_EQ(nowhere.find("").told, "2427 ports");
    EXPECT_FALSE(nowhere.find("dover").from);
}

TEST_F(FinderOfAll, NearAPlaceOrAPort) {
    const Finder finder(world, at("uk", "Southampton"));
    for (const char* typed : {"near 50.1 N 1.4 W", "near 50.1N 1.4W", "NEAR 50,1 N 1,4 W", " near  50 06 N 1 24 W"}) {
        const Found found = finder.find(typed);
        ASSERT_EQ(found.ports.size(), world.ports.size()) << typed;
        EXPECT_EQ(found.told, "2427 ports, the nearest to 50° 06.0' N, 1° 24.0' W first") << typed;
        ASSERT_TRUE(found.from);
        double before = 0;
        for (const FoundPort& each : found.ports) {
            const WorldPort& port = world.ports[each.place];
            const double miles = milesbetween({50.1, -1.4}, {port.latitude, port.longitude});
            ASSERT_GE(miles, before) << port.name;
            before = miles;
        }
    }
    EXPECT_EQ(first(finder.find("near -33.85, 151.2"), 1), Names{"Fort Denison (NSW), australia"});
    const Found port = finder.find("near nagasaki");
    EXPECT_EQ(first(port, 1), Names{"Nagasaki, japan"});
    EXPECT_EQ(port.told, "2427 ports, the nearest to Nagasaki first");
    for (const char* typed : {"near", "near ", "near 50.1", "near 50.1 N 1.4", "near - .", "near 95 N 3 W"}) {
        const Found found = finder.find(typed);
        EXPECT_TRUE(found.ports.empty()) << typed;
        EXPECT_TRUE(found.told.starts_with("Near what? A place such as \u201Cnear 50.1 N 1.4 W\u201D")) << found.told;
    }
    EXPECT_TRUE(finder.find("near xyzzy").told.starts_with("No port is called so; ")) << finder.find("near xyzzy").told;
    EXPECT_FALSE(finder.find("nea").ports.empty()) << "not yet";
    EXPECT_FALSE(finder.find("river near").ports.empty()) << "a name has it too";
}

}  // namespace
}  // namespace tarvane
