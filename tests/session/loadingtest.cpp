#include "session/loading.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "engine/springs.h"
#include "fakes/mainfixture.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

struct Loading : testing::Test, MainFixture {};

TEST_F(Loading, ComesUpOnTheStoredPortAndToday) {
    load();
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");
    EXPECT_EQ(session.view.tidedatebox, "Date   : 9 April 2024 (Tuesday)");
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
    EXPECT_DOUBLE_EQ(session.timenow, 14 + 32 / 60.0);
    EXPECT_EQ(session.clocktime, session.timenow);
    const auto marker = ScriptedSurface::only(picture.passinglayer, ScriptedSurface::Kind::line, red);
    ASSERT_EQ(marker.size(), 1U);
    EXPECT_EQ(marker[0].x1, session.timenow);
    EXPECT_EQ(marker[0].x2, session.timenow);
    EXPECT_EQ(session.view.lblmousestatus, "(Click mouse to freeze)");
    EXPECT_EQ(session.view.timeval + " " + session.view.hiteval + session.view.lblrate, "14:30 3.5");
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

TEST_F(Loading, BrokenFilesAndAPortPastTheEndComeUpFlatAndUnharmed) {
    store([](ConfigRecord& record) { record.portnumber = 4000; });
    load();
    EXPECT_EQ(session.prediction.dayrange, 0);
    EXPECT_EQ(session.port.zonehours, 0);
    putfile(session.folders.cfgpath(), "short");
    putfile(area(), std::string(60, '\0'));
    load();
    EXPECT_EQ(session.prediction.turningcount, 0);
    EXPECT_EQ(filetext(session.folders.cfgpath()).size(), 5U);
    EXPECT_EQ(filetext(area()).size(), 60U);
    std::filesystem::remove(area());
    std::filesystem::remove(session.folders.cfgpath());
    load();
    EXPECT_EQ(session.port.portname, "");
    EXPECT_EQ(stored().portnumber, 77) << "a first run writes its defaults";
    EXPECT_FALSE(std::filesystem::exists(area()));
}

TEST_F(Loading, UndefinedDayIsSaidPlainly) {
    load();
    EXPECT_NE(springstext(session.curve.springslag), "");
    scripted.clock.set(1990, 1, 2);
    load();
    EXPECT_EQ(springstext(session.curve.springslag), "") << "no day's place between springs and neaps";
    EXPECT_TRUE(session.view.caption.ends_with("[No prediction]"));
    EXPECT_NE(session.daytable.daystide1.find("No prediction"), std::string::npos);
    EXPECT_EQ(session.view.hiteval, "");
    EXPECT_EQ(ScriptedSurface::log(picture.persistentlayer).find("nan"), std::string::npos);
    session.onshow.tidedayofyear = 3;
    refreshday(context);
    EXPECT_NE(session.daytable.daystide1.find("(Range"), std::string::npos);
}

TEST_F(Loading, SummerTimeGoesByTheDateOnShow) {
    store([](ConfigRecord& record) { record.summertimeflag = -1; });
    const std::string adjusted = "Times are from midnight local time - ADJUSTED FOR SUMMER TIME";
    const std::string uncorrected = "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION";
    for (const auto& [day, firstwater] : {std::pair{makedate(2024, 4, 9), "05:40"},
                                          {makedate(2024, 3, 30), "01:00"},
                                          {makedate(2024, 10, 27), "00:50"}}) {
        scripted.clock.reading.today = day;
        for (const auto come : {loadmainwindow, refreshday}) {
            session.view.disclaimer.clear();
            come(context);
            EXPECT_TRUE(session.view.disclaimer.starts_with(monthof(day) == 4 ? adjusted : uncorrected));
            EXPECT_EQ(session.daytable.turningtext[1].time, firstwater);
        }
    }
}

}  // namespace
}  // namespace tarvane::tests
