// The streams at a diamond in a terminal: what is written, where a file is found, and what is refused.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "diamonds/diamondofstreams.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

struct StreamsCommand : Companion {
    StreamsCommand() {
        HarmonicRecord still = portnamed("Still");
        still.S2Hm = 0;
        store({portnamed("Worked"), portnamed("Other"), still});
        configure(1);
        DiamondRecord second = rounddiamond("B");
        second.streams.fill({45, 0, 0});
        putdiamonds(environment.programfolder + "/solent.l20", {rounddiamond("A"), second, rounddiamond("é"), second});
    }

    Outcome streams(const std::string& options) const { return run("streams " + options); }
};

TEST_F(StreamsCommand, TheTableForPrograms) {
    const auto before = everything();
    const Outcome csv = streams("--diamond solent.l20:A --summer on --date 2024-04-09 --format csv");
    EXPECT_EQ(csv.status, 0);
    EXPECT_EQ(csv.err, "");
    const auto lines = linesof(csv.out);
    ASSERT_EQ(lines.size(), 27U);
    EXPECT_EQ(lines[0], "highwater,hour,moment,direction,rate,beyond");
    EXPECT_EQ(lines[1], "2024-04-09T05:40+01:00,-6,2024-04-08T23:40+01:00,10,1.95,springs");
    const auto json =
        nlohmann::json::parse(streams("--diamond solent.l20:é --port 2 --date 2024-01-02 --format json").out);
    EXPECT_EQ(json[6]["rate"], 1.78);
    EXPECT_EQ(json[6]["direction"], 130);
    EXPECT_EQ(json[6]["beyond"], "");
    EXPECT_EQ(everything(), before);
}

TEST_F(StreamsCommand, TheTextForASailor) {
    const std::string out = streams("--diamond solent.l20:A --port worked").out;
    EXPECT_TRUE(out.starts_with("Diamond A of solent.l20, 50.45.00N  001.30.00W\n\nWorked, port 1 of UK.hc\n")) << out;
    for (const char* part :
         {"\n\nTuesday 9 April 2024\nTimes from midnight local time",
          "Range 4.87 m; mean neaps 2.00 m, mean springs 4.00 m: rates are extrapolated beyond springs\n",
          "\nHigh water 04:40\n  Hour   Time  Direction    Rate\n    -6  22:40        010    1.95  on Monday 8 April "
          "2024\n",
          "\n    HW  04:40        130    3.87\n",
          "\n    +6  23:00        250    1.95\n\nStreams are means over an hour"})
        EXPECT_TRUE(has(out, part)) << part << out;
    const Outcome doubtful = streams("--diamond solent.l20:B");
    EXPECT_EQ(doubtful.err, "tides: solent.l20 has 2 diamonds B, of which the first is taken\n");
    EXPECT_TRUE(has(doubtful.out, "\n    HW  04:40        045    0.00\n"));
    EXPECT_TRUE(has(streams("--help").out, "--diamond FILE:ID"));
    EXPECT_TRUE(has(run("--help").out, "tides streams --help"));
}

TEST_F(StreamsCommand, AFileIsTakenAsGivenBeforeItIsLookedFor) {
    const std::string elsewhere = folder / "a:b.l20";
    putdiamonds(elsewhere, {rounddiamond("Z")});
    EXPECT_EQ(streams("--diamond " + elsewhere + ":Z").status, 0);
    EXPECT_EQ(streams("--diamond SOLENT.L20:A").status, 0);
}

TEST_F(StreamsCommand, WhatCantBeHadIsRefusedInALine) {
    putfile(folder / "short.l20", "short");
    const std::string day = "no streams by Worked on 1990-01-01: The method has no constants for this day";
    const std::pair<std::string, std::string> rows[] = {
        {"", "tides streams needs a diamond, behind --diamond as FILE:ID"},
        {"--diamond solent.l20", "--diamond takes a file and the diamond's letter, as solent.l20:A, not 'solent.l20'"},
        {"--diamond :A", "--diamond takes a file and the diamond's letter, as solent.l20:A, not ':A'"},
        {"--diamond solent.l20:a", "solent.l20 has no diamond 'a'; it has A, B, é, B"},
        {"--diamond none.l20:A", "the diamonds none.l20 can't be read: No such file or directory"},
        {"--diamond " + (folder / "short.l20") + ":A", "short.l20 holds no diamond"},
        {"--diamond solent.l20:A --port 9", "UK.hc has no port 9, its ports run from 1 to 3; the nearest is 3 Still"},
        {"--diamond solent.l20:A --port all", "--port takes one port here, not 'all'"},
        {"--diamond solent.l20:A --date 1990-01-01", day},
        {"--diamond solent.l20:A --date 2024-02-30", "'2024-02-30' is no date; write a day that exists as YYYY-MM-DD"},
        {"--diamond solent.l20:A --port still",
         "no streams by Still on 2024-04-09: The port has no spring and neap ranges: its M2 or S2 is 0 or no "
         "amplitude"},
        {"--diamond solent.l20:A --days 2", "there is no option '--days'; tides streams --help lists them"},
        {"--diamond solent.l20:A --summer", "--summer needs a value: on|off"}};
    for (const auto& [options, told] : rows) {
        const Outcome refusal = streams(options);
        EXPECT_EQ(refusal.status, 2) << options;
        EXPECT_EQ(refusal.err, "tides: " + told + "\n");
        EXPECT_EQ(refusal.out, "");
    }
}

}  // namespace
}  // namespace tarvane::tests
