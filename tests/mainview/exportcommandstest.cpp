// The entries of the special menu: where their files go, what the user is told and what they leave behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "mainview/menus.h"
#include "mainview/readouts.h"
#include "mainview/stepping.h"
#include "session/statusline.h"

namespace tarvane::tests {
namespace {

namespace fs = std::filesystem;

struct ExportCommands : LoadedMain {
    const std::string program = session.folders.programfolder;

    void choose(const std::string& entry) {
        Desk desk{context, {}, {}};
        for (const MenuEntry& each : menuentries())
            if (entry == each.name) return each.command(desk);
        FAIL() << entry;
    }

    static std::size_t files(const std::string& folder) {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    std::string line() const { return statusline(session.prediction, session.areaorigin, {}, scripted.locale); }
};

TEST_F(ExportCommands, DayConstantsOfThreeYearsTheOtherEntryOverTheFirst) {
    choose("mnuAnglesAndFactors");
    EXPECT_TRUE(filetext(program + "/2017Factors.csv").starts_with("id,Julian"));
    choose("mnuCalcOrbitalConst");
    for (const std::string year : {"2016", "2017", "2018"})
        EXPECT_TRUE(filetext(program + "/" + year + "Factors.csv").starts_with("Julian,")) << year;
    EXPECT_EQ(session.view.answer, "Saved: " + program + "/2016Factors.csv, " + program + "/2017Factors.csv, " +
                                       program + "/2018Factors.csv");
    EXPECT_EQ(files(program), 4U);
}

TEST_F(ExportCommands, TheYearsFileAndTheBlankCurveBehindIt) {
    session.port.portname = "  Alder Quay ";
    const std::string path = program + "/Alder Quay-HWTimes.csv";
    scripted.messages.expectshow("Year 2024  HW times written to " + path);
    const auto row149 = session.prediction.curvesamples[149].height;
    choose("mnuYears");
    EXPECT_EQ(scripted.progress.texts.at(0), "High waters of Alder Quay, 2024 and 2025");
    EXPECT_NE(filetext(path).find("\r\n100,2024,99,4.85625"), std::string::npos);
    EXPECT_EQ(session.onshow.tidedayofyear, 365);
    EXPECT_EQ(session.prediction.curvesamples[148].time, 147 / 6.0);
    EXPECT_EQ(session.prediction.curvesamples[40].height, 0);
    EXPECT_EQ(session.prediction.curvesamples[149].height, row149);
    EXPECT_EQ(session.prediction.turningcount, 4);
    EXPECT_EQ(
        line(),
        "No tides of Alder Quay (1), Tuesday 9 April 2024: The run through the years blanked the curve in memory; "
        "choosing a day or a port fills it");
    const std::string height = session.view.hiteval;
    picturemousemove(session, picture, 9);
    EXPECT_EQ(session.view.hiteval, height);
    // What was drawn before the run still is the day's curve, and can be saved.
    scripted.filedialogs.expectsave(folder / "day.txt", "Save hourly details");
    choose("mnusaveday");
    EXPECT_NE(filetext(folder / "day.txt").find("\t04:40\t5.54\r\n"), std::string::npos);
    nextport(context);
    EXPECT_TRUE(line().starts_with("Tides of Birch Sound (2), Monday 30 December 2024, ")) << line();
    nextday(context);
    EXPECT_TRUE(line().starts_with("Tides of Birch Sound (2), Wednesday 10 April 2024, ")) << line();
}

TEST_F(ExportCommands, CancelledLeavesEverythingAsItWas) {
    scripted.progress.cancelafter = 400;
    choose("mnuYears");
    EXPECT_EQ(session.view.answer, "Cancelled: no file was written");
    EXPECT_EQ(files(program), 1U);
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
    EXPECT_TRUE(session.prediction.defined);
}

TEST_F(ExportCommands, ANameThatIsNoFilesNameAndAFolderOfTheUsersOwn) {
    session.port.portname = "Up/Down: é";
    session.folders.ownfolder = folder / "own";
    const std::string path = folder / "own/Up_Down_ é-HWTimes.csv";
    scripted.messages.expectshow("Year 2024  HW times written to " + path);
    choose("mnuYears");
    EXPECT_TRUE(fs::exists(path));
    EXPECT_EQ(files(program), 1U);
    session.folders.ownfolder = area() + "/own";
    scripted.messages.expectshow("The file could not be written:\r" + area() + "/own/2016Factors.csv: Not a directory");
    choose("mnuAnglesAndFactors");
    session.folders.ownfolder = folder / "full";
    fs::create_directory(folder / "full");
    scripted.messages.expectshow("The file could not be written:\r" + (folder / "full/2016Factors.csv") +
                                 ": File too large");
    onadiskof(1000, [&] {
        choose("mnuAnglesAndFactors");
        return 0;
    });
    EXPECT_EQ(files(folder / "full"), 0U);
    EXPECT_EQ(session.view.answer, "");
}

TEST_F(ExportCommands, APortOrYearWithoutTidesIsTold) {
    const std::string failed = "The year's high waters could not be calculated:\r";
    session.onshow.tideyear = 1989;
    scripted.messages.expectshow(failed + "1 January 1990: The method has no constants for this day");
    choose("mnuYears");
    session.settings.currentport = 5;
    scripted.messages.expectshow(failed + "The sea area has no port of this number");
    choose("mnuYears");
    fs::remove(area());
    scripted.messages.expectshow(failed + "The sea area's file can't be found");
    choose("mnuYears");
    EXPECT_EQ(files(program), 0U);
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
}

}  // namespace
}  // namespace tarvane::tests
