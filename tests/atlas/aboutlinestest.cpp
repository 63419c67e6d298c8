// What "About This Port" tells of a port that ships, of one of the user's own and of one that nothing is known of.
#include "atlas/aboutlines.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "dates/calendar.h"
#include "fakes/mainfixture.h"
#include "world/worldports.h"

namespace tarvane::tests {
namespace {

struct AboutLinesTest : LoadedMain {
    AboutLinesTest() {
        putfile(session.folders.programfolder + "/uk-about.csv",
                "number,name,country,timezone,datum,record_from,record_to,licence,source,time_error_median_min,"
                "time_error_p90_min,height_error_median_m,height_error_p90_m,mean_range_m\n"
                "2,Birch Sound,,Europe/London,LAT,2006-05-31,2025-05-31,CC BY 4.0,A gauge,6,14,0.07,0.17,3.63\n");
    }

    AboutSheet sheet(int number, Moment now = makedate(2026, 11, 23) + std::chrono::minutes(14 * 60 + 12)) {
        const Services services = scripted.services();
        return aboutsheet(aboutof(session.folders, area(), number), now, services.zones);
    }
    static std::string line(const AboutSheet& sheet, const std::string& caption) {
        const auto found = std::find_if(sheet.lines.begin(), sheet.lines.end(),
                                        [&](const AboutLine& each) { return each.caption == caption; });
        return found == sheet.lines.end() ? "" : found->text;
    }
};

TEST_F(AboutLinesTest, AShippedPortIsToldByItsRow) {
    const AboutSheet birch = sheet(2);
    EXPECT_EQ(birch.trust, Trust::close);
    EXPECT_TRUE(line(birch, "How good").starts_with("close: half of the high and low waters are within 6 minutes"));
    EXPECT_EQ(line(birch, "Gauge's record"), "31 May 2006 to 31 May 2025");
    EXPECT_EQ(line(birch, "Licence"), "CC BY 4.0, modified");
    EXPECT_TRUE(line(birch, "Mean range").ends_with("; 3.63 m in a full prediction for 2026"));
    EXPECT_EQ(line(birch, "Check"), "");
    ASSERT_EQ(birch.constants.size(), 7U);
    EXPECT_EQ(birch.constants[0].caption, "M2");
    EXPECT_TRUE(birch.constants[0].text.starts_with("g "));
    EXPECT_EQ(sheet(3).trust, Trust::unknown);
    EXPECT_TRUE(line(sheet(3), "How good").starts_with("Nothing is known"));
}

TEST_F(AboutLinesTest, TheClockSaysWhatItShowsAndWhenItIsChanged) {
    EXPECT_EQ(line(sheet(2), "Clock"),
              "The port's clock (Europe/London) shows 14:12 GMT (UT) on Monday 23 November 2026, not summer time; it "
              "goes over to BST (UT+1) on Sunday 28 March 2027");
    const std::string summer = line(sheet(2, makedate(2026, 7, 14)), "Clock");
    EXPECT_NE(summer.find("01:00 BST (UT+1) on Tuesday 14 July 2026, summer time"), std::string::npos) << summer;
}

TEST_F(AboutLinesTest, APortOfTheUsersOwnHasNoneOfThoseFigures) {
    const HarmonicRecord before = readport(area(), 2);
    HarmonicRecord changed = before;
    changed.M2Hm *= 1.1F;
    writeport(area(), 2, changed);
    OwnMade made;
    made.how = OwnHow::corrected;
    made.date = "2026-03-03";
    noteport(session.folders, area(), 2, before, changed, made);
    keepcheck(session.folders, area(), changed, 2, {TableClock::zone, {{"2026-07-14", "06:12", "3", ""}}});
    const AboutSheet birch = sheet(2);
    EXPECT_EQ(birch.trust, Trust::own);
    EXPECT_TRUE(line(birch, "How good").starts_with("Entered by you on 3 March 2026"));
    EXPECT_TRUE(line(birch, "Check").starts_with("Checked by you against 1 water of 2026: ")) << line(birch, "Check");
    EXPECT_TRUE(line(birch, "Clock").starts_with("The port's clock (Europe/London)"));
    const std::string text = sheettext(birch);
    for (const char* foreign : {"A gauge", "full prediction", "LAT"})
        EXPECT_EQ(text.find(foreign), std::string::npos) << foreign << "\n" << text;
}

TEST_F(AboutLinesTest, TheWorldsPortsAreReadAnewWhenOneBecomesTheUsersOwn) {
    World world = readworld(session.folders, area());
    const std::size_t birch = worldplace(world, area(), 2).value();
    EXPECT_FALSE(world.ports[birch].own);
    const HarmonicRecord port = readport(area(), 2);
    keepcheck(session.folders, area(), port, 2, {TableClock::ut, {{"", "", "1", ""}}});
    EXPECT_FALSE(rereadworld(session.folders, world, area())) << "a check makes no port another";
    EXPECT_TRUE(noteport(session.folders, area(), 2, {}, port, {}));
    EXPECT_TRUE(rereadworld(session.folders, world, area()));
    EXPECT_TRUE(world.ports[birch].own);
    EXPECT_FALSE(world.ports[birch - 1].own);
    EXPECT_EQ(trustof(world.ports[birch].about, world.ports[birch].own), Trust::own);
}

TEST_F(AboutLinesTest, TidesAreOfTheCharacterOfTheirConstants) {
    using Row = std::tuple<float, float, const char*>;
    for (const auto& [twice, once, words] :
         {Row{2, 0.1F, "Two high waters a day, much alike"}, Row{1, 0.5F, "Two high waters a day of unequal heights"},
          Row{1, 2, "Mostly one high water a day"}, Row{0.1F, 1, "One high water a day"},
          Row{0, 0, "None by these constants"}}) {
        HarmonicRecord port = readport(area(), 1);
        port.M2Hm = twice;
        port.K1Hm = once;
        port.S2Hm = port.O1Hm = 0;
        writeport(area(), 1, port);
        EXPECT_EQ(line(sheet(1), "Tides"), words);
    }
}

}  // namespace
}  // namespace tarvane::tests
