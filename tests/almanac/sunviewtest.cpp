#include "almanac/sunoutput.h"
#include "almanac/sunview.h"

#include <gtest/gtest.h>

#include <tuple>

#include "fakes/mainfixture.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

struct SunView : LoadedMain {
    SunOutcome calculate(const std::string& latitude, const std::string& longitude) {
        return calculatesun(context, {"User entry", latitude, longitude});
    }

    std::string file(const std::string& name) const { return folder / name; }
};

TEST_F(SunView, PositionsTakenAndRefused) {
    constexpr auto good = SunOutcome::calculated, lat = SunOutcome::badlatitude, lon = SunOutcome::badlongitude;
    using Row = std::tuple<const char*, const char*, SunOutcome>;
    for (const auto& [latitude, longitude, outcome] :
         {Row{"  50.45.00N  ", " 001.30.00W ", good}, Row{"89.59S", "179.59W", good}, Row{"50N", "1W", good},
          Row{"50.45N", "180.00E", lon}, Row{"90.00N", "1.30W", lat}, Row{"S50.45", "1.30W", lat},
          Row{"S50.45N", "1.30W", lat}, Row{"050.45.00N", "1.30W", lat}, Row{"50.45N", "0001.30.00W", lon},
          Row{"50.45N", "1.30", lon}, Row{"50.45n", "1.30W", lat}, Row{"50.45N", "1.30N", lon}, Row{"", "1.30W", lat},
          Row{"50.45N", "", lon}, Row{"N", "1.30W", lat}, Row{"bad", "bad", lon},
          Row{"50.45N", "1.30W\xc3\xa9", lon}}) {
        const int beeps = scripted.messages.beeps;
        EXPECT_EQ(calculate(latitude, longitude), outcome) << latitude << " " << longitude;
        EXPECT_EQ(scripted.messages.beeps - beeps, outcome == good ? 0 : 1);
        EXPECT_EQ(session.suntable.suntext[1][1].empty(), outcome != good) << latitude << " " << longitude;
    }
}

TEST_F(SunView, ThePortsZoneAndOneShiftServeTheWholeMonth) {
    session.settings.currentport = 2;
    takecurrentport(session, true);
    setdateonshow(session.onshow, makedate(2024, 3, 31));
    session.settings.summerflag2 = 0;
    calculate("50.30N", "1.15W");
    const double plain = session.suntable.sunvalues[1][4];
    EXPECT_DOUBLE_EQ(plain, SunTimes(50.5, -1.25, 1, 3, 2024, 0, -1).sunrise);
    session.settings.summerflag2 = -1;
    calculate("50.30N", "1.15W");
    EXPECT_DOUBLE_EQ(session.suntable.sunvalues[1][4], plain + 1);
}

TEST_F(SunView, ADayBehindTheMonthsEndIsPutBack) {
    session.view.stepbuttonsvisible = false;
    setdateonshow(session.onshow, makedate(2023, 1, 31));
    DayScroll scroll = opensunresults(session, 220);
    EXPECT_EQ(scroll.value, 31 * 44);
    EXPECT_EQ(scroll.maximum, scroll.value);
    EXPECT_EQ(scroll.smallchange, 44);
    EXPECT_EQ(scroll.largechange, 73);
    EXPECT_TRUE(session.view.stepbuttonsvisible);
    session.onshow.tidemonth = 2;
    scroll = opensunresults(session, 220);
    EXPECT_EQ(scroll.value, 28 * 44);
    EXPECT_EQ(session.onshow.tideday, 28);
}

TEST(SunViewKeys, EveryKey) {
    for (char32_t key = 1; key < 0x2000; ++key) {
        const bool both = (key >= U'0' && key <= U'9') || key == U'.' || key == 8 || key == 127;
        const bool north = key == U'N' || key == U'n', south = key == U'S' || key == U's';
        const bool east = key == U'E' || key == U'e', west = key == U'W' || key == U'w';
        EXPECT_EQ(latitudekey(key), both ? key : north ? U'N' : south ? U'S' : U'\0') << static_cast<unsigned>(key);
        EXPECT_EQ(longitudekey(key), both ? key : east ? U'E' : west ? U'W' : U'\0') << static_cast<unsigned>(key);
    }
}

TEST(SunViewPaths, ExtensionIsCutAndPut) {
    EXPECT_EQ(csvpath("/a/s.un.txt"), "/a/s.csv");
    EXPECT_EQ(csvpath("/a.b/sun"), "/a.b/sun.csv");
    EXPECT_EQ(csvpath("sun."), "sun.csv");
}

TEST_F(SunView, SavesATypedPlaceUnderThePortsHeadingAndReplacesOnYesOnly) {
    calculate("69.00N", "20.00E");
    session.settings.currentsummer = -1;
    scripted.filedialogs.expectsave(file("sun.text"));
    savesuncsv(context);
    const std::string written = filetext(file("sun.csv"));
    EXPECT_TRUE(written.starts_with("Alder Quay,Time Zone = Summer Time, 50.30N, 1.15W\r\nDate,Sunrise,")) << written;
    EXPECT_TRUE(written.ends_with(",00:00:00,00:00:00\r\n")) << "no nautical twilight so late in April";
    EXPECT_EQ(session.view.answer, "Saved: " + file("sun.csv"));
    const FileRequest request = scripted.filedialogs.requests.front();
    EXPECT_EQ(request.folder, session.folders.programfolder);
    EXPECT_EQ(request.filter, "CSV file | *csv");
    EXPECT_FALSE(request.askoverwrite);
    putfile(file("sun.csv"), "old");
    for (const bool answer : {false, true}) {
        scripted.filedialogs.expectsave(file("sun"));
        scripted.messages.expectask("File exist - Overwrite?", answer, "Tarvane", MessageIcon::question);
        savesuncsv(context);
        EXPECT_EQ(filetext(file("sun.csv")), answer ? written : "old");
    }
    session.folders.ownfolder = file("own");
    scripted.filedialogs.expectsave(std::nullopt);
    savesuncsv(context);
    EXPECT_EQ(scripted.filedialogs.requests.back().folder, session.folders.textoutputfolder);
}

TEST_F(SunView, NothingIsSavedWithoutANameAndAFailureIsTold) {
    calculate("50.30N", "1.15W");
    scripted.filedialogs.expectsave(std::nullopt);
    savesuncsv(context);
    EXPECT_EQ(session.suntable.suntext[1][1], " 1Apr  2024");
    const std::string path = file("nowhere/sun.csv");
    scripted.filedialogs.expectsave(path);
    session.view.answer = "of before";
    scripted.messages.expectshow("The file could not be written:\r" + path + ": No such file or directory", "Tarvane",
                                 MessageIcon::exclamation);
    savesuncsv(context);
    EXPECT_EQ(session.view.answer, "");
}

}  // namespace
}  // namespace tarvane::tests
