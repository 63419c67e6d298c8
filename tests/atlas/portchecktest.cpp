// An official table's waters held against the prediction: which water is meant, on which clock, and what it comes to.
#include "atlas/portcheck.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <tuple>

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
        "Checked by you against 3 waters of 2026: on the mean the prediction is 4 min early and 0.01 m too low; at "
        "worst it is off by 11 min and 0.10 m");
    EXPECT_EQ(checkwords(checked({typed(0)})),
              "Checked by you against 1 water of 2026: the prediction is on time and as high as the table");
    EXPECT_TRUE(checkwords(checked({typed(0), typed(1)})).ends_with("; none is off by more"));
    EXPECT_TRUE(checkwords(checked({typed(0, 4), typed(1, 4)})).ends_with("; at worst it is off by 4 min"));
    EXPECT_EQ(result.hint, "");
    for (const auto& [off, metres, words] : {std::tuple(0.4, 0.004, "on time and as high as the table"),
                                             {-12.0, 0.0, "12 min early and as high as the table"},
                                             {0.0, 0.07, "on time but 0.07 m too high"},
                                             {12.0, -0.005, "12 min late and 0.01 m too low"}})
        EXPECT_EQ(differencewords(off, metres), words);
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
    const auto water = checked({{"2026-07-14", "24:00", "1", ""}, {"2026-07-15", "00:00", "1", ""}}).waters;
    EXPECT_EQ(water[0].given, water[1].given);
    EXPECT_EQ(water[0].fault, water[1].fault);
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
                {{date, "06:12", "20 ?", ""}, "In which unit is this height? Type metres such as 5.4"},
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
    EXPECT_EQ(checked({{"2 Apil 0612 5", "", "", ""}}).waters[0].fault,
              "This line isn't understood: type its date, time and height");
    EXPECT_EQ(checked({typed(0), {"Sun 2026-07-14", "06:12", "5.4", ""}}).waters[1].fault, "2026-07-14 is a Tuesday");
    TableWater dateless = typed(1);
    dateless.date.clear();
    const CheckResult behind = checked({typed(0), {"14 Jully", "06:12", "5.4", ""}, dateless, typed(2), dateless});
    EXPECT_EQ(behind.waters[2].fault, "No date: that of line 2 isn't understood");
    EXPECT_EQ(behind.waters[4].fault, "") << "after one that is read";
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

struct PastedWaters : testing::Test {
    std::string read(const std::string& text, const TableWater& before = {}) const {
        std::string all;
        for (const TableWater& water : pastedwaters(text, {conventions, locale, makedate(2026, 11, 23)}, before, 400))
            all += (all.empty() ? "" : " / ") + water.date + "|" + water.time + "|" + water.height + "|" + water.kind;
        return all;
    }

    DateConventions conventions{"DD/MM/YYYY", "/"};
    ScriptedLocale locale;
};

TEST_F(PastedWaters, LinesAreReadAsTablesHaveThem) {
    locale.days = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
    locale.shortdays = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
    locale.months[4] = "Mai";
    const struct {
        const char *text, *read;
    } rows[] = {
        {"06:12 5.4", "|06:12|5.4|"},
        {"2026-07-14\t06:12\t5,4\tHW\r", "2026-07-14|06:12|5,4|high"},
        {"Mi 15.07.2026 06:12* 5,4*", "2026-07-15|06:12|5,4|"},
        {"Tue 14th Jul 2026 24:00 5.4", "2026-07-14|24:00|5.4|"},
        {"14/07/2026,06:12,5.4", "2026-07-14|06:12|5.4|"},
        {"14/07/2026,0612,5.4,low", "2026-07-14|0612|5.4|low"},
        {"14 Jul 2026 0612 5.4m", "2026-07-14|0612|5.4|"},
        {"4 May 2026;0612;5.4", "2026-05-04|0612|5.4|"},
        {"LW 18:03 0.8 m", "|18:03|0.8|low"},
        {"14.07.2026;18:03;-0,2", "2026-07-14|18:03|-0,2|"},
        {"2026-07-14, 18:03, 1.1, low", "2026-07-14|18:03|1.1|low"},
        {"Sat 04/04/2026 0433 5.1", "2026-04-04|0433|5.1|"},
        {"Sa 04.04.2026 04:33 5,1 m", "2026-04-04|04:33|5,1|"},
        {"Samstag, 4. April 2026\u00A004:33   5,1 m  HW", "2026-04-04|04:33|5,1|high"},
        {"04/04/2026 (Saturday) 04:33:00 | 5.1", "2026-04-04|04:33:00|5.1|"},
        {"\"4/4/2026\",\"4:33 AM\",\"16.8 ft\",\"High\"", "2026-04-04|04:33|16.8 ft|high"},
        {"2026-04-04T04:33 16.8' H", "2026-04-04|04:33|16.8'|high"},
        {"04:33pm 241 cm", "|16:33|241 cm|"},
        {"04h56 5.1", "|04h56|5.1|"},
        {"4.56 5.1", "|4.56|5.1|"},
        {"04.56 5.10", "|04.56|5.10|"},
        {"4.56 5.10", "4.56 5.10|||"},
        {"5.1 0456", "5.1 0456|||"},
        {"04:56Z 5.1", "04:56Z 5.1|||"},
        {"0433 5.1 04/04/2026", "2026-04-04|0433|5.1|"},
        {"2026 04 04 0433 5.1", "2026-04-04|0433|5.1|"},
        {"04/04/2026 0433 5.1 1042 0.9 1655 5.3", "2026-04-04|0433|5.1| / 2026-04-04|1042|0.9| / 2026-04-04|1655|5.3|"},
        {"0433 5.1 HW 1042 0.9 LW", "|0433|5.1|high / |1042|0.9|low"},
        {"high water 4:33 am 5 low water 10:42 am 1", "|04:33|5|high / |10:42|1|low"},
        {"0433 5.1 LW 1042 0.9", "0433 5.1 LW 1042 0.9|||"},
        {"0433 5.1 1042 0.9 1655", "0433 5.1 1042 0.9 1655|||"},
        {"31/04/2026 0433 5.1", "31/04/2026|0433|5.1|"},
        {"Sun 04/04/2026 0433 5.1", "Sun 2026-04-04|0433|5.1|"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(read(std::string("Date Time Height\n") + text + "\n\n"), expected) << text;
}

TEST_F(PastedWaters, OnlyADateThatWasReadGoesOnToTheLinesBehind) {
    const struct {
        const char *text, *read;
    } rows[] = {{"Saturday 4 April 2026\n0433 5.1\n1042 0.9", "2026-04-04|0433|5.1| / 2026-04-04|1042|0.9|"},
                {"4/4/2026 0433 5.1\n5 Apil 2026 0520 5.0\n1142 0.9\n6/4/2026 0600 5\n1200 1",
                 "2026-04-04|0433|5.1| / 5 Apil 2026|0520|5.0| / 5 Apil 2026|1142|0.9| / 2026-04-06|0600|5| / "
                 "2026-04-06|1200|1|"},
                {"4/4/2026 0433 5.1\nSat 1042 0.9\nSun 0520 5.0\n1142 0.9",
                 "2026-04-04|0433|5.1| / 2026-04-04|1042|0.9| / Sun|0520|5.0| / Sun|1142|0.9|"},
                {"4/4/2026 0433 5.1\nMay 2026\n0520 5.0", "2026-04-04|0433|5.1| / May 2026||| / May 2026|0520|5.0|"},
                {"Date Height (ft)\n4/4/2026 0433 16.8\n1042 2 m", "2026-04-04|0433|16.8 ft| / 2026-04-04|1042|2|"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(read(text), expected) << text;
    EXPECT_EQ(read("0433 5.1", {"2026-04-04", "", "", ""}), "2026-04-04|0433|5.1|") << "that of the line before";
}

TEST_F(PastedWaters, PmIsTheAfternoonOrHighWaterAsTheWholePasteShows) {
    const struct {
        const char *text, *read;
    } rows[] = {{"2026-04-04 09:53 PM 5,95", "2026-04-04 09:53 PM 5,95|||"},
                {"09h53 PM 5,95", "|09h53|5,95|high"},
                {"09h53PM 5,95", "09h53PM 5,95|||"},
                {"09:53 PM 5,95\n16:05 BM 1,2", "|09:53|5,95|high / |16:05|1,2|low"},
                {"09:53 PM 5,95\n22:05 PM 5,8", "|09:53|5,95|high / |22:05|5,8|high"},
                {"09:53 5,95 PM\n10:05 PM 5,8", "|09:53|5,95|high / |10:05|5,8|high"},
                {"PM 09:53 5,95\n10:05 PM 5,8", "|09:53|5,95|high / |10:05|5,8|high"},
                {"04:05 AM 1.2\n09:53 PM 5.9", "|04:05|1.2| / |21:53|5.9|"},
                {"09:53 PM 5.9 HW", "|21:53|5.9|high"},
                {"4:05pm 1.2\n09:53 PM 5.9", "|16:05|1.2| / |21:53|5.9|"},
                {"04:05 AM 1.2\n16:05 PM 5.8", "04:05 AM 1.2||| / 16:05 PM 5.8|||"},
                {"pleine mer 09:53 5,9 basse mer 16:05 1,2", "|09:53|5,9|high / |16:05|1,2|low"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(read(text), expected) << text;
    EXPECT_EQ(linefault("09:53 PM 5,95"), "PM may be the afternoon or high water: type date, time and height");
}

TEST_F(PastedWaters, AllDatesAreInTheOneOrderInWhichTheyHold) {
    const std::string ends = " 0433 5.1";
    const struct {
        std::vector<const char*> typed, read;
    } rows[] = {{{"04/05/2026"}, {"2026-05-04"}},
                {{"04/11/2026", "04/13/2026"}, {"2026-04-11", "2026-04-13"}},
                {{"04/11/2026", "13/11/2026"}, {"2026-11-04", "2026-11-13"}},
                {{"Sun 04/05/2026", "04/06/2026"}, {"2026-04-05", "2026-04-06"}},
                {{"Mon 04/05/2026", "04/06/2026"}, {"2026-05-04", "2026-06-04"}},
                {{"04/13/2026", "13/04/2026", "04/05/2026"}, {"04/13/2026", "2026-04-13", "2026-05-04"}},
                {{"04/13/2026", "5 Apil 2026"}, {"2026-04-13", "5 Apil 2026"}}};
    for (const auto& [typed, expected] : rows) {
        std::string text, all;
        for (std::size_t i = 0; i < typed.size(); ++i) {
            text += typed[i] + ends + "\n";
            all += (i > 0 ? " / " : "") + std::string(expected[i]) + "|0433|5.1|";
        }
        EXPECT_EQ(read(text), all) << text;
    }
    conventions.dateformat = "MM/DD/YYYY";
    EXPECT_EQ(read("04/05/2026 0433 5.1"), "2026-04-05|0433|5.1|");
    locale.days = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"};
    EXPECT_EQ(read("Di. 2026-04-07 0433 5.1"), "Di. 2026-04-07|0433|5.1|") << "that is dimanche here";
    EXPECT_EQ(read("Do. 2026-04-09 0433 5.1"), "2026-04-09|0433|5.1|");
    EXPECT_EQ(read("13/04/2026 0433 5.1"), "2026-04-13|0433|5.1|");
    conventions.dateformat = "YYYY-MM-DD";
    EXPECT_EQ(read("Mon 2026-04-05 0433 5.1"), "Mon 2026-04-05|0433|5.1|") << "4 May is no way to read it";
}

TEST_F(PastedWaters, ATimeBeforeTheLastOneDoesntInheritItsDate) {
    const struct {
        const char *text, *read;
    } rows[] = {{"0956 5\n2214 5\n0509 1\n1036 5\n0600 1",
                 "2026-04-04|0956|5| / 2026-04-04|2214|5| / 2026-04-04?|0509|1| / 2026-04-04?|1036|5| / "
                 "2026-04-04??|0600|1|"},
                {"0333 5", "2026-04-04?|0333|5|"},
                {"Sat 0333 5", "2026-04-04|0333|5|"},
                {"5/4/2026\n0333 5 1600 5 0930 1\n1010 2",
                 "2026-04-05|0333|5| / 2026-04-05|1600|5| / 2026-04-05|0930|1| / 2026-04-05?|1010|2|"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(read(text, {"2026-04-04", "04:33", "5.1", ""}), expected) << text;
    EXPECT_EQ(read("0956 5\n0509 1"), "|0956|5| / ?|0509|1|");
    EXPECT_EQ(datefault("2026-04-04?"), "Earlier than the line before: is this the next day? Type its date");
}

TEST_F(PastedWaters, OneUnitIsThatOfAllHeightsWithoutOne) {
    const struct {
        const char *text, *read;
    } rows[] = {{"0424 110 0953 595 1644 20", "|0424|110 ?| / |0953|595 ?| / |1644|20 ?|"},
                {"0424 20\n0953 595\n1644 2 m", "|0424|20 ?| / |0953|595 ?| / |1644|2|"},
                {"Height (cm)\n0424 110 0953 595", "|0424|110 cm| / |0953|595 cm|"},
                {"0424 16\n0953 2\nHeights in ft.", "|0424|16 ft| / |0953|2 ft|"},
                {"Height (ft), times a.m./p.m.\n0424 16", "|0424|16 ft|"},
                {"Height (ft)\n0424 110", "|0424|110 ?|"},
                {"Heights in metres\nBench mark 3.2 ft above pier\n09:53 5.9",
                 "Bench mark 3.2 ft above pier||| / Bench mark 3.2 ft above pier|09:53|5.9|"},
                {"Heights in feet\nDepths in metres\n0424 5.1", "|0424|5.1 ?|"},
                {"0424 5.1\nTables of 2026 in feet", "|0424|5.1 ?| / Tables of 2026 in feet|||"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(read(text), expected) << text;
}

TEST_F(PastedWaters, NoMoreIsReadThanHasRoom) {
    const auto lines = [&](std::size_t count, const std::string& line) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i)
            text += line;
        const auto waters = pastedwaters(text, {conventions, locale, makedate(2026, 11, 23)}, {}, 400);
        EXPECT_LT(waters.size(), 1000U) << line.substr(0, 40);
        return waters.size();
    };
    EXPECT_EQ(lines(400, "04/04/2026\n0433 5.1\n"), 400U);
    for (const std::size_t count : {401, 200'000})
        EXPECT_GT(lines(count, "04/04/2026 0433 5.1\n"), 400U) << count;
    EXPECT_GT(lines(2000, "04/04/2026\n"), 400U) << "what is behind them isn't known";
    EXPECT_GT(lines(300'000, "\u00A0 1"), 400U);
    EXPECT_EQ(read("0433" + std::string(5000, ' ') + "5.1").substr(0, 8), "0433 ...");
}

TEST(TableFields, AreReadInEveryUsualForm) {
    const std::pair<const char*, int> times[] = {
        {"6:12", 372},    {"0612", 372},       {"06h12", 372}, {"6.12", 372},     {"6:12 am", 372}, {"12:05 am", 5},
        {"12:05PM", 725}, {"04:33 p.m.", 993}, {"4pm", 960},   {"06:12:00", 372}, {"24:00", 1440}};
    for (const auto& [text, minute] : times)
        EXPECT_EQ(readtime(text), minute) << text;
    for (const char* text :
         {"13:05 pm", "0:05 am", "24:01", "24:00 am", "6:60", "6", "6:1", "06:12:30", "6-12", "am", "2026-07-14"})
        EXPECT_FALSE(readtime(text)) << text;
    const std::pair<const char*, double> heights[] = {{"5.4", 5.4},       {"5,4 m", 5.4},      {"10 ft", 3.048},
                                                      {"10'", 3.048},     {"240 cm", 2.4},     {"\u22120.2", -0.2},
                                                      {"10 Feet", 3.048}, {"+1.5 metres", 1.5}};
    for (const auto& [text, metres] : heights)
        EXPECT_NEAR(readheight(text).value_or(99), metres, 1e-9) << text;
    for (const char* text : {"", "m", "31", "100 ft", "5.4.1", "5e1", "inf", "5 fathoms"})
        EXPECT_FALSE(readheight(text)) << text;
    EXPECT_EQ(addedwords(1, {}), "1 line added");
    EXPECT_EQ(addedwords(9, {3}), "9 lines added; line 3 left out: see Note");
    EXPECT_EQ(addedwords(9, {3, 4, 7}), "9 lines added; lines 3, 4 and 7 left out: see Note");
    EXPECT_EQ(addedwords(9, {1, 2, 3, 4, 5}), "9 lines added; lines 1, 2, 3 and 2 more left out: see Note");
}

}  // namespace
}  // namespace tarvane::tests
