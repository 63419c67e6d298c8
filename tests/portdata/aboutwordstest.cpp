#include "portdata/aboutwords.h"

#include <gtest/gtest.h>

namespace tarvane {
namespace {

PortAbout aboutwith(double minutes, double metres) {
    PortAbout about;
    about.timeninety = minutes;
    about.heightninety = metres;
    return about;
}

TEST(AboutWords, TrustIsToldByThePortsOwnFigures) {
    PortAbout about = aboutwith(14, 0.17);
    about.source = "A source";
    about.datum = "MLLW";
    about.timemedian = 1;
    about.heightmedian = 0.07;
    const std::string words = trustwords(PortKnown{about, {}});
    for (const char* part : {"A source, from a gauge's record; ", "MLLW (mean lower low water)", ". Half of",
                             "within 1 minute and 0.07 m", "nine in ten within 14 minutes and 0.17 m; weather"})
        EXPECT_NE(words.find(part), std::string::npos) << part << ": " << words;
    about.licence = "a licence";
    about.recordfrom = "2006-03-31";
    about.recordto = "2010-01-01";
    about.datum = "GAUGE";
    EXPECT_TRUE(trustwords(PortKnown{about, {}})
                    .starts_with("The constants come from A source (a licence), from a gauge's record of "
                                 "2006-03-31 to 2010-01-01; heights are above GAUGE as that record"));
    EXPECT_TRUE(trustwords(PortKnown{}).starts_with("Nothing is known"));
}

TEST(AboutWords, GradesGoByTheWorseOfTimesAndHeights) {
    using Row = std::tuple<double, double, const char*>;
    for (const auto& [minutes, metres, word] : {Row{20, 0.2, "close"}, Row{21, 0.2, "fair"}, Row{20, 0.21, "fair"},
                                                Row{45, 0.4, "fair"}, Row{46, 0.1, "rough"}, Row{5, 0.41, "rough"}})
        EXPECT_STREQ(gradeword(gradeof(aboutwith(minutes, metres))), word) << minutes << " " << metres;
}

}  // namespace
}  // namespace tarvane
