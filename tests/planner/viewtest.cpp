// What the planner holds as its window changes it: ports that come and go, spans over changed clocks, the part shown,
// refusals.
#include "planner/planview.h"

#include <cmath>
#include <filesystem>

#include "fakes/mainfixture.h"
#include "planner/plancommands.h"
#include "planner/plantexts.h"
#include "planner/presenttide.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;

/// Alder Quay keeps London's clock, the other ports have the program's own rule.
struct PlanViewTest : LoadedMain {
    PlanViewTest() {
        replacefile(session.folders.programfolder + "/uk-about.csv",
                    std::string("number,name,country,timezone,datum,record_from,record_to,licence,source,"
                                "time_error_median_min,time_error_p90_min,height_error_median_m,height_error_p90_m,"
                                "mean_range_m\n1,Alder Quay,GB,Europe/London,LAT,,,,,1,1,1,1,1\n"));
    }

    PlanView opened() const { return openplanview(context); }
};

TEST_F(PlanViewTest, FollowsPortsAndWhatIsStoredOfThem) {
    PlanView view = opened();
    EXPECT_EQ(plantitle(view, scripted.locale), "Alder Quay, 9 to 15 April 2024, port's clock (Europe/London)");
    EXPECT_NE(planfoot(view).find(" above chart datum. "), std::string::npos);
    EXPECT_FALSE(followport(context, view));
    HarmonicRecord record = readport(area(), 1);
    record.Z0 += 1;
    const struct {
        const char* what;
        std::function<void()> change;
        std::string title;  ///< the view's port then
        std::size_t ports;
        std::string whynot;
    } rows[] = {{"another port", [&] { session.settings.currentport = 2; }, "Birch Sound", 4, ""},
                {"and back", [&] { session.settings.currentport = 1; }, "Alder Quay", 4, ""},
                {"constants", [&] { writeport(area(), 1, record); }, "Alder Quay", 4, ""},
                {"a port more", [&] { writeport(area(), 5, fixtureport("Elm Reach", 4)); }, "Alder Quay", 5, ""},
                {"a name", [&] { writeport(area(), 5, fixtureport("Elm Point", 4)); }, "Alder Quay", 5, ""},
                {"the draught stored", [&] { session.settings.currentdraught = 2; }, "Alder Quay", 5, ""},
                {"a depth of no sense", [&] { session.settings.userdepth = NAN; }, "Alder Quay", 5, ""},
                {"no such port", [&] { session.settings.currentport = 9; }, "", 5, nosuchport},
                {"no area", [&] { std::filesystem::rename(area(), area() + "x"); }, "", 0, noareafile},
                {"the area again", [&] { std::filesystem::rename(area() + "x", area()); }, "", 5, nosuchport},
                {"its port too", [&] { session.settings.currentport = 4; }, "Alder Quay", 5, ""}};
    for (const auto& row : rows) {
        row.change();
        EXPECT_TRUE(followport(context, view)) << row.what;
        EXPECT_FALSE(followport(context, view)) << row.what;
        EXPECT_EQ(view.portname, row.title) << row.what;
        EXPECT_EQ(view.ports.size(), row.ports) << row.what;
        EXPECT_EQ(view.whynot, row.whynot) << row.what;
        EXPECT_EQ(view.plan == nullptr, !row.whynot.empty()) << row.what;
        // Whatever the window asks of a view without a plan is answered.
        showdays(context, view, makedate(2024, 4, 9), 7);
        showclock(context, view, ClockChoice::port);
        zoomplan(view, 0.5, view.from);
        moveplan(view, 1h);
        showday(view, view.first);
        putcursor(view, view.to);
        askquestion(context, view, view.question);
        EXPECT_EQ(view.plan ? "" : answertext(view, scripted.locale), row.whynot) << row.what;
        EXPECT_EQ(planfoot(view).find(row.whynot), 0U) << row.what;
        EXPECT_LT(todayof(context, view), makedate(2024, 4, 11));
    }
}

TEST_F(PlanViewTest, APortOfTheUsersOwnIsToldAsHisOnItsOwnClock) {
    const HarmonicRecord before = readport(area(), 1);
    HarmonicRecord record = before;
    record.Z0 += 1;
    writeport(area(), 1, record);
    OwnMade made;
    made.how = OwnHow::corrected;
    made.date = "2026-03-03";
    ASSERT_TRUE(noteport(session.folders, area(), 1, before, record, made));
    const PlanView view = opened();
    EXPECT_EQ(plantitle(view, scripted.locale), "Alder Quay, 9 to 15 April 2024, port's clock (Europe/London)");
    EXPECT_EQ(planfoot(view),
              "Times by the port's clock (Europe/London); heights in metres above chart datum; entered by you on 3 "
              "March 2026. Predictions: weather isn't counted.");
}

TEST_F(PlanViewTest, SpansHaveTheHoursOfTheirDays) {
    PlanView view = opened();
    const struct {
        Date first;
        int days;
        ClockChoice clock;
        std::chrono::hours hours;
        const char* dates;
    } rows[] = {{makedate(2026, 3, 29), 1, ClockChoice::port, 23h, "29 March 2026"},
                {makedate(2026, 10, 25), 1, ClockChoice::port, 25h, "25 October 2026"},
                {makedate(2026, 3, 28), 3, ClockChoice::port, 71h, "28 to 30 March 2026"},
                {makedate(2026, 10, 20), 31, ClockChoice::port, 745h, "20 October to 19 November 2026"},
                {makedate(2026, 10, 25), 2, ClockChoice::zone, 48h, "25 to 26 October 2026"},
                {makedate(2026, 3, 29), 0, ClockChoice::ut, 24h, "29 March 2026"},
                {makedate(2026, 12, 29), 99, ClockChoice::ut, 744h, "29 December 2026 to 28 January 2027"}};
    for (const auto& row : rows) {
        showclock(context, view, row.clock);
        showdays(context, view, row.first, row.days);
        EXPECT_EQ(view.to - view.from, row.hours) << row.days;
        const PortClock& clock = view.plan->clock();
        EXPECT_EQ(plantitle(view, scripted.locale),
                  std::string("Alder Quay, ") + row.dates + ", " + clock.description());
        for (Date date = row.first; clock.startof(date) < view.plan->ends(); date += days(1)) {
            showday(view, date);
            EXPECT_EQ(clock.at(view.from - 1s).date, date - days(1));
            EXPECT_EQ(clock.at(view.from).date, date);
            EXPECT_EQ(clock.at(view.to - 1s).date, date);
            EXPECT_EQ(clock.at(view.to).date, date + days(1));
        }
    }
}

TEST_F(PlanViewTest, AStepOfDaysShowsTheSameHoursOfTheNext) {
    PlanView view = opened();
    showdays(context, view, makedate(2026, 10, 23), 4);
    const PortClock clock = view.plan->clock();
    showday(view, makedate(2026, 10, 24));
    for (const int by : {1, 1, -2}) {
        const Date date = clock.at(view.from).date + days(by);
        stepdays(context, view, by);
        EXPECT_EQ(view.from, clock.startof(date)) << "also over the day of 25 hours";
        EXPECT_EQ(view.to, clock.startof(date + days(1)));
    }
    EXPECT_EQ(view.first, makedate(2026, 10, 23));
    showwhole(view);
    stepdays(context, view, 7);
    EXPECT_EQ(view.from, view.plan->begins());
    EXPECT_EQ(view.to, view.plan->ends());
}

TEST_F(PlanViewTest, ThePartShownStaysInside) {
    PlanView view = opened();
    const auto expectinside = [&] {
        EXPECT_TRUE(view.from >= view.plan->begins() && view.to <= view.plan->ends() && view.to - view.from >= 3h);
    };
    for (const auto& [first, count] : {std::pair{makedate(2026, 3, 29), 1}, {makedate(2026, 10, 24), 31}}) {
        showdays(context, view, first, count);
        for (const double factor : {0.5, 1e-9, 1.25, 1e9, 0.01, 0.7, 0.0}) {
            for (const int part : {0, 3, 10}) {
                const Moment about = view.from + (view.to - view.from) * part / 10;
                zoomplan(view, factor, about);
                expectinside();
                if (view.from > view.plan->begins() && view.to < view.plan->ends()) {
                    EXPECT_NEAR(double((about - view.from) / 1s), part / 10.0 * double((view.to - view.from) / 1s), 60);
                }
            }
            for (const auto by : {-99999h, 1h, 99999h, -2h}) {
                const auto shown = view.to - view.from;
                moveplan(view, by);
                expectinside();
                EXPECT_EQ(view.to - view.from, shown) << "only moved";
                const Moment other = view.plan->ends() - by;
                putcursor(view, other);
                expectinside();
                EXPECT_EQ(view.cursor, std::clamp(other, view.plan->begins(), view.plan->ends()));
                EXPECT_TRUE(view.cursor >= view.from && view.cursor <= view.to);
            }
        }
    }
    showdays(context, view, view.first + days(40), 1);
    EXPECT_FALSE(view.cursor) << "no cursor on days that aren't shown";
    showdays(context, view, view.first, 14);
    showday(view, view.first);
    putcursor(view, view.from + days(7));
    EXPECT_EQ(*view.cursor - view.from, view.to - *view.cursor) << "what is leapt to is in the middle";
    for (const auto step : {13h, -25h}) {
        putcursor(view, *view.cursor + step);
        EXPECT_EQ(*view.cursor, step > 0h ? view.to : view.from) << "what is walked to is at the edge";
    }
}

TEST_F(PlanViewTest, TheEndsOfTheCalendarHold) {
    PlanView view = opened();
    for (const Date first : {makedate(-5, 1, 1), makedate(1, 1, 1), makedate(99, 12, 31), makedate(1100, 6, 1),
                             makedate(9999, 12, 31), makedate(20000, 1, 1)})
        for (const int count : {1, 31})
            for (const ClockChoice clock : {ClockChoice::port, ClockChoice::zone}) {
                showclock(context, view, clock);
                showdays(context, view, first, count);
                const int shown = view.plan->planof().days;
                EXPECT_TRUE(yearof(view.first) >= 1 && yearof(view.first + days(shown - 1)) <= 9999);
                if (yearof(first) >= 99) {
                    EXPECT_EQ(view.first, std::min(first, makedate(9999, 12, 31)));
                }
                EXPECT_EQ(shown, yearof(first) > 2000 ? 1 : count) << "none behind the last of all";
                EXPECT_EQ(view.plan->clock().at(view.from).date, view.first);
                EXPECT_FALSE(answertext(view, scripted.locale).empty());
                EXPECT_FALSE(plantitle(view, scripted.locale).empty());
                EXPECT_EQ(suntable(*view.plan, scripted.locale).rows.size(), static_cast<std::size_t>(shown));
            }
}

TEST_F(PlanViewTest, AWholeYearIsOneEvenAtTheEndsOfTheCalendar) {
    for (const Date first : {makedate(1, 1, 2), makedate(2024, 4, 9), makedate(9999, 12, 1)}) {
        PlanView view = opened();
        showdays(context, view, first, 7);
        const PlanView year = yearview(context, view);
        EXPECT_GT(year.plan->waters().size(), 1170U) << yearof(first);
        EXPECT_EQ(view.settings.days, 7);
    }
}

TEST_F(PlanViewTest, ADayThatTheClockLeavesOutIsTold) {
    replacefile(session.folders.programfolder + "/uk-about.csv",
                std::string("number,name,country,timezone,datum,record_from,record_to,licence,source,"
                            "time_error_median_min,time_error_p90_min,height_error_median_m,height_error_p90_m,"
                            "mean_range_m\n1,Alder Quay,WS,Pacific/Apia,LAT,,,,,1,1,1,1,1\n"));
    PlanView view = opened();
    askquestion(context, view, {"1.9", "0.5", "-1", "", "", "", ""});
    showdays(context, view, makedate(2011, 12, 30), 1);
    EXPECT_EQ(answertext(view, scripted.locale),
              "The clock leaves this day out, it does not exist there; the level needed is 3.40 m.");
    for (const double factor : {0.5, 2.0})
        zoomplan(view, factor, view.from);
    EXPECT_EQ(view.to, view.from);
    EXPECT_EQ(tidestable(*view.plan, scripted.locale).rows.at(0).cells.at(1), "no such day");
    EXPECT_EQ(suntable(*view.plan, scripted.locale).rows.at(0).cells.at(1), "no such day");
    showdays(context, view, makedate(2011, 12, 29), 3);
    EXPECT_EQ(view.to - view.from, 48h);
    EXPECT_NE(answertext(view, scripted.locale).find("One of these days is left out"), std::string::npos);
    const auto rows = tidestable(*view.plan, scripted.locale).rows;
    const auto leftout = std::find_if(rows.begin(), rows.end(), [](const auto& each) { return each.keys[2] == 0; });
    ASSERT_TRUE(leftout != rows.end() && leftout != rows.begin());
    EXPECT_TRUE((leftout - 1)->moment < leftout->moment && leftout->moment <= (leftout + 1)->moment);
    showday(view, makedate(2011, 12, 30));
    EXPECT_EQ(view.to - view.from, 48h) << "there is nothing of it to show";
}

TEST_F(PlanViewTest, ACopiedTableTellsWhatItIsOf) {
    PlanView view = opened();
    askquestion(context, view, {"1.9", "0.5", "-1", "", "", "", ""});
    showdays(context, view, makedate(2025, 12, 31), 2);
    const struct {
        PlanTable table;
        const char *heads, *dated;
    } rows[] = {{tidestable(*view.plan, scripted.locale), "Day\tTime\tHeight\tWater\t", "\nThu 1 Jan 2026\t"},
                {accesstable(*view.plan, view.access, *passageof(view), scripted.locale), "Opens\tCloses\tFor\t",
                 "\tThu 1 Jan 2026 "},
                {suntable(*view.plan, scripted.locale), "Day\tFirst light\t", "\nThu 1 Jan 2026\t"}};
    for (const auto& row : rows) {
        copyplantable(context, view, row.table);
        const std::string text = scripted.clipboard.text();
        EXPECT_TRUE(text.starts_with(
            "Alder Quay, 31 December 2025 to 1 January 2026, port's clock (Europe/London); heights in metres above "
            "chart datum\n" +
            std::string(row.heads)))
            << text;
        EXPECT_NE(text.find(row.dated), std::string::npos) << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\t'),
                  std::ptrdiff_t((row.table.headings.size() - 1) * (row.table.rows.size() + 1)));
    }
}

TEST_F(PlanViewTest, DaysThatBeginTodayFollowOverMidnight) {
    scripted.clock.set(2024, 4, 9, 22, 59);
    PlanView view = opened();
    EXPECT_FALSE(followmidnight(context, view));
    scripted.clock.set(2024, 4, 9, 23, 0);
    EXPECT_TRUE(followmidnight(context, view)) << "summer time";
    EXPECT_EQ(view.first, makedate(2024, 4, 10));
    EXPECT_FALSE(followmidnight(context, view));
    showclock(context, view, ClockChoice::ut);
    EXPECT_FALSE(followmidnight(context, view));
    scripted.clock.set(2024, 4, 10, 0, 0);
    EXPECT_FALSE(followmidnight(context, view)) << "its days begin tomorrow";
    EXPECT_EQ(view.first, makedate(2024, 4, 10));
    scripted.clock.set(2024, 4, 14, 6, 0);
    EXPECT_TRUE(followmidnight(context, view)) << "the computer slept";
    EXPECT_EQ(view.first, makedate(2024, 4, 14));
}

TEST_F(PlanViewTest, DaysThatBeginTodayDoSoAtAPortWithAnotherDate) {
    // Auckland's clocks, or as near as a zone letter comes: a day ahead of London's in the afternoon.
    writeport(area(), 5, fixtureport("Far Cove", 4, "W"));
    scripted.clock.set(2024, 1, 9, 14, 0);
    PlanView view = opened();
    showdays(context, view, makedate(2024, 1, 9), 7);
    for (const auto& [port, date] : {std::pair(5, 10U), {1, 9U}}) {
        session.settings.currentport = static_cast<std::int16_t>(port);
        EXPECT_TRUE(followport(context, view));
        EXPECT_EQ(view.first, makedate(2024, 1, date)) << port;
        EXPECT_EQ(view.plan->begins(), view.from) << port;
    }
    session.settings.currentport = 5;
    session.onshow.tidedate = makedate(2024, 1, 9);
    EXPECT_EQ(opened().first, makedate(2024, 1, 10));
    session.onshow.tidedate = makedate(2024, 1, 8);
    EXPECT_EQ(opened().first, makedate(2024, 1, 8));
    session.settings.currentport = 1;
    EXPECT_FALSE(followport(context, view));
    showdays(context, view, makedate(2024, 1, 12), 7);
    session.settings.currentport = 5;
    EXPECT_TRUE(followport(context, view));
    EXPECT_EQ(view.first, makedate(2024, 1, 12)) << "days that were chosen stay";
}

TEST_F(PlanViewTest, ARefusalChangesNothing) {
    PlanView view = opened();
    askquestion(context, view, {"1.9", "0.5", "-1", "", "", "", ""});
    const std::string answered = answertext(view, scripted.locale);
    const std::size_t windows = view.access.windows.size();
    EXPECT_GT(windows, 5U);
    askquestion(context, view, {"deep", "9", "9", "", "", "", ""});
    EXPECT_EQ(answertext(view, scripted.locale), "\u26A0 Draught: write metres from 0 to 50, not \u201Cdeep\u201D");
    EXPECT_EQ(view.access.windows.size(), windows);
    EXPECT_EQ(passageof(view)->clearance, 0.5);
    EXPECT_EQ(view.settings.bottoms.at("UK.hc/Alder Quay#1"), -1);
    askquestion(context, view, {"1.9", "0.5", "-1", "", "", "", ""});
    EXPECT_EQ(answertext(view, scripted.locale), answered);
    // As is what was stored before.
    session.settings.userdepth = 1100;
    view.settings.bottoms.clear();
    EXPECT_TRUE(followport(context, view));
    EXPECT_EQ(answertext(view, scripted.locale), "\u26A0 Bottom: write metres from -50 to 1000, not \u201C1100\u201D");
    EXPECT_FALSE(passageof(view)) << "no boat of nothing is answered for";
    showdays(context, view, view.first, 3);
    EXPECT_FALSE(view.access.always || view.access.never || !view.access.windows.empty());
    view.settings.asked = false;
    answeranew(view);
    EXPECT_EQ(answertext(view, scripted.locale), "");
}

TEST_F(PlanViewTest, DaysChosenThatLieOutsideAreTold) {
    PlanView view = opened();
    askquestion(context, view, {"1.9", "0.5", "-1", "", "", "", ""});
    view.settings.weekdays = 1U << 6;
    const char* none = "None of these days is one of those chosen.";
    showdays(context, view, makedate(2024, 4, 9), 1);
    EXPECT_EQ(answertext(view, scripted.locale), none) << "a Tuesday alone";
    showdays(context, view, makedate(2024, 4, 9), 5);
    EXPECT_NE(answertext(view, scripted.locale).find("Sat 13 Apr"), std::string::npos);
    view.settings.leastminutes = 1440;
    answeranew(view);
    EXPECT_NE(answertext(view, scripted.locale), none) << "a Saturday is among them";
}

TEST_F(PlanViewTest, ThePresentTideIsOfItsPortClockAndDay) {
    PresentTide present;
    const HarmonicRecord alder = readport(area(), 1), cedar = readport(area(), 3);
    const auto heightat = [&](const HarmonicRecord& port, const char* zone, ClockChoice clock, Moment at) {
        const Plan& plan = present.at(port, zone, clock, scripted.zones, at);
        EXPECT_EQ(plan.clock().at(at).date, plan.planof().first);
        EXPECT_EQ(plan.planof().clock, clock);
        EXPECT_EQ(&plan, &present.at(port, zone, clock, scripted.zones, at + 1s)) << "made once";
        return plan.now(at).value().height;
    };
    const Moment night = Moment(makedate(2026, 7, 14)) + 23h + 30min;
    const double height = heightat(alder, "Europe/London", ClockChoice::port, night);
    EXPECT_NEAR(heightat(cedar, "Europe/London", ClockChoice::port, night), height + 2, 1e-5);
    EXPECT_EQ(heightat(alder, "Europe/London", ClockChoice::ut, night), height);
    EXPECT_EQ(heightat(alder, "", ClockChoice::zone, night), height);
    EXPECT_EQ(heightat(alder, "", ClockChoice::ut, night), height);
    EXPECT_NE(heightat(alder, "", ClockChoice::ut, night + 24h), height);
}

}  // namespace
}  // namespace tarvane::tests
