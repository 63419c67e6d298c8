// The texts for a terminal: what a sailor looks for is there, columns align, and a day without a result says so; what
// is asked wrongly is refused in one line.
#include <gtest/gtest.h>

#include <limits>

#include "tides/textforms.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

using Text = Companion;

TEST_F(Text, EachCommandOfTheTranscriptAnswersAsWritten) {
    HarmonicRecord broken = portnamed("Broken"), east = portnamed("Île-de-Bréhat (Port-Clos)"),
                   pole = portnamed("Pole");
    broken.Z0 = std::numeric_limits<float>::quiet_NaN();
    east.TimeZoneLetter = "M";
    east.PortLong = 103.85F;
    pole.PortLat = 89;
    store({portnamed("Fécamp"), broken, HarmonicRecord{}, east, pole, portnamed("Hook, \"the\" West"),
           portnamed("Port"), portnamed("Port Ellen"), portnamed("Port")});
    configure(1);
    const std::string answered = answersto(TARVANE_TESTDATA "/tides.txt");
    EXPECT_NE(answered, "");
    EXPECT_EQ(answered, filetext(TARVANE_TESTDATA "/tides.txt"));
}

TEST_F(Text, TheDatumIsTold) {
    store({portnamed("Fécamp")});
    configure(1, 2);
    EXPECT_TRUE(has(run("").out, "above chart datum, no charted depth being set for this port\n"));
    storedepth(2.5F);
    EXPECT_TRUE(has(run("").out, "the charted depth of 2.50 m set for this port\n  04:40    8.04  high\n"));
}

TEST_F(Text, OffsetsAndControlCharacters) {
    EXPECT_EQ(universaltext(0) + universaltext(11) + universaltext(-5), "UTUT+11UT-5");
    EXPECT_EQ(plaintext("a\x1B[2Jé\n"), "a?[2Jé?");
}

}  // namespace
}  // namespace tarvane::tests
