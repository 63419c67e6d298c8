#include "mainview/copycommands.h"

#include <gtest/gtest.h>

#include "fakes/mainfixture.h"
#include "mainview/stepping.h"
#include "session/refresh.h"

namespace tarvane {
namespace {

using tests::MainFixture;

TEST(CopyCommands, TheDaysSunChangesTheDayTableUntilTheNextRefresh) {
    MainFixture main;
    main.load();
    main.session.curve.springslag = 0;
    const std::string& copied = main.scripted.clipboard.contents;
    copydaystides(main.context);
    const std::string before = copied;
    EXPECT_TRUE(before.starts_with("Port : Alder Quay\r\nDate : 9/4/2024\r\n\r\n04:40   5.5\r\n")) << before;
    EXPECT_TRUE(before.ends_with("(Standard Time)\r\nSprings\r\n")) << before;
    EXPECT_EQ(main.scripted.clipboard.clears, 1);
    main.scripted.messages.expectshow("The day's sunrise and sunset times have been copied to the clipboard",
                                      "Tarvane");
    copydayssuntimes(main.context);
    const std::string changed = "Port : Alder Quay\tTime Zone = Standard Time\r\n\r\nDate : 9/4/2024\r\n\r\n";
    EXPECT_TRUE(copied.starts_with(changed + "Sunrise : 05:")) << copied;
    copydaystides(main.context);
    EXPECT_TRUE(copied.starts_with(changed + "04:40   5.5\r\n")) << copied;
    refreshday(main.context);
    main.session.curve.springslag = 0;
    copydaystides(main.context);
    EXPECT_EQ(copied, before);
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
    EXPECT_TRUE(main.scripted.clipboard.contents.starts_with("Alder Quay\tApril 2024\r\n"));
}

TEST(CopyCommands, TheMonthsSunGoesByTheRecordAndTheDateOnShow) {
    MainFixture main;
    main.load();
    ASSERT_TRUE(nextport(main.context));
    // a position typed or read earlier is not what is copied
    main.session.port.portlat = 0;
    main.session.suntable.suntext[1][4] = "06:40";
    for (const std::int16_t shift : {std::int16_t{0}, std::int16_t{-1}}) {
        main.session.settings.summerflag2 = shift;
        main.scripted.messages.expectshow("Months sunrise and sunset times have been copied to the clipboard",
                                          "Tarvane");
        copymonthssuntimes(main.context);
        const std::string& text = main.scripted.clipboard.contents;
        EXPECT_TRUE(text.starts_with("Birch Sound")) << text;
        EXPECT_NE(text.find(shift == 0 ? "\r\n1/4/2024\t06:40:01\t19:38:21\t" : "\r\n1/4/2024\t07:40:01\t20:38:21\t"),
                  std::string::npos)
            << text;
        EXPECT_EQ(main.session.suntable.suntext[1][1] + main.session.suntable.suntext[1][4], "1/4/2024");
    }
}

}  // namespace
}  // namespace tarvane
