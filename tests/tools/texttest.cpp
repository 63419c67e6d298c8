// The texts for a terminal: what a sailor looks for is there, columns align, and a day without a result says so.
#include <gtest/gtest.h>

#include <limits>

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

TEST(Text, DaysWithoutAPredictionSaySo) {
    Companion machine;
    HarmonicRecord broken = portnamed("Broken");
    broken.Z0 = std::numeric_limits<float>::quiet_NaN();
    machine.store({portnamed("Round Haven"), broken, HarmonicRecord{}});
    const std::string noconstants = "The method has no constants for this day\n";
    using Row = std::pair<const char*, std::string>;
    for (const auto& [line, part] :
         {Row{"1 --date 1990-01-02", "(UT)\nNo prediction: " + noconstants + "Sunrise 0"},
          Row{"1 --samples --date 1990-01-01 --days 2", "\nNo prediction: " + noconstants + "\nTuesday 2 January"},
          Row{"1 --month --date 1990-01-20", "\nTue  2   No prediction: " + noconstants + "Wed  3   0"},
          Row{"--orbital --date 1990-01-01 --days 2", "\n1990-01-01  " + noconstants + "1990-01-02  "},
          Row{"2 --month", "\nTue 30   No prediction: The port's record holds values that are no numbers\n\n"},
          Row{"3 --month", "\nTue 30   No high or low water on this day\n\n"}}) {
        const auto outcome = machine.run(line);
        EXPECT_TRUE(has(outcome.out, part)) << outcome.out;
        EXPECT_EQ(std::to_string(outcome.status) + outcome.err, "0");
    }
}

TEST(Text, MidnightAtADaysEndIsTheNextDays) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    using Row = std::pair<std::string, const char*>;
    for (const auto& [view, line] :
         {Row{"", "\n  00:00    4.40  high, on Saturday 1 June 2024\n"}, Row{" --month", "   00:00   4.40 on Sat  1\n"},
          Row{" --format csv", ",2024-06-01,00:00,4.3978,high,2024-06-01T00:00+01:00,0\n"},
          Row{" --month --format csv", ",2024,6,1,Sat,00:00,4.40,2024-06-01T00:00+01:00,0\n"}})
        EXPECT_TRUE(has(machine.run("1 --date 2024-05-31 --summer on" + view).out, line)) << view;
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
