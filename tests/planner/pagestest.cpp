// The planner's pages as they are laid out: what stands where, on both papers.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "fakes/recordingcanvas.h"
#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "paint/colours.h"
#include "planner/almanacyear.h"
#include "planner/planpages.h"
#include "planner/plantexts.h"
#include "platform/systemzones/systemzones.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using fakes::RecordingCanvas;

const SystemZones pagezones;
const ScriptedLocale english;

/// What the printer leaves of A4 and Letter, upright.
constexpr double papers[][2] = {{713.7, 1042.5}, {736, 976}};

PageOf pageof(const std::string& name, const char* iana) {
    PageOf of;
    for (const HarmonicRecord& port : tests::shippedports())
        if (trim(port.PortName) == name) of.port = port;
    EXPECT_NE(of.port.Z0, 0) << name;
    of.iana = iana;
    of.number = 84;
    of.area = "UK";
    return of;
}

/// A port whose name is as long as a record holds, and whose water never turns.
PageOf flatport() {
    PageOf of;
    of.port = tests::roundport();
    of.port.PortName = "Upper Wittering Marina, Outer Basin";
    of.port.M2Hm = of.port.S2Hm = of.port.K1Hm = of.port.O1Hm = 0;
    of.port.MHm2.fill(0);
    of.port.DeltaZ0.fill(0);
    return of;
}

std::vector<RecordingCanvas::Text> painted(const Booklet& booklet, int page, const double (&paper)[2]) {
    RecordingCanvas canvas;
    const double width = booklet.landscape ? paper[1] : paper[0], height = booklet.landscape ? paper[0] : paper[1];
    booklet.paint(page, canvas, {0, 0, width, height});
    for (const RecordingCanvas::Text& each : canvas.texts) {
        EXPECT_TRUE(each.area.left >= -0.1 && each.area.top >= -0.1 && each.area.right <= width + 0.1 &&
                    each.area.bottom <= height + 0.1)
            << booklet.title << ", page " << page << ": " << each.text;
    }
    return canvas.texts;
}

bool collide(const Area& one, const Area& other) {
    constexpr double touching = 0.3;
    return one.left < other.right - touching && other.left < one.right - touching &&
           one.top < other.bottom - touching && other.top < one.bottom - touching;
}

/// `picture`: the labels within the page's picture, all middled, stand as that has them.
void expectlegible(const Booklet& booklet, bool picture = false) {
    for (const auto& paper : papers)
        for (int page = 0; page < booklet.pages; ++page) {
            auto texts = painted(booklet, page, paper);
            if (picture) std::erase_if(texts, [](const auto& each) { return each.look.anchor == Anchor::middle; });
            EXPECT_GE(texts.size(), 10U);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                EXPECT_GE(texts[i].look.size * 0.75, 6.5) << texts[i].text;
                for (std::size_t j = i + 1; j < texts.size(); ++j)
                    EXPECT_FALSE(collide(texts[i].area, texts[j].area))
                        << booklet.title << ", page " << page << ": " << texts[i].text << " / " << texts[j].text;
            }
        }
}

TEST(Pages, NoTextLiesOnAnotherOrLeavesThePaper) {
    PageOf boat = pageof("Cherbourg", "Europe/Paris");
    boat.passage = Passage{1.5, 0.5, -2, 20.5, 18, 6.4};
    boat.wishes = {Daylight::whole, 60};
    const PageOf ports[] = {boat, pageof("Southampton", "Europe/London"), pageof("Swanage", ""),
                            pageof("Avonmouth", "Europe/London"), flatport()};
    const int months[][2] = {{2027, 2}, {2026, 3}, {2026, 8}, {2027, 10}, {1990, 1}};  // of four to six weeks
    for (const PageOf& port : ports) {
        for (const auto& [year, month] : months)
            expectlegible(monthpage(port, year, month, pagezones, english));
        expectlegible(almanac(port, 2027, pagezones, english));
        for (const int days : {1, 7, 14, 31, 366})
            expectlegible(spanpage(port, makedate(2027, 10, 20), days, pagezones, english), true);
    }
}

const std::regex timeofday(R"((\d\d:\d\d)(\*?))");

std::string shown(const Plan& plan, const PlannedWater& water) {
    const std::string iso = isomoment(plan.clock().at(water.moment));
    return iso.substr(8, 2) + " " + iso.substr(11, 5) + (water.water.high ? " high" : " low");
}

/// Day, time and kind of all waters of a month's page: a cell begins at its day's number.
std::multiset<std::string> watersoncalendar(const std::vector<RecordingCanvas::Text>& texts) {
    std::multiset<std::string> found;
    for (const RecordingCanvas::Text& text : texts) {
        std::smatch time;
        if (!std::regex_match(text.text, time, timeofday)) continue;
        const RecordingCanvas::Text* number = nullptr;
        for (const RecordingCanvas::Text& each : texts) {
            if (each.look.size != 14 || each.area.top > text.area.top || each.area.left > text.area.left + 1) continue;
            if (!number || each.area.top > number->area.top + 1 ||
                (each.area.top > number->area.top - 1 && each.area.left > number->area.left))
                number = &each;
        }
        if (!number) ADD_FAILURE() << text.text;
        const std::string day = number ? std::to_string(100 + std::stoi(number->text)).substr(1) : "";
        found.insert(day + " " + time[1].str() + (text.look.bold ? " high" : " low"));
    }
    return found;
}

/// The name over the column in which a day's number stands.
std::string weekdayover(const std::vector<RecordingCanvas::Text>& texts, int day) {
    double left = -1;
    for (const RecordingCanvas::Text& each : texts)
        if (each.look.size == 14 && std::stoi(each.text) == day) left = each.area.left;
    const RecordingCanvas::Text* over = nullptr;
    for (const RecordingCanvas::Text& each : texts) {
        const bool name = std::find(english.days.begin(), english.days.end(), each.text) != english.days.end();
        const double column = (each.area.left + each.area.right) / 2 - papers[0][1] / 14;
        if (name && std::abs(column - left) < 20) over = &each;
    }
    return over ? over->text : "";
}

TEST(Pages, AMonthHasEachOfItsWatersOnItsDay) {
    const struct {
        const char *port, *zone;
        int year;
        unsigned month;
    } rows[] = {{"Cherbourg", "Europe/Paris", 2026, 3},
                {"Dover", "Europe/London", 2027, 10},
                {"Southampton", "Europe/London", 2026, 8},
                {"Newlyn", "America/St_Johns", 2026, 11}};
    for (const auto& row : rows) {
        const PageOf of = pageof(row.port, row.zone);
        const Date first = makedate(row.year, static_cast<int>(row.month), 1);
        const Plan plan({of.port, of.iana, first, DaysInMonth(row.year, static_cast<int>(row.month))}, pagezones);
        std::multiset<std::string> expected;
        for (const PlannedWater& each : plan.waters())
            expected.insert(shown(plan, each));
        const Booklet page = monthpage(of, row.year, static_cast<int>(row.month), pagezones, english);
        for (const auto& paper : papers)
            EXPECT_EQ(watersoncalendar(painted(page, 0, paper)), expected) << row.port;
        const auto texts = painted(page, 0, papers[0]);
        for (int day = 1; day <= plan.planof().days; ++day) {
            const auto weekday = static_cast<std::size_t>(weekdayof(first + std::chrono::days(day - 1)));
            EXPECT_EQ(weekdayover(texts, day), english.days[weekday]) << row.port << day;
        }
    }
}

TEST(Pages, AnAlmanacHasAllWatersOfTheYearByTheMonth) {
    const PageOf of = pageof("Southampton", "Europe/London");
    const Booklet booklet = almanac(of, 2028, pagezones, english);
    ASSERT_EQ(booklet.pages, 13);
    const Plan plan({of.port, of.iana, makedate(2028, 1, 1), 366}, pagezones);
    std::map<int, std::multiset<std::string>> expected;
    for (const PlannedWater& each : plan.waters())
        expected[monthof(plan.clock().at(each.moment).date)].insert(shown(plan, each).substr(3));
    for (int month = 1; month <= 12; ++month) {
        std::multiset<std::string> found;
        for (const RecordingCanvas::Text& each : painted(booklet, month - 1, papers[1])) {
            std::smatch time;
            if (each.look.colour == coloursof(Lighting::day).text && std::regex_match(each.text, time, timeofday))
                found.insert(time[1].str() + (each.look.bold ? " high" : " low"));
        }
        EXPECT_EQ(found, expected[month]) << month;
    }
}

std::size_t counted(const std::vector<RecordingCanvas::Text>& texts, const std::string& part) {
    return static_cast<std::size_t>(std::count_if(
        texts.begin(), texts.end(), [&part](const auto& each) { return each.text.find(part) != std::string::npos; }));
}

TEST(Pages, ADayWithoutAPredictionSaysSo) {
    const PageOf port = pageof("Dover", "Europe/London");
    for (const Booklet& page :
         {monthpage(port, 1990, 1, pagezones, english), almanac(port, 1990, pagezones, english)}) {
        const auto texts = painted(page, 0, papers[0]);
        EXPECT_EQ(counted(texts, "no prediction"), 2U) << page.title;
        EXPECT_EQ(counted(texts, "no high or low water"), 0U);
        EXPECT_EQ(counted(texts, "The method has no constants"), 1U);
    }
    EXPECT_EQ(counted(painted(almanac(flatport(), 2026, pagezones, english), 12, papers[0]), "no springs"), 1U);
    const auto flat = painted(monthpage(flatport(), 2026, 2, pagezones, english), 0, papers[0]);
    EXPECT_EQ(counted(flat, "no high or low water"), 28U);
    EXPECT_EQ(counted(flat, "prediction"), 0U);
    EXPECT_EQ(counted(painted(almanac(flatport(), 2026, pagezones, english), 8, papers[0]), "Marina, Outer Basin"), 1U);
}

TEST(Pages, AStandIsMarkedAndTheAreaIsToldWithoutItsEnding) {
    PageOf of = pageof("Southampton", "Europe/London");
    of.area = "UK.hc";
    const Plan plan({of.port, of.iana, makedate(2026, 11, 24), 2}, pagezones);
    const auto stands = std::count_if(plan.waters().begin(), plan.waters().end(),
                                      [](const PlannedWater& each) { return each.water.stand; });
    const auto texts = painted(spanpage(of, makedate(2026, 11, 24), 2, pagezones, english), 0, papers[0]);
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(), [](const auto& each) { return each.text == "st"; }), stands);
    EXPECT_GT(stands, 0);
    EXPECT_EQ(counted(texts, "no. 84 of UK"), 1U);
    EXPECT_EQ(counted(texts, ".hc"), 0U);
}

TEST(Pages, ASpanTellsItsWatersAndTheAnswer) {
    PageOf boat = pageof("Dover", "Europe/London");
    boat.passage = Passage{1.5, 0.5, -2, std::nullopt, 0, 0};
    const Date first = makedate(2027, 10, 28);
    const struct {
        PageOf of;
        Date first;
        int days;
    } rows[] = {{boat, first, 7}, {pageof("Southampton", "Europe/London"), makedate(2027, 10, 3), 6}};
    for (const auto& row : rows) {
        const Plan plan({row.of.port, row.of.iana, row.first, row.days}, pagezones);
        std::multiset<std::string> found, expected;
        // Those of the picture are middled.
        for (const auto& each : painted(spanpage(row.of, row.first, row.days, pagezones, english), 0, papers[0])) {
            std::smatch time;
            if (std::regex_match(each.text, time, timeofday) && each.look.anchor == Anchor::left)
                found.insert(time[1].str() + (each.look.bold ? " high" : " low"));
        }
        for (const PlannedWater& each : plan.waters())
            expected.insert(shown(plan, each).substr(3));
        EXPECT_EQ(found, expected);
    }
    const auto texts = painted(spanpage(boat, first, 7, pagezones, english), 0, papers[0]);
    EXPECT_EQ(counted(texts, "4.0 m of tide needed"), 1U);
    EXPECT_EQ(counted(texts, " to Sun 02:59 GMT"), 1U);  // a window that closes behind the change of the clock

    // Windows of more than three weeks: each has room, in fewer words.
    const Plan month({boat.port, boat.iana, makedate(2027, 10, 1), 25}, pagezones);
    for (const auto& paper : papers) {
        const auto close = painted(spanpage(boat, makedate(2027, 10, 1), 25, pagezones, english), 0, paper);
        EXPECT_EQ(counted(close, " more"), 0U);
        for (const PlannedWindow& each : month.access(*boat.passage, {}, false).windows)
            EXPECT_TRUE(each.window.cutatstart || each.window.cutatend ||
                        counted(close, plainclock(month.clock(), each.opens) + " to ") >= 1);
    }
    boat.passage->bottom = -20;
    const auto never = painted(spanpage(boat, first, 7, pagezones, english), 0, papers[0]);
    EXPECT_EQ(counted(never, "Never in these days"), 1U);
    EXPECT_EQ(counted(never, "Opens"), 0U);
    const auto year = painted(spanpage(boat, first, 366, pagezones, english), 0, papers[0]);
    EXPECT_EQ(counted(year, "No room here for the waters of the last "), 1U);
}

/// The stars of a day whose hour from 01:00 to 02:00 comes twice: none before 01:00 UT, then all.
TEST(Pages, TimesBehindAChangeOfTheClockAreMarked) {
    const Booklet page = monthpage(pageof("Dover", "Europe/London"), 2027, 10, pagezones, english);
    const auto texts = painted(page, 0, papers[0]);
    EXPECT_EQ(counted(texts, "31*"), 1U);
    EXPECT_EQ(counted(texts, "00:21*"), 0U);
    for (const char* behind : {"06:59*", "11:38*", "19:18*"})
        EXPECT_EQ(counted(texts, behind), 1U) << behind;
    EXPECT_EQ(counted(texts, "*"), 5U);  // and the foot
    EXPECT_GE(counted(texts, "goes back from UT+1 to UT at 02:00"), 1U);
    // The program's own rule changes the clock at midnight: all times of that day are behind it.
    const auto midnight = painted(monthpage(pageof("Dover", ""), 2027, 3, pagezones, english), 0, papers[0]);
    EXPECT_EQ(counted(midnight, "*"), 2U);
}

}  // namespace
}  // namespace tarvane
