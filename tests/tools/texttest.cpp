// The texts for a terminal: what a sailor looks for is there, columns align, and a day without a result says so.
#include <gtest/gtest.h>

#include <algorithm>

#include "text/singlebyte.h"
#include "tides/textforms.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::Companion;
using tests::has;
using tests::linesof;
using tests::portnamed;

TEST(Text, ADayAsASailorReadsIt) {
    Companion machine;
    machine.store({portnamed("Fécamp")});
    machine.configure(1);
    for (const char* part :
         {"Fécamp, port 1 of UK.hc\n", "Position 50.54.00N  001.24.00W, zone time UT\n", "\nTuesday 9 April 2024\n",
          "WITHOUT SUMMER TIME CORRECTION (UT)\n", "Heights are above chart datum\n", "\n  04:40    5.54  high\n",
          "\n  10:50    0.67  low\n", "\nRange 4.87 m\n", "\nSprings", "Sunrise 05:2", "approximate\n"})
        EXPECT_TRUE(has(machine.run("").out, part)) << part;
    for (const char* part : {"ADJUSTED FOR SUMMER TIME (UT+1)\n", "\n  05:40    5.54  high\n", "Sunrise 06:2"})
        EXPECT_TRUE(has(machine.run("--summer on").out, part)) << part;
    machine.configure(1, 2);
    EXPECT_TRUE(has(machine.run("").out, "above chart datum, no charted depth being set for this port\n"));
    machine.storedepth(2.5F);
    EXPECT_TRUE(has(machine.run("").out, "the charted depth of 2.50 m set for this port\n  04:40    8.04  high\n"));
}

TEST(Text, DaysWithoutAResultSaySoAndTheOthersStand) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    for (const auto& [view, told] : {std::pair{"", 2}, std::pair{" --samples", 2}, std::pair{" --orbital", 1}}) {
        const auto outcome = machine.run(std::string("--port 1 --date 1989-12-31 --days 4") + view);
        const auto lines = linesof(outcome.out);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(told, std::count_if(lines.begin(), lines.end(),
                                      [](const auto& line) { return has(line, "divides by zero"); }))
            << outcome.out;
        EXPECT_FALSE(has(outcome.out, "nan"));
    }
    EXPECT_TRUE(has(machine.run("--port 1 --date 1990-01-03").out, "Range"));
    EXPECT_EQ(machine.run("--port 1 --date 1990-01-01 --sun --format csv").status, 0);
}

TEST(Text, ColumnsAlignByCharacters) {
    Companion machine;
    HarmonicRecord east = portnamed("Île-de-Bréhat (Port-Clos)");
    east.TimeZoneLetter = "M";
    east.PortLong = 103.85F;
    machine.store({portnamed("Fécamp"), east, portnamed("Ayr")});
    for (const std::string view : {"--list", "--sun --port 1", "--orbital"}) {
        // the rows begin with a number; their columns end where the header's do
        std::vector<std::size_t> widths;
        for (const std::string& line : linesof(machine.run(view + " --days 3").out)) {
            const std::string text = trim(line);
            if (text.empty() || text[0] < '0' || text[0] > '9') continue;
            widths.push_back(charactercount(line.substr(0, view == "--list" ? line.find_last_of("LM") : line.size())));
        }
        EXPECT_EQ(widths, std::vector<std::size_t>(3, widths.at(0))) << view;
    }
    EXPECT_TRUE(has(machine.run("--list").out, "M UT+1"));
}

TEST(Text, OffsetsControlCharactersAndASunThatDoesNotRise) {
    EXPECT_EQ(universaltext(0) + universaltext(11) + universaltext(-5), "UTUT+11UT-5");
    EXPECT_EQ(plaintext("a\x1B[2Jé\n"), "a?[2Jé?");
    Companion machine;
    HarmonicRecord pole = portnamed("Pole");
    pole.PortLat = 89;
    machine.store({pole});
    EXPECT_TRUE(has(machine.run("--port 1 --date 2024-12-21").out, "Sunrise None  Sunset None"));
}

}  // namespace
}  // namespace tarvane
