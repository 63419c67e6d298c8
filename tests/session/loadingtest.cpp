#include "session/loading.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "engine/springs.h"
#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "session/refresh.h"

namespace tarvane {
namespace {

using tests::MainFixture;

TEST(Loading, ComesUpOnTheStoredPortAndToday) {
    MainFixture main;
    main.load();
    const Session& session = main.session;
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");
    EXPECT_EQ(session.view.tidedatebox, "Date   : 9 April 2024 (Tuesday)");
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
    EXPECT_DOUBLE_EQ(session.timenow, 14 + 32 / 60.0);
    EXPECT_EQ(session.clocktime, session.timenow);
    const auto marker = ScriptedSurface::only(main.picture.passinglayer, ScriptedSurface::Kind::line, red);
    ASSERT_EQ(marker.size(), 1U);
    EXPECT_EQ(marker[0].x1, session.timenow);
    EXPECT_EQ(marker[0].x2, session.timenow);
    EXPECT_EQ(session.view.lblmousestatus, "(Click mouse to freeze)");
    EXPECT_EQ(session.view.disclaimer,
              "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION\r\n"
              "Heights in Metres, all data are derived and should therefore be considered as approximate");
    EXPECT_EQ(session.daytable.daystide1,
              "  Predictions\r\n   (Range 4.9M)\r\n   Time    Ht.\r\n   04:40   5.5\r   10:50   0.7\r   17:00   5.5\r"
              "   23:10   0.7\r");
    EXPECT_EQ(session.daytable.daylinecount, 8);
    EXPECT_EQ(session.daytable.daylines[2], "Date : 9/4/2024");
    EXPECT_EQ(session.daytable.daylines[4], "04:40   5.5");
    EXPECT_EQ(session.view.caption.rfind("Tarvane Tides   (v9.5.0)     [Time Now 14:32 : Height = ", 0), 0U);
    EXPECT_TRUE(std::filesystem::exists(session.settings.depfile));
}

TEST(Loading, FirstRunWritesItsDefaultsAndShowsPort77) {
    MainFixture main;
    std::filesystem::remove(main.session.folders.cfgpath());
    for (std::int16_t number = 5; number <= 80; ++number)
        writeport(main.area(), number, tests::fixtureport("Port " + std::to_string(number), 4));
    main.load();
    EXPECT_EQ(main.session.view.portbox, "Port    : Port 77");
    EXPECT_EQ(std::filesystem::file_size(main.session.folders.cfgpath()), 1307U);
    EXPECT_EQ(main.session.settings.currentoutput, 3);
}

TEST(Loading, BrokenFilesAndAPortPastTheEndComeUpFlatAndUnharmed) {
    MainFixture main;
    ConfigRecord record = main.stored();
    record.portnumber = 4000;
    SaveConfig(main.session.folders, record);
    main.load();
    EXPECT_EQ(main.session.prediction.dayrange, 0);
    EXPECT_EQ(main.session.port.zonehours, 0);
    replacefile(main.session.folders.cfgpath(), std::string("short"));
    replacefile(main.area(), std::string(60, '\0'));
    main.load();
    EXPECT_EQ(main.session.prediction.turningcount, 0);
    EXPECT_EQ(readwhole(main.session.folders.cfgpath()).size(), 5U);
    EXPECT_EQ(readwhole(main.area()).size(), 60U);
    std::filesystem::remove(main.area());
    main.load();
    EXPECT_EQ(main.session.port.portname, "");
    EXPECT_FALSE(std::filesystem::exists(main.area()));
}

TEST(Loading, UndefinedDayIsSaidPlainly) {
    MainFixture main;
    main.load();
    EXPECT_NE(springstext(main.session.curve.springslag), "");
    main.scripted.clock.reading.today = makedate(1990, 1, 2);
    main.load();
    EXPECT_EQ(springstext(main.session.curve.springslag), "") << "no day's place between springs and neaps";
    EXPECT_TRUE(main.session.view.caption.ends_with("[No prediction]"));
    EXPECT_NE(main.session.daytable.daystide1.find("No prediction"), std::string::npos);
    EXPECT_EQ(main.session.view.hiteval, "");
    EXPECT_EQ(ScriptedSurface::log(main.picture.persistentlayer).find("nan"), std::string::npos);
    main.session.onshow.tidedayofyear = 3;
    refreshday(main.context);
    EXPECT_NE(main.session.daytable.daystide1.find("(Range"), std::string::npos);
}

TEST(Loading, SummerTimeGoesByTheDateOnShow) {
    MainFixture main;
    ConfigRecord record = main.stored();
    record.summertimeflag = -1;
    SaveConfig(main.session.folders, record);
    const struct {
        Date date;
        const char* line;
        const char* firstwater;
    } rows[] = {{makedate(2024, 4, 9), "Times are from midnight local time - ADJUSTED FOR SUMMER TIME", "05:40"},
                {makedate(2024, 3, 30), "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION", nullptr},
                {makedate(2024, 10, 27), "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION", nullptr}};
    for (const auto& row : rows) {
        main.scripted.clock.reading.today = row.date;
        for (const auto come : {loadmainwindow, refreshday}) {
            main.session.view.disclaimer.clear();
            come(main.context);
            EXPECT_EQ(main.session.view.disclaimer.substr(0, main.session.view.disclaimer.find('\r')), row.line);
            if (row.firstwater) {
                EXPECT_EQ(main.session.daytable.turningtext[1].time, row.firstwater);
            }
        }
    }
}

}  // namespace
}  // namespace tarvane
