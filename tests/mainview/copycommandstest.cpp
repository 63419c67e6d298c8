#include "mainview/copycommands.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "mainview/mainfixture.h"
#include "mainview/stepping.h"

namespace tarvane {
namespace {

using tests::MainFixture;

const char* const daycopied = "The day's sunrise and sunset times have been copied to the clipboard";
const char* const monthcopied = "Months sunrise and sunset times have been copied to the clipboard";

TEST(CopyCommands, TheDaysTidesWithTheLagLastFound) {
    MainFixture main;
    main.load();
    copydaystides(main.context);
    const std::string text = main.scripted.clipboard.contents;
    EXPECT_TRUE(
        text.starts_with("Port : Alder Quay\r\nDate : 9/4/2024\r\n\r\n04:40   5.5\r\n10:50   0.7\r\n"
                         "17:00   5.5\r\n23:10   0.7\r\n\r\n(Standard Time)\r\nSpring"))
        << text;
    EXPECT_EQ(main.scripted.clipboard.clears, 1);
    main.session.curve.springslag = 20;
    copydaystides(main.context);
    EXPECT_TRUE(main.scripted.clipboard.contents.ends_with("(Standard Time)\r\n\r\n"));
}

TEST(CopyCommands, TheDaysSunChangesTheDayTableUntilTheNextRefresh) {
    MainFixture main;
    main.load();
    copydaystides(main.context);
    const std::string before = main.scripted.clipboard.contents;
    main.scripted.messages.expectshow(daycopied, "Tarvane");
    copydayssuntimes(main.context);
    const std::string sun = main.scripted.clipboard.contents;
    const std::string changed = "Port : Alder Quay\tTime Zone = Standard Time\r\n\r\nDate : 9/4/2024\r\n\r\n";
    EXPECT_TRUE(sun.starts_with(changed + "Sunrise : 05:")) << sun;
    EXPECT_NE(sun.find("\r\nSunset  : 18:"), std::string::npos) << sun;
    copydaystides(main.context);
    EXPECT_TRUE(main.scripted.clipboard.contents.starts_with(changed)) << main.scripted.clipboard.contents;
    refreshday(main.context);
    copydaystides(main.context);
    EXPECT_EQ(main.scripted.clipboard.contents, before);
}

TEST(CopyCommands, TheMonthsTidesAreCalculatedFirst) {
    MainFixture main;
    main.load();
    main.scripted.clipboard.contents = "theirs";
    main.session.month.monthspredictions.assign(10, "x");
    main.scripted.messages.expectshow("Calculate a months tides\rbefore choosing this option", "Tarvane",
                                      MessageIcon::information);
    copymonthstides(main.context);
    EXPECT_EQ(main.scripted.clipboard.contents, "theirs");
    main.session.month.monthspredictions.pop_back();
    copymonthstides(main.context);
    const std::string text = main.scripted.clipboard.contents;
    EXPECT_TRUE(text.starts_with("Alder Quay\tApril 2024\r\n\t\r\n1 Apr\t(Mon)\r\n")) << text;
    EXPECT_NE(text.find("\r\n9 Apr\t(Tue)\r\n04:40\t5.54\r\n10:50\t0.67\r\n17:00\t5.52\r\n23:10\t0.67\r\n\t\r\n"),
              std::string::npos);
    EXPECT_TRUE(text.ends_with("\r\nTimes are for :\tStandard Time\r\n"));
}

TEST(CopyCommands, TheMonthsSunGoesByTheRecordAndTheDateOnShow) {
    MainFixture main;
    main.load();
    ASSERT_TRUE(nextport(main.context));
    // a position typed or read earlier is not what is copied
    main.session.port.portlat = 0;
    main.session.settings.currentsummer = -1;
    main.scripted.messages.expectshow(monthcopied, "Tarvane");
    copymonthssuntimes(main.context);
    const std::string text = main.scripted.clipboard.contents;
    EXPECT_TRUE(text.starts_with("Birch Sound")) << text;
    EXPECT_NE(text.find("\tTime Zone = Summer Time\t 50.30N\t 1.15W\r\nDate\tSunrise\tSunset\tCivil Dawn\tCivil Dusk\t"
                        "Nautical Dawn\tNautical Dusk\r\n1/4/2024\t06:40:01\t19:38:21\t"),
              std::string::npos)
        << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 32);
    EXPECT_EQ(main.session.suntable.suntext[30][1], "30/4/2024");
    EXPECT_EQ(main.session.suntable.suntext[31][1], "");
    main.session.settings.summerflag2 = -1;
    main.scripted.messages.expectshow(monthcopied, "Tarvane");
    copymonthssuntimes(main.context);
    EXPECT_NE(main.scripted.clipboard.contents.find("\r\n1/4/2024\t07:40:01\t20:38:21\t"), std::string::npos);
}

}  // namespace
}  // namespace tarvane
