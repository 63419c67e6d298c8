// Clocks, light, springs and windows of a plan, by facts from elsewhere: zone rules, almanacs, and a tide of M2 alone.
#include "planner/plan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "fakes/testport.h"
#include "platform/systemzones/systemzones.h"
#include "sunmoon/lunarphases.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using namespace std::chrono_literals;
using std::chrono::hours;
using std::chrono::minutes;

const SystemZones planzones;

Date date(int year, unsigned month, unsigned day) {
    return std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day);
}

HarmonicRecord shipped(const std::string& name) {
    for (const HarmonicRecord& port : tests::shippedports())
        if (trim(port.PortName) == name) return port;
    ADD_FAILURE() << name;
    return {};
}

TEST(PortClock, DaysHaveTheHoursThatTheZoneGivesThem) {
    const struct {
        const char* zone;
        Date day;
        int minutes;
        const char* morning;  ///< six hours after the day's start
    } rows[] = {{"Europe/London", date(2027, 3, 28), 23 * 60, "2027-03-28T07:00+01:00"},
                {"Europe/London", date(2027, 10, 31), 25 * 60, "2027-10-31T05:00+00:00"},
                {"America/New_York", date(2027, 11, 7), 25 * 60, "2027-11-07T05:00-05:00"},
                {"Australia/Lord_Howe", date(2027, 4, 4), 24 * 60 + 30, "2027-04-04T05:30+10:30"},
                {"America/Sao_Paulo", date(2018, 11, 4), 23 * 60, "2018-11-04T07:00-02:00"},
                {"Asia/Kolkata", date(2027, 6, 1), 24 * 60, "2027-06-01T06:00+05:30"}};
    for (const auto& row : rows) {
        const PortClock clock(ClockChoice::port, 0, row.zone, planzones);
        const Moment start = clock.startof(row.day);
        EXPECT_EQ(clock.startof(row.day + std::chrono::days(1)) - start, minutes(row.minutes)) << row.zone;
        EXPECT_EQ(isomoment(clock.at(start + hours(6))), row.morning);
        EXPECT_EQ(clock.at(start - 1s).date, row.day - std::chrono::days(1));
        EXPECT_EQ(clock.at(start).date, row.day);
    }
}

TEST(PortClock, TellsWhatItGoesBy) {
    EXPECT_EQ(PortClock(ClockChoice::port, -1, "Europe/Paris", planzones).description(), "port's clock (Europe/Paris)");
    EXPECT_EQ(PortClock(ClockChoice::zone, 4, "", planzones).description(), "zone time (UT-4)");
    EXPECT_EQ(PortClock(ClockChoice::ut, 4, "", planzones).description(), "universal time");
    const PortClock rule(ClockChoice::port, -1, "Europe/Nowhere", planzones);
    EXPECT_TRUE(rule.byrule());
    EXPECT_EQ(rule.description(), "port's clock by its zone (UT+1) and European summer time");
    // The program's own rule keeps whole days: summer time from the last Sunday of March to the last of October.
    EXPECT_EQ(isomoment(rule.at(Moment(date(2027, 3, 27)) + 22h + 59min)), "2027-03-27T23:59+01:00");
    EXPECT_EQ(isomoment(rule.at(Moment(date(2027, 3, 27)) + 23h)), "2027-03-28T01:00+02:00");
    EXPECT_EQ(isomoment(rule.at(Moment(date(2027, 10, 30)) + 21h + 59min)), "2027-10-30T23:59+02:00");
    EXPECT_EQ(isomoment(rule.at(Moment(date(2027, 10, 30)) + 22h)), "2027-10-30T23:00+01:00");
    EXPECT_EQ(utname(-(3h + 30min)), "UT-3:30");
    // Zones without letters.
    for (const auto& [zone, name] : {std::pair{"America/Punta_Arenas", "UT-3"}, {"Australia/Eucla", "UT+8:45"}})
        EXPECT_EQ(PortClock(ClockChoice::port, 0, zone, planzones).at(Moment(date(2027, 6, 1))).name, name);
}

/// A port of M2 alone, with its mean level.
HarmonicRecord m2port(float level, float amplitude) {
    HarmonicRecord port;
    port.TimeZoneLetter = "L";
    port.Z0 = level;
    port.M2Hm = amplitude;
    port.MHm2.fill(amplitude);
    return port;
}

Plan planof(const HarmonicRecord& port, const char* iana, Date first, int count,
            ClockChoice clock = ClockChoice::port) {
    return Plan({port, iana, first, count, clock}, planzones);
}

TEST(Plan, WindowsOfASimpleTideAreThoseOfItsCosine) {
    const Plan plan = planof(m2port(4, 2), "Europe/London", date(2026, 7, 14), 3);
    Passage passage;
    passage.draught = 1.9;
    passage.clearance = 0.1;
    passage.bottom = -2.5;  // needs 4.5 m
    const PlannedAccess access = plan.access(passage, {}, false);
    ASSERT_EQ(access.windows.size(), 6U);
    for (const PlannedWindow& each : access.windows) {
        // A tide of amplitude A about its mean stands above m + d for arccos(d/A)/180 of its 12.42 hours.
        const double amplitude = each.window.greatestheight - 4;
        const double wanted = std::acos(0.5 / amplitude) / std::numbers::pi * 12.4206 * 60;
        if (!each.window.cutatstart && !each.window.cutatend) {
            EXPECT_NEAR(static_cast<double>(each.window.minutes()), wanted, 8);
        }
        EXPECT_GE(*plan.height(each.opens), 4.5);
        EXPECT_LT(*plan.height(each.opens - 60s), each.window.cutatstart ? 99 : 4.5);
    }
    passage.bottom = 3;
    EXPECT_TRUE(plan.access(passage, {}, false).always);
    passage.bottom = -9;
    EXPECT_TRUE(plan.access(passage, {}, false).never);
    // Under a bridge 10 m above 5 m a mast of 11 m has to wait for the tide to fall to 4 m.
    passage.bottom = 9;
    passage.bridge = 10;
    passage.bridgelevel = 5;
    passage.airdraught = 11;
    for (const PlannedWindow& each : plan.access(passage, {}, false).windows)
        EXPECT_LE(each.window.greatestheight, 4);
}

TEST(Plan, EachOfADoubleWaterHasTheRangeOfItsTide) {
    // Two highs of 4.60 and 4.48 m at springs, a dip of a decimetre between them, lows of 0.63 and 0.40 m.
    const Plan plan = planof(shipped("Southampton"), "Europe/London", date(2026, 11, 24), 1);
    std::vector<Water> highest;
    for (const PlannedWater& each : plan.waters()) {
        if (each.water.high && each.water.height > 4) highest.push_back(each.water);
        if (!each.water.high && each.water.height > 4) {
            EXPECT_LT(each.water.springshare, 0.1);
        }
    }
    ASSERT_EQ(highest.size(), 3U);
    for (const Water& each : highest)
        EXPECT_NEAR(each.springshare, (each.height - 0.5) / meanspringrange(plan.planof().port), 0.03);
    const std::vector<PlannedWater> simple = planof(m2port(4, 2), "Europe/London", date(2026, 7, 14), 3).waters();
    for (const PlannedWater& each : simple)
        EXPECT_NEAR(each.water.springshare, std::abs(each.water.height - 4) / 2, 0.01);
    // Stands: a high and a low of the young flood 28 minutes and 2 cm apart, two highs less than 2 hours and 0.1 m.
    const Plan before = planof(shipped("Southampton"), "Europe/London", date(2026, 11, 23), 1);
    for (const PlannedWater& each : before.waters())
        EXPECT_EQ(each.water.stand, each.moment > before.begins() + 16h) << isomoment(before.clock().at(each.moment));
}

TEST(Plan, AStandIsNoTurnOfTheTide) {
    // The young flood stands: a high of 1.909 m at 05:52 and a low of 1.906 m at 06:11, neither of which is the tide's.
    const Plan plan = planof(shipped("Southampton"), "", date(2026, 6, 14), 1, ClockChoice::ut);
    int slight = 0;
    for (const PlannedWater& each : plan.waters()) {
        if (each.moment == plan.begins() + 5h + 52min || each.moment == plan.begins() + 6h + 11min) {
            EXPECT_TRUE(each.water.stand && each.water.slight);
            ++slight;
        }
    }
    EXPECT_EQ(slight, 2);
    const auto next = plan.now(plan.begins() + 5h)->next();
    EXPECT_TRUE(next->water.high && next->water.height > 4) << next->water.height;
    // And wherever waters double, what is left as turns lies apart.
    for (const char* name : {"Southampton", "Weymouth", "Swanage"}) {
        const Plan month = planof(shipped(name), "", date(2026, 6, 1), 30, ClockChoice::ut);
        std::vector<PlannedWater> turns;
        for (const PlannedWater& each : month.waters())
            if (!each.water.slight) turns.push_back(each);
        EXPECT_LT(turns.size(), month.waters().size());
        for (std::size_t i = 1; i < turns.size(); ++i)
            EXPECT_TRUE(turns[i].moment - turns[i - 1].moment >= 2h ||
                        std::abs(turns[i].water.height - turns[i - 1].water.height) >= 0.1)
                << name << isomoment(month.clock().at(turns[i].moment));
    }
}

TEST(Plan, WishesLeaveOutWhatIsDarkOrShort) {
    const Plan plan = planof(shipped("Newlyn"), "Europe/London", date(2026, 12, 21), 7);
    Passage passage;
    passage.bottom = -4.2;
    const auto all = plan.access(passage, {}, false).windows;
    std::size_t part = 0, whole = 0, longer = 0;
    for (const PlannedWindow& each : all) {
        part += each.window.daylightminutes > 0;
        whole += each.window.daylightminutes == each.window.minutes();
        longer += each.window.minutes() >= 225;
    }
    EXPECT_TRUE(0 < whole && whole < part && part < all.size() && 0 < longer && longer < all.size());
    EXPECT_EQ(plan.access(passage, {Daylight::part, 0}, false).windows.size(), part);
    EXPECT_EQ(plan.access(passage, {Daylight::whole, 0}, false).windows.size(), whole);
    EXPECT_EQ(plan.access(passage, {Daylight::none, 225}, false).windows.size(), longer);
}

TEST(Plan, AWindowThatTheSpanCutsIsWishedForAsAWhole) {
    Passage passage;
    passage.draught = 1.9;
    passage.clearance = 0.5;
    passage.bottom = -2;
    // From 21:26 on the Saturday to 02:15, which a single day has 154 minutes of.
    const Plan day = planof(shipped("Cherbourg"), "Europe/Paris", date(2026, 11, 28), 1);
    const Plan two = planof(shipped("Cherbourg"), "Europe/Paris", date(2026, 11, 28), 2);
    const auto cut = day.access(passage, {Daylight::none, 280}, false).windows;
    const auto whole = two.access(passage, {Daylight::none, 280}, false).windows;
    ASSERT_FALSE(cut.empty());
    EXPECT_EQ(cut.back().window.minutes() + cut.back().window.after.minutes, whole[cut.size() - 1].window.minutes());
    EXPECT_TRUE(day.access(passage, {Daylight::none, 320}, false).windows.empty());
    // Of a window that is open from dusk on no piece before it passes for one by day.
    const auto bright = [&](int count) {
        const Plan plan = planof(shipped("Cherbourg"), "Europe/Paris", date(2026, 11, 20), count);
        return plan.access(passage, {Daylight::whole}, false).windows.size();
    };
    std::size_t alone = 0;
    for (int i = 0; i < 14; ++i) {
        const Plan plan = planof(shipped("Cherbourg"), "Europe/Paris", date(2026, 11, 20) + std::chrono::days(i), 1);
        alone += plan.access(passage, {Daylight::whole}, false).windows.size();
    }
    EXPECT_EQ(alone, bright(14));
}

TEST(Plan, IsTheSameTideOnEveryClock) {
    const HarmonicRecord port = shipped("Cherbourg");
    const Plan clock = planof(port, "Europe/Paris", date(2026, 10, 24), 3);
    const Plan ut = planof(port, "", date(2026, 10, 23), 5, ClockChoice::ut);
    EXPECT_EQ(clock.ends() - clock.begins(), hours(73));
    std::size_t found = 0;
    for (const PlannedWater& each : clock.waters())
        for (const PlannedWater& other : ut.waters())
            found += each.moment == other.moment && each.water.height == other.water.height;
    EXPECT_EQ(found, clock.waters().size());
    EXPECT_GE(found, 11U);
}

TEST(Plan, SpringsFollowTheMoonAlsoWhereWatersDouble) {
    for (const auto& [name, zone] :
         {std::pair{"Brest", "Europe/Paris"}, {"Southampton", "Europe/London"}, {"Swanage", "Europe/London"}}) {
        const HarmonicRecord port = shipped(name);
        const Plan plan = planof(port, zone, date(2026, 1, 1), 365);
        const auto moons = phasesbetween(plan.begins() - 96h, plan.ends());
        int springs = 0;
        for (const SpringTide& each : plan.springsandneaps()) {
            springs += each.springs;
            bool near = false;
            for (const MoonPhase& moon : moons) {
                const auto lag = each.moment - moon.moment;
                near = near || (lag > -12h && lag < 96h && (moon.phase % 2 == 0) == each.springs);
            }
            EXPECT_TRUE(near) << name << isomoment(plan.clock().at(each.moment)) << each.springs;
            EXPECT_GT(*plan.height(each.moment), port.Z0) << name;  // no lesser turn on the way up
        }
        EXPECT_NEAR(springs, 25, 1) << name;
    }
    HarmonicRecord onetide = m2port(2, 0.3F);
    onetide.K1Hm = onetide.O1Hm = 0.5F;
    EXPECT_TRUE(planof(onetide, "", date(2026, 1, 1), 60).springsandneaps().empty());
}

TEST(Moon, PhasesStandAtTheirMoments) {
    // Universal times of an almanac, to the minute.
    const struct {
        Date day;
        int minute, phase;
    } rows[] = {{date(2024, 4, 8), 18 * 60 + 21, 0},
                {date(2026, 12, 1), 6 * 60 + 9, 3},
                {date(2026, 8, 28), 4 * 60 + 18, 2},
                {date(2025, 3, 6), 16 * 60 + 32, 1}};
    for (const auto& row : rows) {
        const auto phases = phasesbetween(Moment(row.day), Moment(row.day) + 24h);
        ASSERT_EQ(phases.size(), 1U) << dayof(row.day);
        EXPECT_EQ(phases[0].phase, row.phase);
        EXPECT_NEAR(static_cast<double>((phases[0].moment - Moment(row.day)).count()) / 60, row.minute, 5);
    }
}

TEST(Daylight, IsThatOfThePlace) {
    const struct {
        double latitude, longitude;
        Date day;
        double hours;  ///< of light in three days
    } rows[] = {{51.5, 0, date(2026, 6, 21), 3 * 16.63},
                {51.5, 0, date(2026, 12, 21), 3 * 7.83},
                {-36.8, 174.8, date(2026, 12, 21), 3 * 14.65},
                {21.3, -157.9, date(2026, 3, 20), 3 * 12.1},
                {69.6, 18.9, date(2026, 6, 21), 72},
                {69.6, 18.9, date(2026, 12, 21), 0},
                // The sun comes back for less than an hour; it stays away from then on.
                {69.33, 16.13, date(2027, 1, 12), 2},
                {-69.0, 39.58, date(2026, 7, 12), 2},
                {70.37, 31.1, date(2026, 11, 23), 1},
                {-70.5, -170, date(2026, 5, 22), 1}};
    for (const auto& row : rows) {
        const Light light = lightof(row.latitude, row.longitude, row.day, 3);
        const double within = row.hours > 0 && row.hours < 3 ? 1.5 : 0.4;
        EXPECT_NEAR(sharedhours(light.day, 0, 72), row.hours, within) << row.latitude;
        EXPECT_GE(sharedhours(light.civil, 0, 72), sharedhours(light.day, 0, 72));
    }
    const Light auckland = lightof(-36.8, 174.8, date(2026, 12, 21), 1);
    EXPECT_NEAR(auckland.day[1].from, 5.97 - 13, 0.1);  // 05:58 of New Zealand's summer time, 13 hours ahead
}

}  // namespace
}  // namespace tarvane
