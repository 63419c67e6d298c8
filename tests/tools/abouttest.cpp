// "tides about": what it tells of a port that its area's table knows, and of one that it doesn't.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "portdata/ownports.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

const std::string header =
    "number,name,country,timezone,datum,record_from,record_to,licence,source,time_error_median_min,time_error_p90_min,"
    "height_error_median_m,height_error_p90_m,mean_range_m";

struct About : Companion {
    About() {
        HarmonicRecord harbour = portnamed("Harbour");
        harbour.TimeZoneLetter = "P";
        store({harbour, portnamed("Creek")}, "Far Coast.hc");
        store({portnamed("Creek")});
        putfile(areapath("far-coast-about.csv"),
                header +
                    "\n1,Harbour,Nowhere,Asia/Dubai,MLLW,2006-05-31,2025-05-31,CC BY 4.0,\"A gauge, read\","
                    "6,14,0.07,0.17,3.63\n");
    }
};

TEST_F(About, TextTellsItInASailorsWords) {
    const std::string text = run("about --port harbour --area all").out;
    for (const char* part :
         {"Harbour, port 1 of Far Coast.hc\n",
          "How good: close: half of the high and low waters are within 6 minutes and 0.07 m",
          "nine in ten within 14 minutes and 0.17 m; weather not counted\n",
          "Heights above: MLLW, mean lower low water, ", "Source: A gauge, read\nLicence: CC BY 4.0, modified\n",
          "Gauge's record: 31 May 2006 to 31 May 2025\n",
          "Clock: The port's clock (Asia/Dubai) shows 14:00 UT+4 on Tuesday 9 April 2024; it isn't changed",
          "; 3.63 m in a full prediction for 2026\n", "Mean range: ", "\n  M2 (g "})
        EXPECT_TRUE(has(text, part)) << part << "\n" << text;
    const std::string unknown = run("about creek").out;
    EXPECT_TRUE(has(unknown, "Nothing is known of where this port's constants come from")) << unknown;
}

TEST_F(About, NotesThatArentUnderstoodAreToldAndLeftAsTheyAre) {
    const ProgramFolders folders = foldersof(environment);
    std::filesystem::create_directories(folders.configfolder());
    const std::string path = ownportspath(folders);
    putfile(path, "{\"areas\": 3}");
    const Outcome outcome = run("about creek");
    EXPECT_EQ(outcome.err, "tides: " + path + " isn't understood whole: what could be read of it is used\n");
    EXPECT_TRUE(has(outcome.out, "Creek"));
    EXPECT_EQ(filetext(path), "{\"areas\": 3}");
    EXPECT_EQ(run("--list").err, "");
}

TEST_F(About, AnOwnPortHasNoFigureOfTheShippedOne) {
    HarmonicRecord harbour = portnamed("Harbour"), before = harbour;
    harbour.TimeZoneLetter = before.TimeZoneLetter = "P";
    harbour.Z0 += 1;
    store({harbour, portnamed("Creek")}, "Far Coast.hc");
    const ProgramFolders folders = foldersof(environment);
    std::filesystem::create_directories(folders.configfolder());
    OwnMade made;
    made.how = OwnHow::corrected;
    made.date = "2026-03-03";
    const std::string area = areapath("Far Coast.hc");
    ASSERT_TRUE(noteport(folders, area, 1, before, harbour, made));
    ASSERT_TRUE(keepcheck(folders, area, harbour, 1, {TableClock::zone, {{"2026-07-14", "06:12", "3", ""}}}));
    const std::string text = run("about --port harbour --area all").out;
    for (const char* part :
         {"How good: Entered by you on 3 March 2026", "Check: Checked by you against 1 water of 2026", "(Asia/Dubai)"})
        EXPECT_TRUE(has(text, part)) << part << "\n" << text;
    EXPECT_FALSE(has(text, "A gauge"));
    const std::string row = linesof(csv("about harbour --area all")).at(1);
    EXPECT_TRUE(row.starts_with("1,Harbour,,Asia/Dubai,,,,,\"Entered by you on 3 March 2026") ||
                row.starts_with("1,Harbour,,Asia/Dubai,,,,,Entered by you on 3 March 2026"))
        << row;
    EXPECT_TRUE(row.ends_with(",,,,,,Far Coast")) << row;
}

TEST_F(About, TablesHoldTheColumnsOfTheAreasTable) {
    const auto lines = linesof(csv("about all --area all"));
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], header + ",area");
    EXPECT_EQ(lines[1],
              "1,Harbour,Nowhere,Asia/Dubai,MLLW,2006-05-31,2025-05-31,CC BY 4.0,\"A gauge, read\",6,14,0.07,0.17,"
              "3.63,Far Coast");
    EXPECT_EQ(lines[3], "1,Creek,,,,,,,,,,,,,UK");
    const auto objects = nlohmann::json::parse(run("about --port all --area all --format json").out);
    EXPECT_EQ(objects[0]["height_error_p90_m"], 0.17);
    EXPECT_EQ(objects[0]["record_from"], "2006-05-31");
    EXPECT_TRUE(objects[1]["mean_range_m"].is_null());
}

TEST_F(About, FaultsAreOneLine) {
    for (const auto& [line, words] : {std::pair{"about --days 3", "there is no option '--days'; tides about --help"},
                                      {"about creek --port creek", "the port is given twice"},
                                      {"about --area all", "--area all needs --port"},
                                      {"about --format ics", "--format takes text, csv or json"},
                                      {"about --port", "--port needs a value"},
                                      {"about --port nothere", "no port 'nothere'"}}) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.status, 2) << line;
        EXPECT_EQ(linesof(outcome.err).size(), 1U) << outcome.err;
        EXPECT_TRUE(has(outcome.err, words)) << outcome.err;
    }
    EXPECT_TRUE(has(run("about --help").out, "--port NUMBER|NAME|all"));
}

}  // namespace
}  // namespace tarvane::tests
