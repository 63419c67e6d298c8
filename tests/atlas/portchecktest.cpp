// An official table's waters held against the prediction: which water is meant, on which clock, and what it comes to.
#include "atlas/portcheck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "dates/isomoments.h"
#include "engine/waters.h"
#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "platform/systemzones/systemzones.h"

namespace tarvane::tests {
namespace {

using std::chrono::minutes;

struct PortCheckTest : testing::Test {
    PortCheckTest() { port.TimeZoneLetter = "L"; }

    /// The `place`th water of 14 July 2026 as a table has it that is off by so many minutes and metres.
    TableWater typed(std::size_t place, int late = 0, double high = 0, minutes ahead = {}) const {
        const Date day = makedate(2026, 7, 14);
        const Water water = watersof(port, day, 3).at(place);
        const auto moment = day + minutes(std::lround(water.hours * 60) - late) + ahead;
        const auto date = std::chrono::floor<std::chrono::days>(moment);
        const long minute = std::chrono::duration_cast<minutes>(moment - date).count();
        char time[64], height[64];
        std::snprintf(time, sizeof time, "%02ld:%02ld", minute / 60, minute % 60);
        std::snprintf(height, sizeof height, "%.4f", water.height - high);
        return {isodate(date), time, height, ""};
    }

    CheckResult checked(const std::vector<TableWater>& waters, TableClock clock = TableClock::zone) const {
        return checkwaters(port, "Europe/London", {clock, waters}, zones);
    }

    HarmonicRecord port = roundport();
    SystemZones zones;
};

TEST_F(PortCheckTest, DifferencesAreThePredictionsLessTheTables) {
    const CheckResult result = checked({typed(0, -5, 0.06), typed(1, 3, -0.1), typed(2, -11, 0.01)});
    ASSERT_EQ(result.compared, 3);
    const int late[] = {-5, 3, -11};
    const double high[] = {0.06, -0.1, 0.01};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(result.waters[i].minutes, late[i]) << i;
        EXPECT_NEAR(result.waters[i].metres, high[i], 1e-4) << i;
        EXPECT_EQ(result.waters[i].high, watersof(port, makedate(2026, 7, 14), 3)[i].high) << i;
    }
    EXPECT_NEAR(result.meanminutes, -13 / 3.0, 1e-9);
    EXPECT_EQ(
        checkwords(result),
        "Checked by you against 3 waters of 2026: the prediction is on the mean 4 min early, 0.01 m low; at worst "
        "it differs by 11 min, 0.10 m");
    EXPECT_EQ(result.hint, "");
    EXPECT_EQ(differencewords(0.4, 0.004), "on time, as high");
    EXPECT_EQ(differencewords(12, -0.005), "12 min late, 0.01 m low");
    EXPECT_EQ(checkwords(checked({})), "");
}

TEST_F(PortCheckTest, AWaterIsMeantOnTheTablesOwnClock) {
    port.TimeZoneLetter = "M";  // an hour ahead
    const struct {
        TableClock clock;
        int ahead;  // of the port's zone time, minutes
    } rows[] = {{TableClock::zone, 0}, {TableClock::ut, -60}, {TableClock::port, 0}};
    for (const auto& [clock, ahead] : rows) {
        const CheckResult result = checked({typed(0, 2, 0, minutes(ahead)), typed(3, 2, 0, minutes(ahead))}, clock);
        ASSERT_EQ(result.compared, 2) << ahead;
        EXPECT_EQ(result.waters[0].minutes, 2) << ahead;
        EXPECT_EQ(result.waters[1].minutes, 2) << ahead;
    }
    // 01:30 of that night is left out in London, and comes twice in October.
    const auto fault = [&](const char* date) { return checked({{date, "01:30", "1", ""}}, TableClock::port).waters; };
    EXPECT_EQ(fault("2026-03-29").at(0).fault, "The clocks leave this time out on that day");
    EXPECT_EQ(fault("2026-10-25").at(0).given, makedate(2026, 10, 25) + minutes(30));
}

TEST_F(PortCheckTest, ALineThatCantBeMeantSaysWhyAndIsLeftOut) {
    const std::string date = "2026-07-14";
    const struct {
        TableWater line;
        const char* fault;
    } rows[] = {{{"", "06:12", "5.4", ""}, "No date: type one such as 2026-07-14"},
                {{"2026-02-30", "06:12", "5.4", ""}, "No date: type one such as 2026-07-14"},
                {{date, "25:12", "5.4", ""}, "No time: type one such as 06:12"},
                {{date, "06:60", "5.4", ""}, "No time: type one such as 06:12"},
                {{date, "", "5.4", ""}, "No time: type one such as 06:12"},
                {{date, "06:12", "high", ""}, "No height: type metres such as 5.4"},
                {{date, "06:12", "54", ""}, "No height: type metres such as 5.4"},
                {{date, "06:12", "nan", ""}, "No height: type metres such as 5.4"},
                {{date, "06:12", "5.4", "slack"}, "Type high or low, or nothing"},
                {{"", " ", "", ""}, emptyline}};
    for (const auto& [line, fault] : rows) {
        const CheckResult result = checked({line, typed(1, 4)});
        EXPECT_EQ(result.waters[0].fault, fault) << line.date << " " << line.time << " " << line.height;
        EXPECT_EQ(result.compared, 1);
    }
    for (const std::size_t place : {0, 1}) {
        TableWater other = typed(place);
        const bool high = checked({other}).waters[0].high;
        other.kind = high ? "LW" : "H";
        EXPECT_EQ(checked({other}).waters[0].fault,
                  std::string("No ") + (high ? "low" : "high") + " water is predicted within 3 hours");
    }
    // A line without a date is of the day of the one before; times and heights as they are written elsewhere.
    TableWater later = typed(1, 7);
    later.date.clear();
    later.time.erase(2, 1);
    later.height[later.height.find('.')] = ',';
    EXPECT_EQ(checked({typed(0), later}).waters[1].minutes, 7);
}

TEST_F(PortCheckTest, WhatAllWatersShareIsNamed) {
    const auto hint = [&](int late, double high, std::size_t count) {
        std::vector<TableWater> lines;
        for (std::size_t i = 0; i < count; ++i)
            lines.push_back(typed(i, late + (i % 2 ? 3 : -3), high + (i % 2 ? 0.02 : -0.02)));
        return checked(lines).hint;
    };
    EXPECT_EQ(hint(0, -0.12, 4), "The table's heights are 0.12 m above the prediction's on average: another datum?");
    EXPECT_EQ(hint(60, 0, 4), "The table's times are 60 minutes ahead of the prediction's on average: another clock?");
    EXPECT_EQ(hint(0, 0.12, 2), "") << "too few to tell";
    EXPECT_EQ(hint(5, 0.03, 4), "");
    EXPECT_EQ(checked({typed(0, 0, -0.3), typed(1), typed(2, 0, -0.3), typed(3)}).hint, "") << "not common to all";
}

TEST(PastedWaters, LinesAreReadAsTablesHaveThem) {
    const struct {
        const char* text;
        TableWater line;
    } rows[] = {{"06:12 5.4", {"", "06:12", "5.4", ""}},
                {"2026-07-14\t06:12\t5,4\tHW\r", {"2026-07-14", "06:12", "5,4", "high"}},
                {"14/07/2026,06:12,5.4", {"14/07/2026", "06:12", "5.4", ""}},
                {"14 Jul 2026 0612 5.4m", {"14 Jul 2026", "0612", "5.4", ""}},
                {"LW 18:03 0.8 m", {"", "18:03", "0.8", "low"}},
                {"14.07.2026;18:03;-0,2", {"14.07.2026", "18:03", "-0,2", ""}},
                {"2026-07-14, 18:03, 1.1, low", {"2026-07-14", "18:03", "1.1", "low"}}};
    for (const auto& [text, line] : rows) {
        const auto lines = pastedwaters(std::string("Date Time Height\n") + text + "\n\n");
        ASSERT_EQ(lines.size(), 1U) << text;
        EXPECT_EQ(lines[0], line) << text << ": " << lines[0].date << "|" << lines[0].time << "|" << lines[0].height
                                  << "|" << lines[0].kind;
    }
}

}  // namespace
}  // namespace tarvane::tests
