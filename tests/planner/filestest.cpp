// Tables, calendars and runs beyond a year: what another program reads is what the plan holds, an event keeps its
// identifier and no two share one, and it makes no difference where plans on end are cut.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "fakes/temporaryfolder.h"
#include "fakes/testport.h"
#include "planner/plancalendar.h"
#include "planner/planrun.h"
#include "platform/systemzones/systemzones.h"
#include "portdata/portscsv.h"
#include "text/csvrows.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using namespace std::chrono_literals;

const SystemZones systemzones;
const PlanPort dover{"UK.hc", 15, "Dover, Western; Docks"};

HarmonicRecord portof(const std::string& name) {
    for (const HarmonicRecord& port : tests::shippedports())
        if (trim(port.PortName) == name) return port;
    ADD_FAILURE() << name;
    return {};
}

PlanOf london(const std::string& name, Date first, int days) {
    return {portof(name), "Europe/London", first, days};
}

Passage needing(double level, std::optional<double> ceiling = {}) {
    Passage boat;
    boat.bottom = -level;
    boat.bridge = ceiling;
    return boat;
}

/// The values of one property, lines unfolded.
std::vector<std::string> valuesof(std::string calendar, const std::string& property) {
    for (std::size_t fold; (fold = calendar.find("\r\n ")) != std::string::npos;)
        calendar.erase(fold, 3);
    std::vector<std::string> values;
    std::istringstream lines(calendar);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(property + ":"))
            values.push_back(line.substr(property.size() + 1, line.size() - property.size() - 2));
    return values;
}

TEST(PlanFiles, TablesHoldThePlan) {
    const Plan plan(london("Dover", makedate(2026, 10, 24), 3), systemzones);
    const std::string text = waterscsv(plan, dover);
    CsvRows rows(text);
    EXPECT_EQ(rows.take()->fields,
              (std::vector<std::string>{"port", "name", "moment", "height", "kind", "spring_share"}));
    for (const PlannedWater& each : plan.waters()) {
        const auto fields = rows.take()->fields;
        EXPECT_EQ(fields[1], dover.name);
        EXPECT_EQ(fields[2], isomoment(plan.clock().at(each.moment)));
        EXPECT_NEAR(std::stod(fields[3]), each.water.height, 0.0005);
        EXPECT_EQ(fields[4] == "high", each.water.high);
        EXPECT_NEAR(std::stod(fields[5]), each.water.springshare, 0.0005);
    }
    EXPECT_FALSE(rows.take());
    const std::string windows = windowscsv(plan, plan.access(needing(4), {}, false), dover);
    EXPECT_NE(windows.find("+01:00,2026-10-24T"), std::string::npos);
    EXPECT_TRUE(windows.starts_with("port,name,opens,closes,minutes,greatest_height,daylight_minutes,cut\n"))
        << windows;
    const std::string always = windowscsv(plan, plan.access(needing(-3), {}, false), dover);
    EXPECT_NE(always.find("T00:00+01:00,2026-10-27T00:00+00:00,4380,"), std::string::npos) << always;
    EXPECT_TRUE(always.ends_with(",both\n"));
}

TEST(PlanCalendar, LinesAreFoldedAndTextsEscaped) {
    EXPECT_EQ(calendartext("a,b;c\\d\r\ne\nf\x1B"), "a\\,b\\;c\\\\d\\ne\\nf?");
    EXPECT_EQ(calendarline(std::string(75, 'x')), std::string(75, 'x') + "\r\n");
    EXPECT_EQ(calendarline(std::string(150, 'x')),
              std::string(75, 'x') + "\r\n " + std::string(74, 'x') + "\r\n x\r\n");
    // Two bytes a letter: 75 would part one.
    std::string accents;
    for (int i = 0; i < 80; ++i)
        accents += "é";
    const std::string folded = calendarline(accents);
    EXPECT_EQ(folded.substr(0, 77), accents.substr(0, 74) + "\r\n ");
    EXPECT_EQ(folded.substr(77, 76), accents.substr(74, 74) + "\r\n");
}

TEST(PlanCalendar, AnEventIsThePlansInUniversalTime) {
    const Plan plan(london("Dover", makedate(2026, 7, 14), 1), systemzones);
    const std::string calendar = waterscalendar(plan, dover, Moment(makedate(2026, 7, 1)) + 12h);
    EXPECT_TRUE(calendar.starts_with("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:"));
    EXPECT_TRUE(calendar.ends_with("END:VEVENT\r\nEND:VCALENDAR\r\n"));
    const auto starts = valuesof(calendar, "DTSTART"), ends = valuesof(calendar, "DTEND");
    ASSERT_EQ(starts.size(), plan.waters().size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        EXPECT_LT(starts[i], ends[i]);
        const PortClock ut(ClockChoice::ut, 0, "", systemzones);
        std::string moment = isomoment(ut.at(plan.waters()[i].moment)).substr(0, 16) + "00Z";
        std::erase_if(moment, [](char each) { return each == '-' || each == ':'; });
        EXPECT_EQ(starts[i], moment);
    }
    EXPECT_EQ(valuesof(calendar, "DTSTAMP")[0], "20260701T120000Z");
    EXPECT_EQ(valuesof(calendar, "LOCATION")[0], "Dover\\, Western\\; Docks");
    EXPECT_EQ(valuesof(calendar, "GEO")[0], "51.11440;1.32250");
    EXPECT_TRUE(valuesof(calendar, "SUMMARY")[0].ends_with(" m\\, Dover\\, Western\\; Docks"));
    EXPECT_EQ(waterscalendar(Plan(london("Dover", makedate(1990, 1, 1), 1), systemzones), dover, {}), "");
}

/// The identifiers of all waters and windows of some days.
std::vector<std::string> identifiers(const HarmonicRecord& port, const Passage& boat, Date first, int days,
                                     const PlanPort& called = dover) {
    const Plan plan({port, "Europe/London", first, days}, systemzones);
    auto all = valuesof(waterscalendar(plan, called, {}), "UID");
    for (const std::string& each :
         valuesof(windowscalendar(plan, plan.access(boat, {}, false), boat, called, {}), "UID"))
        all.push_back(each);
    return all;
}

TEST(PlanCalendar, AWindowKeepsItsIdentifierWhateverDaysAreAskedFor) {
    const Date first = makedate(2026, 2, 1);
    const PlanOf of = london("Dover", first, 60);
    // A level that neaps don't fall to, one that only the lowest of a year do; two windows a tide under a bridge.
    for (const Passage& boat : {needing(1.3), needing(0.75), needing(2, 5)}) {
        const auto identified = [&](Date from, int days, const WindowWishes& wishes) {
            const Plan plan({of.port, of.iana, from, days}, systemzones);
            const PlannedAccess access = plan.access(boat, wishes, false);
            const auto names = valuesof(windowscalendar(plan, access, boat, dover, {}), "UID");
            std::vector<std::pair<PlannedWindow, std::string>> all;
            for (std::size_t i = 0; i < names.size(); ++i)
                all.emplace_back(access.windows[i], names[i]);
            return all;
        };
        const auto whole = identified(first, of.days, {});
        ASSERT_FALSE(whole.empty());
        std::size_t cut = 0;
        for (int day = 0; day < 40; ++day)
            for (const int length : {1, 20})
                for (const auto& [window, name] : identified(first + std::chrono::days(day), length, {})) {
                    const auto same = std::find_if(whole.begin(), whole.end(), [&, at = window](const auto& each) {
                        return each.first.opens <= at.opens && at.closes <= each.first.closes;
                    });
                    ASSERT_NE(same, whole.end());
                    EXPECT_EQ(name, same->second) << day << " " << length;
                    cut += window.window.cutatstart;
                }
        EXPECT_GT(cut, 5U);
        for (const auto& [window, name] : identified(first, of.days, {Daylight::part, 300}))
            EXPECT_TRUE(std::any_of(whole.begin(), whole.end(), [&, at = window, called = name](const auto& each) {
                return each.first.opens == at.opens && each.second == called;
            })) << "whatever is wished";
    }
}

TEST(PlanCalendar, AWindowThatIsOpenForWeeksIsOneWhereverAPlanBegins) {
    // Never below the level from the last of February on, but for steps at midnight of a falling tide.
    const auto ports = readportscsv(filetext(TARVANE_DATA "/us-south-east-ports.csv")).ports;
    const auto names = [&](Date first, int days) {
        const Plan plan({ports.at(16), "America/New_York", first, days}, systemzones);
        return valuesof(windowscalendar(plan, plan.access(needing(0.5), {}, false), needing(0.5), dover, {}), "UID");
    };
    const auto whole = names(makedate(2026, 3, 1), 40);
    EXPECT_EQ(names(makedate(2026, 3, 13), 20).at(0), whole.at(0));
    EXPECT_FALSE(whole.at(0).starts_with("passage-always"));
}

TEST(PlanCalendar, IdentifiersAreAnEventsOwnAndStay) {
    const Date first = makedate(2026, 1, 1);
    for (const char* name : {"Dover", "Weymouth", "Southampton", "Le Havre", "Brest"}) {
        const HarmonicRecord port = portof(name);
        const Passage boat = needing(port.Z0);
        const auto all = identifiers(port, boat, first, 200);
        const std::set<std::string> once(all.begin(), all.end());
        EXPECT_EQ(once.size(), all.size()) << name;
        // Asked for from a day in the midst, where a window may be cut.
        std::size_t known = 0;
        const auto later = identifiers(port, boat, first + std::chrono::days(77), 30);
        for (const std::string& each : later)
            known += once.contains(each);
        EXPECT_EQ(known, later.size()) << name;
    }
    // Other constants: two minutes later, and a little more range.
    HarmonicRecord port = portof("Dover");
    const auto before = identifiers(port, needing(4), first, 300);
    port.M2g += 1;
    port.S2Hm *= 1.01F;
    EXPECT_EQ(identifiers(port, needing(4.03), first, 300), before);
    // And at ports with any lag, but for what moves over the ends.
    for (port.M2g = 0; port.M2g < 360; port.M2g += 29) {
        const auto earlier = identifiers(port, needing(4), first, 60);
        port.M2g += 1;
        const auto later = identifiers(port, needing(4), first, 60);
        const std::set<std::string> known(earlier.begin(), earlier.end());
        EXPECT_LE(std::count_if(later.begin(), later.end(), [&](const auto& each) { return !known.contains(each); }), 2)
            << port.M2g;
    }
    EXPECT_NE(identifiers(port, needing(2), first, 9, {"UK.hc", 1, ""}), identifiers(port, needing(2), first, 9));
    EXPECT_NE(identifiers(port, needing(2), first, 9, {"U K.hc", 15, ""}),
              identifiers(port, needing(2), first, 9, {"U%20K.hc", 15, ""}));
}

/// All of a window that is shown.
std::string windowwords(const PlannedWindow& window) {
    std::ostringstream words;
    words << window.opens.time_since_epoch().count() << " " << window.closes.time_since_epoch().count() << " "
          << window.window.minutes() << " " << window.window.greatestheight << " " << window.window.leastmargin << " "
          << window.window.daylightminutes << window.window.cutatstart << window.window.cutatend << " "
          << (window.opening ? window.opening->tide : 0) << " " << window.part << "\n";
    return words.str();
}

TEST(PlanRun, WherePlansAreCutMakesNoDifference) {
    const struct {
        Passage boat;
        WindowWishes wishes;
        Date first;
    } rows[] = {{needing(2), {}, makedate(2026, 3, 20)},
                {needing(2), {Daylight::whole, 300}, makedate(2026, 3, 20)},
                {needing(1), {Daylight::part, 900}, makedate(2026, 3, 20)},
                {needing(1, 5), {Daylight::none, 0, 1U << 6}, makedate(2026, 10, 20)},
                {needing(0.9), {Daylight::none, 2880}, makedate(2026, 5, 1)},
                {needing(-4), {}, makedate(2026, 5, 1)},
                {needing(9), {}, makedate(2026, 5, 1)},
                {needing(2), {}, makedate(1989, 12, 10)}};
    for (const auto& row : rows) {
        const PlanOf of = london("Dover", row.first, 40);
        const Plan whole(of, systemzones);
        const PlannedAccess access = whole.access(row.boat, row.wishes, false);
        std::string wanted, found;
        for (PlannedWindow each : access.windows) {
            whole.nameopening(each, row.boat);
            wanted += windowwords(each);
        }
        WindowRun run(whole.clock(), row.wishes);
        for (const PlanOf& piece : plansonend(of, 3)) {
            const Plan plan(piece, systemzones);
            PlannedAccess some = plan.access(row.boat, {}, false);
            for (PlannedWindow& each : some.windows)
                plan.nameopening(each, row.boat);
            for (const PlannedWindow& each : run.add(plan, some))
                found += windowwords(each);
        }
        for (const PlannedWindow& each : run.finish())
            found += windowwords(each);
        EXPECT_EQ(found, wanted);
        EXPECT_EQ(run.overall().always, access.always);
        EXPECT_EQ(run.overall().never, access.never);
        EXPECT_EQ(run.whynot(), whole.whynot());
        EXPECT_NEAR(*run.overall().greatestheight, *access.greatestheight, 1e-6);
    }
}

}  // namespace
}  // namespace tarvane
