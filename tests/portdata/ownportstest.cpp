// What the user did himself to ports: kept, found again, and never at the cost of what stood there.
#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "portdata/aboutwords.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

HarmonicRecord portnamed(const std::string& name, float level = 3) {
    HarmonicRecord port;
    port.PortName = name;
    port.TimeZoneLetter = "L";
    port.Z0 = level;
    port.M2Hm = 1;
    return port;
}

OwnMade made(OwnHow how, const std::string& date = "2026-03-03") {
    OwnMade own;
    own.how = how;
    own.date = date;
    return own;
}

struct OwnPortsTest : testing::Test {
    OwnPortsTest() {
        folders.programfolder = folder / "program";
        folders.appdatafolder = folder / "data";
        std::filesystem::create_directories(folders.programfolder);
        std::filesystem::create_directories(folders.configfolder());
        area = folders.programfolder + "/UK.hc";
        putports({portnamed("Alder"), portnamed("Birch"), portnamed("Cedar"), portnamed("Alder", 4)});
    }

    void putports(const std::vector<HarmonicRecord>& ports) const {
        std::filesystem::remove(area);
        for (std::size_t i = 0; i < ports.size(); ++i)
            writeport(area, static_cast<std::int16_t>(i + 1), ports[i]);
    }

    PortKnown known(int number) const {
        return whatisknown(knownarea(folders, area), readport(area, static_cast<std::int16_t>(number)), number);
    }
    TableCheck check(int number) const {
        const HarmonicRecord port = readport(area, static_cast<std::int16_t>(number));
        return checkof(areanotes(folders, area), area, port, number);
    }
    std::string path() const { return ownportspath(folders); }

    fakes::TemporaryFolder folder;
    ProgramFolders folders;
    std::string area;
};

TEST_F(OwnPortsTest, ANoteHoldsAsLongAsItsRecordDoes) {
    const HarmonicRecord before = readport(area, 2);
    HarmonicRecord fitted = before;
    fitted.Z0 = 3.25F;
    OwnMade own = made(OwnHow::fitted);
    own.from = "Alder and \"Cedar\"";
    own.fit = FitFigures{24, 1, 0.21, 0.04, -0.09, 12.3, "2026-03-01"};
    EXPECT_TRUE(noteport(folders, area, 2, before, fitted, own));
    EXPECT_FALSE(known(2).own) << "the file holds another record yet";
    writeport(area, 2, fitted);
    ASSERT_TRUE(known(2).own);
    const OwnMade kept = *known(2).own;
    EXPECT_EQ(kept.from, own.from);
    ASSERT_TRUE(kept.fit);
    EXPECT_EQ(std::tuple(kept.fit->readings, kept.fit->leftout, kept.fit->before, kept.fit->after, kept.fit->greatest,
                         kept.fit->hours, kept.fit->day),
              std::tuple(24, 1, 0.21, 0.04, -0.09, 12.3, "2026-03-01"));
    EXPECT_FALSE(known(1).own);

    // A position is no other tide: the fit's figures stay, the name goes along with the check.
    keepcheck(folders, area, fitted, 2, {TableClock::ut, {{"2026-07-14", "06:12", "5,4", "hw"}}});
    HarmonicRecord placed = fitted;
    placed.PortLat = 50;
    placed.PortName = "Bay";
    writeport(area, 2, placed);
    EXPECT_TRUE(noteport(folders, area, 2, fitted, placed, made(OwnHow::corrected, "2026-04-04")));
    EXPECT_EQ(known(2).own->how, OwnHow::fitted);
    EXPECT_EQ(check(2).waters.at(0).height, "5,4");
    HarmonicRecord raised = placed;
    raised.Z0 = 5;
    writeport(area, 2, raised);
    EXPECT_TRUE(noteport(folders, area, 2, placed, raised, made(OwnHow::corrected, "2026-04-04")));
    EXPECT_EQ(known(2).own->how, OwnHow::corrected);
    EXPECT_FALSE(known(2).own->fit);
    const std::string text = wholetext(path());
    EXPECT_TRUE(noteport(folders, area, 2, raised, raised, made(OwnHow::entered)));
    EXPECT_EQ(wholetext(path()), text) << "nothing was changed";
}

TEST_F(OwnPortsTest, ConstantsThatDontShipAreTheUsersWithoutANoteToo) {
    std::filesystem::create_directory(folders.programfolder + "/Supplied");
    std::filesystem::copy(area, folders.programfolder + "/Supplied/UK.hc");
    const HarmonicRecord birch = readport(area, 2);
    HarmonicRecord changed = birch;
    const auto own = [&] {
        writeport(area, 2, changed);
        return known(2).own.has_value();
    };
    EXPECT_FALSE(own());
    changed.PortLat = 50;
    EXPECT_FALSE(own()) << "its tides are as they were";
    changed.Z0 += 1;
    EXPECT_TRUE(own());
    changed = birch;
    changed.TimeZoneLetter = "F";
    EXPECT_TRUE(own());
    changed = birch;
    EXPECT_FALSE(own()) << "as it was once more";
    EXPECT_TRUE(noteport(folders, area, 2, portnamed("Birch", 3), birch, made(OwnHow::corrected)));
    EXPECT_FALSE(own()) << "what ships is no one's own, whatever is noted";
    putports({portnamed("Birch"), portnamed("Cedar")});
    EXPECT_FALSE(known(1).own || known(2).own) << "others are gone";
}

TEST_F(OwnPortsTest, NotesFollowTheirPortsThroughDeletionsAndInsertions) {
    const auto checked = [&](int number, const char* height) {
        keepcheck(folders, area, readport(area, static_cast<std::int16_t>(number)), number,
                  {TableClock::zone, {{"", "", height, ""}}});
    };
    checked(1, "1");
    checked(3, "3");
    checked(4, "4");
    EXPECT_EQ(check(1).waters.at(0).height, "1");
    EXPECT_EQ(check(4).waters.at(0).height, "4") << "of two ports of a name";
    putports({portnamed("Alder"), portnamed("Cedar"), portnamed("Alder", 4)});
    EXPECT_EQ(check(2).waters.at(0).height, "3") << "the only one of its name, wherever it stands";
    EXPECT_TRUE(notedeleted(folders, area, 2));
    EXPECT_EQ(check(3).waters.at(0).height, "4");
    EXPECT_EQ(check(2).waters.at(0).height, "3");
    putports({portnamed("Alder"), portnamed("Alder"), portnamed("Cedar"), portnamed("Alder", 4)});
    EXPECT_TRUE(noteinserted(folders, area, 1));
    EXPECT_TRUE(check(2).waters.empty()) << "the inserted one was never checked";
    EXPECT_EQ(check(4).waters.at(0).height, "4");
    EXPECT_TRUE(notedeleted(folders, area, 4));
    putports({portnamed("Alder"), portnamed("Alder"), portnamed("Cedar"), portnamed("Alder", 5)});
    EXPECT_TRUE(check(4).waters.empty()) << "a new port of that name";
    keepcheck(folders, area, readport(area, 3), 3, {});
    keepcheck(folders, area, readport(area, 1), 1, {});
    EXPECT_TRUE(areanotes(folders, area).empty());
}

TEST_F(OwnPortsTest, WhatIsBrokenIsKeptBesideBeforeItIsWrittenOver) {
    const HarmonicRecord port = readport(area, 1);
    const TableCheck check{TableClock::port, {{"2026-07-14", "06:12", "5.4", ""}}};
    int kept = 0;
    for (const char* broken :
         {"{\"areas\": {\"UK.hc\": [{\"name\": \"Birch\"", "[]", "{\"areas\": 3}", "{\"areas\": {\"UK.hc\": {}}}",
          "{\"areas\": {\"UK.hc\": [{\"name\": 7}]}}", "{\"areas\": {\"UK.hc\": [{\"own\": {\"how\": \"dreamt\"}}]}}",
          "{\"areas\": {\"UK.hc\": [{\"check\": {\"waters\": [{\"time\": 5}]}}]}}",
          "{\"areas\": {\"UK.hc\": [{\"number\": 1e300}]}}", "{\"areas\": {}, \"colours\": 1}",
          "{\"areas\": {\"UK.hc\": [{\"check\": {\"waters\": [{\"zone\": \"\"}]}}]}}",
          "{\"areas\": {\"UK.hc\": [{\"own\": {\"fit\": {\"days\": 3}}}]}}"}) {
        putfile(path(), broken);
        EXPECT_FALSE(readownports(path()).state.whole) << broken;
        EXPECT_TRUE(keepcheck(folders, area, port, 1, check)) << broken;
        const std::string beside = path() + ".broken" + (++kept == 1 ? "" : std::to_string(kept));
        EXPECT_EQ(wholetext(beside), broken);
        EXPECT_TRUE(readownports(path()).state.whole);
        EXPECT_EQ(checkof(areanotes(folders, area), area, port, 1), check) << broken;
    }
    // Of the last one the user is told, once, and that takes nothing from the notes.
    const std::string told = tellownports(folders);
    EXPECT_EQ(told.find("Ports.json wasn't understood whole."), 0U) << told;
    EXPECT_TRUE(told.ends_with(path() + ".broken" + std::to_string(kept) + ".")) << told;
    EXPECT_EQ(tellownports(folders), "");
    EXPECT_EQ(checkof(areanotes(folders, area), area, port, 1), check);
    EXPECT_TRUE(keepcheck(folders, area, port, 1, {}));
    EXPECT_FALSE(canopen(path() + ".broken" + std::to_string(kept + 1))) << "a whole file is replaced";
    const std::string before = wholetext(path());
    EXPECT_FALSE(onadiskof(1, [&] { return keepcheck(folders, area, port, 1, check); }));
    EXPECT_EQ(wholetext(path()), before);
}

TEST_F(OwnPortsTest, AnAreaOfTheUsersOwnIsHeldAgainstTheOneThatShips) {
    folders.ownfolder = folder / "own";
    putfile(folders.programfolder + "/uk-about.csv",
            "number,name,country,timezone,datum,record_from,record_to,licence,source,time_error_median_min,"
            "time_error_p90_min,height_error_median_m,height_error_p90_m,mean_range_m\n"
            "1,Alder,,Europe/London,LAT,,,,A gauge,6,14,0.07,0.17,3\n");
    EXPECT_FALSE(known(1).own) << "what ships is nobody's own";
    area = datafiletowrite(folders, "UK.hc").path;
    ASSERT_EQ(area, folders.ownfolder + "/UK.hc");
    EXPECT_FALSE(known(1).own) << "copied as it is";
    EXPECT_EQ(trustclause(known(1)), "nine waters in ten within 14 minutes and 0.17 m of a full prediction");
    HarmonicRecord changed = readport(area, 1);
    changed.M2Hm = 2;
    writeport(area, 1, changed);
    const PortKnown alder = known(1);
    ASSERT_TRUE(alder.own);
    EXPECT_EQ(alder.iana(), "Europe/London");
    EXPECT_EQ(alder.datum(), "");
    EXPECT_FALSE(alder.trusted());
    EXPECT_EQ(trustclause(alder), "entered by you");
    EXPECT_TRUE(trustwords(alder).starts_with("Entered by you, on a day that isn't known: the constants aren't"));
    EXPECT_TRUE(known(4).own == std::nullopt) << "as it ships, whatever number it has";
    noteport(folders, area, 1, portnamed("Alder"), changed, made(OwnHow::corrected));
    EXPECT_EQ(trustclause(known(1)), "entered by you on 3 March 2026");
    writeport(area, 1, portnamed("Alder"));
    EXPECT_FALSE(known(1).own) << "and back again";
}

TEST(OwnWords, TellHowAPortWasMade) {
    OwnMade own = made(OwnHow::entered);
    EXPECT_EQ(ownwords(own), "Entered by you on 3 March 2026");
    own.how = OwnHow::copied;
    own.from = "UK";
    EXPECT_EQ(ownwords(own), "Entered by you on 3 March 2026, copied from UK");
    own = made(OwnHow::fitted);
    own.fit = FitFigures{24, 1, 0.21, 0.04, -0.09, 12.3, "2026-03-01"};
    EXPECT_EQ(ownwords(own),
              "Entered by you on 3 March 2026, fitted to 24 readings over 12.3 hours of 1 March 2026, which lie 0.04 m "
              "(root mean square) and at most 0.09 m from its curve, 0.21 m before the fit; 1 reading left out as "
              "wild");
    for (const char* odd : {"", "2026-13-01", "yesterday", "2026-3-3"})
        EXPECT_EQ(daywords(odd), odd);
}

}  // namespace
}  // namespace tarvane
