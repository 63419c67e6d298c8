// Every row of the tables that ship: the constants, the names, the clocks and the order of the ports.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <numbers>
#include <set>

#include "files/wholefiles.h"
#include "platform/systemzones/systemzones.h"
#include "portdata/aboutports.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using namespace std::chrono;

constexpr std::array areanames{"UK",
                               "Alaska",
                               "Antarctica",
                               "Arctic and Greenland",
                               "Atlantic Islands and West Africa",
                               "Australia",
                               "Canada Atlantic",
                               "Canada Pacific",
                               "Central America Pacific",
                               "China Korea and Taiwan",
                               "France",
                               "Gulf and Caribbean",
                               "Iberia",
                               "Indian Ocean",
                               "Japan",
                               "Mediterranean",
                               "New Zealand",
                               "North Sea",
                               "Norway and Iceland",
                               "Pacific Islands",
                               "South America Atlantic",
                               "South America Pacific",
                               "South East Asia",
                               "US Delaware and Chesapeake",
                               "US New England and New York",
                               "US South East",
                               "US West Coast"};

struct ShippedArea {
    std::string name;
    std::vector<HarmonicRecord> ports;
    std::vector<PortAbout> about;
};

std::string tablepath(const std::string& name) {
    return std::string(TARVANE_DATA) + "/" + name;
}

const std::vector<ShippedArea>& shippedareas() {
    static const std::vector<ShippedArea> areas = [] {
        std::vector<ShippedArea> read;
        for (const std::string name : areanames) {
            std::string table = aboutname(name + ".hc");
            const AboutTable about = readabout(wholetext(tablepath(table)));
            EXPECT_EQ(about.fault, "") << table;
            table.replace(table.rfind("about"), 5, "ports");
            const PortsTable ports = readportscsv(wholetext(tablepath(table)));
            EXPECT_FALSE(ports.fault) << table << ":" << ports.fault->line << ": " << ports.fault->reason;
            read.push_back({name, ports.ports, about.ports});
        }
        return read;
    }();
    return areas;
}

template <typename Act>
void eachport(Act act) {
    for (const ShippedArea& area : shippedareas())
        for (std::size_t i = 0; i < std::min(area.ports.size(), area.about.size()); ++i)
            act(area, i, area.name + " " + numbertext(static_cast<int>(i + 1)) + " " + area.about[i].name);
}

TEST(ShippedAreas, EveryTableIsOneOfAnAreaAndItsPorts) {
    std::set<std::string> wanted, found;
    std::size_t ports = 0;
    for (const ShippedArea& area : shippedareas()) {
        const std::string about = aboutname(area.name + ".hc");
        wanted.insert(about);
        wanted.insert(about.substr(0, about.rfind("about")) + "ports.csv");
        ports += area.ports.size();
        ASSERT_EQ(area.ports.size(), area.about.size()) << area.name;
        std::set<std::string> names;
        for (std::size_t i = 0; i < area.ports.size(); ++i) {
            EXPECT_EQ(area.about[i].number, static_cast<int>(i + 1)) << area.name;
            EXPECT_EQ(area.about[i].name, trimmedname(area.ports[i])) << area.name;
            EXPECT_TRUE(names.insert(area.about[i].name).second)
                << area.name << " has it twice: " << area.about[i].name;
        }
    }
    for (const auto& entry : std::filesystem::directory_iterator(TARVANE_DATA))
        if (entry.path().extension() == ".csv") found.insert(entry.path().filename().string());
    EXPECT_EQ(wanted, found);
    EXPECT_EQ(ports, 2427u);
    EXPECT_EQ(shippedareas()[0].about.at(76).name, "Cherbourg") << "where the program starts";
}

TEST(ShippedAreas, ConstantsAreThoseOfATide) {
    struct Bound {
        const char* what;
        float HarmonicRecord::*member;
        float least, most;
    };
    constexpr std::array bounds{
        Bound{"Z0", &HarmonicRecord::Z0, 0.05F, 9},
        Bound{"M2 g", &HarmonicRecord::M2g, 0, 360},
        Bound{"M2 Hm", &HarmonicRecord::M2Hm, 0.06F, 5.5F},
        Bound{"S2 g", &HarmonicRecord::S2g, 0, 360},
        Bound{"S2 Hm", &HarmonicRecord::S2Hm, 0, 2},
        Bound{"K1 g", &HarmonicRecord::K1g, 0, 360},
        Bound{"K1 Hm", &HarmonicRecord::K1Hm, 0, 1},
        Bound{"O1 g", &HarmonicRecord::O1g, 0, 360},
        Bound{"O1 Hm", &HarmonicRecord::O1Hm, 0, 1},
        Bound{"f4", &HarmonicRecord::SF4, 0, 360},
        Bound{"F4", &HarmonicRecord::LF4, 0, 3},
        Bound{"f6", &HarmonicRecord::SF6, 0, 360},
        Bound{"F6", &HarmonicRecord::LF6, 0, 10},
    };
    eachport([&](const ShippedArea& area, std::size_t place, const std::string& port) {
        const HarmonicRecord& record = area.ports[place];
        for (const Bound& bound : bounds) {
            const float value = record.*bound.member;
            EXPECT_TRUE(value >= bound.least && value <= bound.most) << port << ": " << bound.what << " " << value;
        }
        double year = 0;
        for (const float level : record.DeltaZ0) {
            EXPECT_LT(std::abs(level), 0.9F) << port;
            year += level;
        }
        EXPECT_LT(std::abs(year / 12), 0.02) << port << ": the months' levels are no change about the mean";
        EXPECT_TRUE(record.PortLat != 0 || record.PortLong != 0) << port;
    });
}

TEST(ShippedAreas, AboutRowsHoldWhatTheirColumnsTell) {
    const std::set<std::string> datums{"LAT", "MLLW", "LLWLT", "MLWS", "NLLW", "TLT"};
    const auto spanends = [](const std::string& from, const std::string& to) {
        return from.empty() ? to.empty() : from.size() == 10 && to.size() == 10 && from < to;
    };
    eachport([&](const ShippedArea& area, std::size_t place, const std::string& port) {
        const PortAbout& about = area.about[place];
        EXPECT_TRUE(datums.contains(about.datum)) << port << ": " << about.datum;
        EXPECT_TRUE(about.licence == "CC BY 4.0" || about.licence == "public domain") << port;
        EXPECT_FALSE(about.country.empty() || about.source.empty()) << port;
        EXPECT_TRUE(spanends(about.recordfrom, about.recordto)) << port << ": " << about.recordfrom;
        EXPECT_TRUE(about.timemedian > 0 && about.timemedian <= about.timeninety && about.timeninety < 360) << port;
        EXPECT_TRUE(about.heightmedian > 0 && about.heightmedian <= about.heightninety && about.heightninety < 3)
            << port;
        EXPECT_TRUE(about.meanrange > 0.2 && about.meanrange < 11) << port;
    });
}

/// The hours that a zone's clocks are ahead of universal time without summer time. Taken from what the clocks show, the
/// least of the year, for the zone data may call the winter's time of a place the one that is changed.
std::optional<double> standardahead(const Zones& zones, const std::string& zone) {
    std::optional<double> least;
    for (int month = 1; month <= 12; ++month) {
        const auto offset = zones.offsetat(zone, sys_seconds(sys_days(year(2026) / month / 15)));
        if (!offset) return std::nullopt;
        const double ahead = duration<double, std::ratio<3600>>(offset->ahead).count();
        least = std::min(least.value_or(ahead), ahead);
    }
    return least;
}

TEST(ShippedAreas, ZoneLettersKeepTheStandardTimeOfThePlacesClocks) {
    const SystemZones zones;
    ASSERT_EQ(standardahead(zones, "Europe/Dublin"), 0.0);
    // The names of the source as they are: these say nothing of the part of an hour that their clocks are off.
    std::set<std::string> silent{"Pacific Islands 42 Nuku Hiva"};
    eachport([&](const ShippedArea& area, std::size_t place, const std::string& port) {
        const HarmonicRecord& record = area.ports[place];
        const auto standard = standardahead(zones, area.about[place].timezone);
        ASSERT_TRUE(standard) << port << ": no zone " << area.about[place].timezone;
        const int kept = -zonehoursof(record);
        if (*standard == std::floor(*standard)) {
            EXPECT_EQ(kept, *standard) << port;
            return;
        }
        EXPECT_LE(std::abs(kept - *standard), 0.5) << port;
        const std::string said = std::string("UT") + (kept < 0 ? "" : "+") + numbertext(kept) + ")";
        const bool says = area.about[place].name.ends_with(said);
        EXPECT_NE(says, silent.erase(port) == 1) << port << " doesn't say " << said;
    });
    EXPECT_TRUE(silent.empty()) << *silent.begin();
}

/// Nautical miles on the sphere.
double milesbetween(const HarmonicRecord& a, const HarmonicRecord& b) {
    constexpr double radians = std::numbers::pi / 180, radius = 3440;
    const double lata = a.PortLat * radians, latb = b.PortLat * radians;
    const double halflat = std::sin((lata - latb) / 2), halflong = std::sin((a.PortLong - b.PortLong) * radians / 2);
    return 2 * radius * std::asin(std::sqrt(halflat * halflat + std::cos(lata) * std::cos(latb) * halflong * halflong));
}

TEST(ShippedAreas, NeighbouringRowsAreNeighbours) {
    constexpr double reach = 600;  // nautical miles, to the nearer of the rows before and behind
    // Where a row is further from both its neighbours: islands, the ice, and where the line along a coast begins anew.
    std::map<std::string, double> alone{
        {"Alaska 1 Massacre Bay (AK)", 1100},
        {"Antarctica 1 Dumont D'Urville (Antarctica)", 710},
        {"Antarctica 2 Casey", 710},
        {"Antarctica 3 Davis", 760},
        {"Antarctica 4 Syowa Antarctica", 830},
        {"Atlantic Islands and West Africa 1 Ferry Reach (Bermuda)", 1680},
        {"Atlantic Islands and West Africa 19 Peter and Paul Rocks (Brazil)", 1000},
        {"Atlantic Islands and West Africa 33 Tristan Da Cunha", 1760},
        {"Australia 1 Macquarie Is", 840},
        {"Central America Pacific 31 Cocos Island (Costa Rica)", 1610},
        {"China Korea and Taiwan 1 Providenya (Russia)", 2700},
        {"Indian Ocean 39 Port Blair (India UT+6)", 820},
        {"Indian Ocean 40 Cocos (UT+7)", 1460},
        {"Indian Ocean 41 Ile Saint Paul", 720},
        {"Indian Ocean 42 Kerguelen", 720},
        {"Indian Ocean 43 Marion Island (South Africa)", 950},
        {"Japan 1 Minamitorishima", 660},
        {"New Zealand 1 Chatham (UT+13)", 730},
        {"Pacific Islands 32 Christmas (Kiribati)", 2030},
        {"Pacific Islands 33 King Edward Point", 790},
        {"Pacific Islands 44 Rikitea Warf", 840},
        {"Pacific Islands 56 Kanton (Kiribati)", 700},
        {"Pacific Islands 79 Midway (US)", 820},
        {"South America Pacific 24 Easter (Chile)", 1630},
    };
    eachport([&](const ShippedArea& area, std::size_t place, const std::string& port) {
        double nearest = 1e9;
        if (place > 0) nearest = milesbetween(area.ports[place], area.ports[place - 1]);
        if (place + 1 < area.ports.size())
            nearest = std::min(nearest, milesbetween(area.ports[place], area.ports[place + 1]));
        const auto told = alone.find(port);
        if (told == alone.end()) {
            EXPECT_LE(nearest, reach) << port;
            return;
        }
        EXPECT_TRUE(nearest > reach && nearest <= told->second) << port << ": " << nearest;
        alone.erase(told);
    });
    EXPECT_TRUE(alone.empty()) << alone.begin()->first;
}

}  // namespace
}  // namespace tarvane
