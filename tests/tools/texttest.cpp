// The texts for a terminal: what a sailor looks for is there, columns align, and a day without a result says so.
#include <gtest/gtest.h>

#include "text/singlebyte.h"
#include "tides/textforms.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::Companion;
using tests::linesof;
using tests::portnamed;

bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(Text, ADayAsASailorReadsIt) {
    Companion machine;
    machine.store({portnamed("Fécamp")});
    machine.configure(1);
    const std::string standard = machine.run({}).out;
    for (const char* part :
         {"Fécamp, port 1 of UK.hc\n", "Position 50.54.00N  001.24.00W, zone time UT\n", "\nTuesday 9 April 2024\n",
          "WITHOUT SUMMER TIME CORRECTION (UT)\n", "Heights are above chart datum\n", "\n  04:40    5.54  high\n",
          "\n  10:50    0.67  low\n", "\n  17:00    5.52  high\n", "\n  23:10    0.67  low\n", "\nRange 4.87 m\n",
          "\nSprings", "Sunrise 05:2", "approximate\n"}) {
        EXPECT_TRUE(has(standard, part)) << part << "\n" << standard;
    }
    const std::string summer = machine.run({"--summer", "on"}).out;
    for (const char* part : {"ADJUSTED FOR SUMMER TIME (UT+1)\n", "\n  05:40    5.54  high\n", "Sunrise 06:2"}) {
        EXPECT_TRUE(has(summer, part)) << part << "\n" << summer;
    }
    machine.configure(1, 2);
    EXPECT_TRUE(has(machine.run({}).out, "above chart datum, no charted depth being set for this port\n"));
    machine.storedepth(2.5F);
    EXPECT_TRUE(has(machine.run({}).out, "the charted depth of 2.50 m set for this port\n  04:40    8.04  high\n"));
}

TEST(Text, DaysWithoutAResultSaySoAndTheOthersStand) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    const struct {
        const char* view;
        std::size_t told;
    } rows[] = {{nullptr, 2}, {"--samples", 2}, {"--orbital", 1}};
    for (const auto& row : rows) {
        std::vector<std::string> arguments{"--port", "1", "--date", "1989-12-31", "--days", "4"};
        if (row.view) arguments.push_back(row.view);
        const auto outcome = machine.run(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        std::size_t told = 0;
        for (const std::string& line : linesof(outcome.out))
            told += has(line, "divides by zero");
        EXPECT_EQ(told, row.told) << outcome.out;
        EXPECT_FALSE(has(outcome.out, "nan"));
    }
    EXPECT_TRUE(has(machine.run({"--port", "1", "--date", "1990-01-03"}).out, "Range"));
    EXPECT_EQ(machine.run({"--port", "1", "--date", "1990-01-01", "--sun", "--format", "csv"}).status, 0);
}

TEST(Text, ColumnsAlignByCharacters) {
    Companion machine;
    HarmonicRecord east = portnamed("Île-de-Bréhat (Port-Clos)");
    east.TimeZoneLetter = "M";
    east.PortLong = 103.85F;
    machine.store({portnamed("Fécamp"), east, portnamed("Ayr")});
    for (const std::vector<std::string>& view :
         std::vector<std::vector<std::string>>{{"--list"}, {"--sun", "--port", "1"}, {"--orbital"}}) {
        auto arguments = view;
        arguments.insert(arguments.end(), {"--days", "3"});
        const auto lines = linesof(machine.run(arguments).out);
        // the rows begin with a number; their columns end where the header's do
        std::vector<std::size_t> widths;
        for (const std::string& line : lines) {
            const std::string text = trim(line);
            if (text.empty() || text[0] < '0' || text[0] > '9') continue;
            const auto cut = view[0] == "--list" ? line.find_last_of("LM") : std::string::npos;
            widths.push_back(charactercount(line.substr(0, cut)));
        }
        ASSERT_EQ(widths.size(), 3U);
        EXPECT_EQ(widths[0], widths[1]) << view[0];
        EXPECT_EQ(widths[1], widths[2]) << view[0];
    }
    EXPECT_TRUE(has(machine.run({"--list"}).out, "M UT+1"));
}

TEST(Text, SunThatDoesNotRise) {
    Companion machine;
    HarmonicRecord north = portnamed("North");
    north.PortLat = 70;
    north.PortLong = 20;
    machine.store({north});
    const std::string day = machine.run({"--port", "1", "--date", "2024-12-21"}).out;
    EXPECT_TRUE(has(day, "Sunrise None  Sunset None")) << day;
    const std::string summer = machine.run({"--port", "1", "--date", "2024-06-21", "--summer", "on"}).out;
    EXPECT_TRUE(has(summer, "Sunrise 01:00  Sunset 01:00")) << summer;
}

TEST(Text, OffsetsAndControlCharacters) {
    EXPECT_EQ(universaltext(0), "UT");
    EXPECT_EQ(universaltext(11), "UT+11");
    EXPECT_EQ(universaltext(-5), "UT-5");
    EXPECT_EQ(plaintext("a\x1B[2Jé\n"), "a?[2Jé?");
    EXPECT_EQ(longdate(makedate(2024, 2, 29)), "Thursday 29 February 2024");
}

}  // namespace
}  // namespace tarvane
