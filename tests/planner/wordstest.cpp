// A plan in words and colours: why she never passes, what cuts a window, clocks that change, and that everything
// written can be read on what it stands on.
#include <gtest/gtest.h>

#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "paint/colours.h"
#include "planner/plantexts.h"
#include "platform/systemzones/systemzones.h"

namespace tarvane {
namespace {

using namespace std::chrono_literals;

/// M2 alone, of 2 m about a level of 4 m.
HarmonicRecord simpleport() {
    HarmonicRecord port;
    port.TimeZoneLetter = "L";
    port.Z0 = 4;
    port.M2Hm = 2;
    port.MHm2.fill(2);
    return port;
}

Plan simpleplan(Date first, int count) {
    static const SystemZones zones;
    return Plan({simpleport(), "Europe/London", first, count}, zones);
}

Passage passage(double needed, std::optional<double> ceiling = {}) {
    Passage boat;
    boat.draught = needed;
    boat.bridge = ceiling;
    return boat;
}

TEST(PlanWords, TheAnswerNamesWhatIsInTheWay) {
    const ScriptedLocale locale;
    const Plan plan = simpleplan(makedate(2026, 7, 14), 3);
    const struct {
        Passage boat;
        const char* words;
    } rows[] = {
        {passage(9), "Never in these days: the level needed is 9.00 m, and the tide does not rise above 6.3"},
        {passage(3, 2.5), "Never in these days: the level needed is 3.00 m, but above 2.50 m the mast does not pass"},
        {passage(-3, 1),
         "Never in these days: the mast passes the bridge up to 1.00 m, and the tide does not fall below "
         "1.6"},
        {passage(1), "Always in these days: the level needed is 1.00 m, and the tide does not fall below 1.6"},
        {passage(1, 7), "; the mast passes the bridge up to 7.00 m, and the tide does not rise above 6.3"},
    };
    for (const auto& row : rows) {
        const std::string text = accesstext(plan, plan.access(row.boat, {}, false), row.boat, locale);
        EXPECT_NE(text.find(row.words), std::string::npos) << text;
    }
    const Passage boat = passage(4.5);
    EXPECT_EQ(accesstext(plan, plan.access(boat, {Daylight::none, 600}, false), boat, locale),
              "She passes at times, but not as you wish it; the level needed is 4.50 m.");
}

TEST(PlanWords, TheAnswerBeginsWithWhatIsStillToCome) {
    const ScriptedLocale locale;
    const Plan plan = simpleplan(makedate(2026, 7, 14), 3);
    const Passage boat = passage(4.5);
    const PlannedAccess access = plan.access(boat, {}, false);
    const auto& windows = access.windows;
    ASSERT_GE(windows.size(), 5U);
    const auto told = [&](Moment now) { return accesstext(plan, access, boat, locale, now); };
    const std::string whole = accesstext(plan, access, boat, locale);
    EXPECT_EQ(told(windows[0].closes), whole) << "one that is open still counts";
    const std::string later = told(windows[1].closes + 1min);
    const std::string third =
        daytext(locale, plan.clock().at(windows[2].opens).date) + " " + plainclock(plan.clock(), windows[2].opens);
    EXPECT_EQ(later.find(third), 0U) << later;
    EXPECT_NE(later.find("2 past already."), std::string::npos) << later;
    EXPECT_EQ(told(plan.ends() + 1h), whole.substr(0, whole.size() - 1) + ", all past already.")
        << "days gone by are told as they were";
}

TEST(PlanWords, DaysWithoutPredictionCutWindowsAndAreTold) {
    const ScriptedLocale locale;
    const Passage boat = passage(1);
    const Plan none = simpleplan(makedate(1990, 1, 1), 2), some = simpleplan(makedate(1990, 1, 1), 4),
               behind = simpleplan(makedate(1990, 1, 3), 2);
    EXPECT_EQ(accesstext(none, none.access(boat, {}, false), boat, locale),
              "No prediction for these days: The method has no constants for this day; the level needed is 1.00 m.");
    const PlannedAccess access = some.access(boat, {}, false);
    ASSERT_EQ(access.windows.size(), 1U);
    EXPECT_TRUE(access.windows[0].window.cutatstart && access.windows[0].window.cutatend);
    EXPECT_FALSE(access.always);
    EXPECT_NE(accesstext(some, access, boat, locale).find("No prediction for some of these days"), std::string::npos);
    EXPECT_STREQ(behind.whynot(), "") << "the days ahead of it are no part of it";
    EXPECT_TRUE(behind.access(boat, {}, false).always);
}

TEST(PlanWords, CutWindowsTellNoOpeningAndNoClosing) {
    const ScriptedLocale locale;
    const Passage boat = passage(3.2);
    for (int day = 10; day < 18; ++day) {
        const Plan plan = simpleplan(makedate(2026, 7, day), 1);
        const PlannedAccess access = plan.access(boat, {}, false);
        const std::string text = accesstext(plan, access, boat, locale);
        EXPECT_EQ(text.starts_with("Until "), access.windows.front().window.cutatstart) << text;
        EXPECT_EQ(text.ends_with(" on."), access.windows.back().window.cutatend) << text;
    }
}

TEST(PlanWords, AWindowIsKeptForAnyOfItsDaysOfTheWeek) {
    const Plan plan = simpleplan(makedate(2026, 7, 13), 7);  // from a Monday on
    const Passage boat = passage(4.5);
    const auto all = plan.access(boat, {}, false).windows;
    std::size_t kept = 0, crossing = 0;
    for (unsigned day = 0; day < 7; ++day) {
        std::size_t wanted = 0;
        for (const PlannedWindow& each : all) {
            const auto opens = std::chrono::weekday(plan.clock().at(each.opens).date),
                       closes = std::chrono::weekday(plan.clock().at(each.closes).date);
            wanted += opens.c_encoding() == day || closes.c_encoding() == day;
            crossing += opens.c_encoding() == day && opens != closes;
        }
        const auto windows = plan.access(boat, {Daylight::none, 0, 1U << day}, false).windows;
        EXPECT_EQ(windows.size(), wanted) << day;
        kept += windows.size();
    }
    EXPECT_GT(crossing, 0U);
    EXPECT_EQ(kept, all.size() + crossing);
    // All of a week, and of it the day that it doesn't reach.
    EXPECT_EQ(plan.access(passage(1), {Daylight::none, 0, 1U << 3}, false).windows.size(), 1U);
    EXPECT_EQ(
        simpleplan(makedate(2026, 7, 13), 1).access(passage(1), {Daylight::none, 0, 1U << 2}, false).windows.size(),
        0U);
}

TEST(PlanWords, OffsetsStandWhereTheClockIsChangedInBetween) {
    const ScriptedLocale locale;
    const auto time = [&](Date first, int count) {
        return tidestable(simpleplan(first, count), locale).rows[0].cells[1];
    };
    EXPECT_EQ(time(makedate(2026, 1, 1), 30).find("UT"), std::string::npos);
    EXPECT_NE(time(makedate(2026, 1, 1), 365).find("UT"), std::string::npos) << "changed there and back";
    EXPECT_NE(time(makedate(2026, 10, 25), 1).find(" UT"), std::string::npos);
}

TEST(PlanWords, LightIsSortedByItsTimesOfDay) {
    const ScriptedLocale locale;
    HarmonicRecord north = simpleport();
    north.PortLat = 69;
    static const SystemZones zones;
    const Plan plan({north, "", makedate(2026, 1, 1), 366, ClockChoice::ut}, zones);
    const PlanTable table = suntable(plan, locale);
    for (const PlanTable::Row& one : table.rows) {
        ASSERT_EQ(one.keys.size(), one.cells.size());
        EXPECT_EQ(one.keys[5] < 0, one.cells[5].empty());
        if (dayof(plan.clock().at(one.moment).date) % 10 > 0) continue;
        for (const PlanTable::Row& other : table.rows)
            for (std::size_t column = 1; column < 5; ++column) {
                const std::string &early = one.cells[column], &late = other.cells[column];
                const bool times = std::isdigit(early[0]) && std::isdigit(late[0]);
                const bool sorted = times ? early < late : early == "none" ? late != "none" : late == "all day";
                if (early == "all day" || !sorted) continue;
                EXPECT_LT(one.keys[column], other.keys[column]) << early << late;
            }
    }
}

TEST(PlanWords, TheDayOnWhichTheClockIsChangedSaysSo) {
    static const SystemZones zones;
    const struct {
        const char* zone;
        Date day;
        const char* noon;
    } rows[] = {{"Europe/London", makedate(2027, 3, 28), "12:00 BST"},
                {"Europe/London", makedate(2027, 10, 31), "12:00 GMT"},
                {"", makedate(2027, 3, 28), "12:00 UT+1"},                    // from its first moment on
                {"", makedate(2027, 10, 30), "12:00 UT+1"},                   // an hour ahead of its end
                {"America/Sao_Paulo", makedate(2018, 11, 4), "12:00 UT-2"}};  // no midnight
    for (const auto& row : rows) {
        const PortClock clock(ClockChoice::port, 0, row.zone, zones);
        for (int aside = -1; aside <= 1; ++aside) {
            const Moment noon = Moment(row.day + std::chrono::days(aside)) + 12h -
                                clock.at(clock.startof(row.day + std::chrono::days(aside)) + 13h).ahead;
            EXPECT_EQ(plainclock(clock, noon), aside == 0 ? row.noon : "12:00") << row.zone << aside;
        }
    }
    const auto time = tidestable(simpleplan(makedate(2027, 3, 28), 1), ScriptedLocale()).rows[0].cells[1];
    EXPECT_NE(time.find(" UT"), std::string::npos);
}

TEST(PlanWords, NowTellsTheNextWatersInTheirOrder) {
    const Plan plan = simpleplan(makedate(2026, 7, 14), 1);
    for (const PlannedWater& each : plan.waters()) {
        const std::string text = nowtext(plan, each.moment - 10min + 40s);
        const std::string name = each.water.high ? ". High water 5.9" : ". Low water 2.0";
        EXPECT_NE(text.find(", in 10 min."), std::string::npos) << text;
        EXPECT_LT(text.find(each.water.high ? "High" : "Low"), text.find(each.water.high ? "Low" : "High")) << text;
    }
    EXPECT_EQ(durationtext(59min) + durationtext(65min) + durationtext(95h), "59 min1 h 05 min4 days");
    EXPECT_EQ(metres(-0.04) + metres(-0.06, 2) + metres(12), "0.0 m-0.06 m12.0 m");
    EXPECT_STREQ(tendencyword(-0.05), "falling");
    EXPECT_STREQ(tendencyword(0.049), "standing");
}

TEST(Colours, WhatIsWrittenCanBeRead) {
    EXPECT_NEAR(contrast(0xFFFFFF, 0x000000), 21, 1e-9);
    EXPECT_NEAR(contrast(0x777777, 0xFFFFFF), 4.48, 0.005);
    for (const Lighting light : {Lighting::day, Lighting::dark, Lighting::night}) {
        const Colours& look = coloursof(light);
        for (const Rgb written : {look.text, look.faint, look.needed, look.now, look.cursor})
            for (const Rgb behind : {look.paper, look.twilight, look.night, look.band, look.field, look.passable})
                EXPECT_GE(contrast(written, behind), 4.5) << std::hex << written << " on " << behind;
        EXPECT_GE(contrast(look.text, look.seabed), 4.5);
        for (const Rgb behind : {look.sea, look.land}) {
            EXPECT_GE(contrast(look.text, behind), 4.5);
            EXPECT_GE(contrast(look.faint, behind), 4.5);
            EXPECT_GE(contrast(look.curve, behind), 3);
            EXPECT_GE(contrast(look.now, behind), 3);
            EXPECT_GE(contrast(look.shore, behind), 1.5);
        }
        for (const Rgb behind : {look.paper, look.twilight, look.night})
            EXPECT_GE(contrast(look.curve, behind), 3) << std::hex << behind;
        EXPECT_GE(contrast(look.hatch, look.passable), 1.5);
    }
    const Colours& night = coloursof(Lighting::night);
    for (const Rgb colour : {night.text, night.faint, night.needed, night.now, night.cursor, night.curve, night.paper})
        EXPECT_GT(colour >> 16, 2 * (colour & 0xFF)) << std::hex << colour;
}

}  // namespace
}  // namespace tarvane
