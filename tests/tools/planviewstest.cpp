// The planner's views on the area that ships: a written-down session, and that waters agree with the day's table, ports
// come in order whoever is ready first, and years on end are no different from one.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "text/numbers.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

struct PlanViews : Companion {
    PlanViews() {
        store(shippedports());
        std::filesystem::copy_file(TARVANE_DATA "/uk-about.csv", environment.programfolder + "/uk-about.csv");
        configure(15);
        environment.now = Moment(makedate(2026, 7, 14)) + std::chrono::minutes(10 * 60 + 32);
    }
};

TEST_F(PlanViews, EachCommandOfTheTranscriptAnswersAsWritten) {
    EXPECT_EQ(answersto(TARVANE_TESTDATA "/plans.txt"), filetext(TARVANE_TESTDATA "/plans.txt"));
}

/// Minutes of the month.
double minutesof(const std::string& moment) {
    return val(moment.substr(8, 2)) * 1440 + val(moment.substr(11, 2)) * 60 + val(moment.substr(14, 2));
}

/// The day's table goes by ten minutes, and has a tide at midnight twice at times.
TEST_F(PlanViews, WatersAreThoseOfTheDaysTable) {
    for (const char* port : {"Dover", "Brest", "Aberdeen"}) {
        const std::string asked = std::string("--date 2026-07-01 --days 25 --port ") + port;
        const auto exact = linesof(csv("--waters --clock zone " + asked)),
                   coarse = linesof(csv("--summer off " + asked));
        EXPECT_NEAR(static_cast<double>(exact.size()), static_cast<double>(coarse.size()), 2);
        EXPECT_GT(exact.size(), 95U);
        for (std::size_t i = 1; i < exact.size(); ++i) {
            const auto fields = fieldsof(exact[i]);
            const bool found = std::any_of(coarse.begin() + 1, coarse.end(), [&](const std::string& line) {
                const auto other = fieldsof(line);
                return std::abs(minutesof(fields[2]) - minutesof(other[6])) <= 11 &&
                       std::abs(val(fields[3]) - val(other[4])) < 0.03 && fields[4] == other[5] &&
                       fields[2].substr(16) == other[6].substr(16);
            });
            EXPECT_TRUE(found) << exact[i];
        }
    }
}

/// A table in CSV, and behind it the rows of another.
void append(std::string& table, const std::string& other) {
    table += table.empty() ? other : other.substr(other.find('\n') + 1);
}

TEST_F(PlanViews, YearsOnEndAndAllPortsAreTheSumOfTheirParts) {
    std::string parts = csv("--waters --date 2026-02-01 --days 300"), ports;
    append(parts, csv("--waters --date 2026-11-28 --days 100"));
    EXPECT_EQ(csv("--waters --date 2026-02-01 --days 400"), parts);
    const auto shipped = shippedports();
    std::filesystem::remove(areapath());
    store({shipped[0], shipped[14], shipped[76], shipped[40]});
    for (const char* number : {"1", "2", "3", "4"})
        append(ports, csv(std::string("--access --bottom -1 --days 370 --port ") + number));
    EXPECT_EQ(csv("--access --bottom -1 --days 370 --port all"), ports);
}

TEST_F(PlanViews, TodayIsWhatThePortsClockShows) {
    environment.now = Moment(makedate(2026, 7, 14)) + std::chrono::minutes(23 * 60 + 30);
    EXPECT_TRUE(has(run("--waters").out, "\nWednesday 15 July 2026\n"));
    EXPECT_TRUE(has(run("--waters --clock ut").out, "\nTuesday 14 July 2026\n"));
    EXPECT_TRUE(has(csv("--now"), ",2026-07-15T00:30+01:00,"));
}

TEST_F(PlanViews, JsonIsTyped) {
    const auto now = nlohmann::json::parse(run("--now --format json").out).at(0);
    EXPECT_TRUE(now["port"].is_number_integer() && now["rate"].is_number_float() && now["tendency"].is_string());
    const auto windows = nlohmann::json::parse(run("--access --bottom -1 --days 9 --format json").out);
    ASSERT_GT(windows.size(), 15U);
    EXPECT_TRUE(windows[1]["minutes"].is_number_integer() && windows[1]["greatest_height"].is_number_float());
    EXPECT_EQ(windows[0]["cut"], "start");
}

TEST_F(PlanViews, ABrokenTableOfZonesIsToldAndTheZoneLetterTaken) {
    putfile(environment.programfolder + "/uk-about.csv", "number,name\n");
    const Outcome outcome = run("--waters --date 2026-07-14");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "tides: uk-about.csv isn't read: line 1: not the columns of such a table\n");
    EXPECT_TRUE(has(outcome.out, "port's clock by its zone (UT) and European summer time")) << outcome.out;
    for (const float silly : {-1.0F, 1e9F, std::nanf("")}) {
        ConfigRecord record = LoadConfig(foldersof(environment));
        record.draught = silly;
        SaveConfig(foldersof(environment), record);
        EXPECT_EQ(run("--access --bottom 1").err, "tides: what is stored is no use; give --draught\n");
        EXPECT_EQ(run("--access --bottom 1 --draught 1").status, 0);
    }
}

}  // namespace
}  // namespace tarvane::tests
