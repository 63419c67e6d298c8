#include "mainview/savecommands.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "almanac/sunoutput.h"
#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "mainview/stepping.h"

namespace tarvane {
namespace {

using tests::MainFixture;

std::string contents(const std::string& path) {
    std::string text;
    for (const std::byte byte : readwhole(path))
        text += static_cast<char>(byte);
    return text;
}

/// The three commands with what each asks for.
struct Command {
    void (*run)(MainContext&);
    const char* title;
    const char* proposed;
};

const Command commands[] = {{savemonth, "Save Months Tides To Text File", "Alder Quay_Apr_2024"},
                            {saveday, "Save hourly details", ""},
                            {savesun, "Save Sun's Data To Text File", ""}};

/// A loaded main window with a sun table of one day.
struct LoadedMain : MainFixture {
    LoadedMain() {
        load();
        session.suntable.suntext[1][1] = " 1Apr  2024";
    }
};

TEST(SaveCommands, AskWithTheSameDialogAndWriteNothingOnCancel) {
    for (const Command& command : commands) {
        LoadedMain main;
        for (const std::optional<std::string>& answer :
             {std::optional<std::string>{}, std::optional<std::string>{""}}) {
            main.scripted.filedialogs.expectsave(answer, command.title);
            command.run(main.context);
        }
        const FileRequest& request = main.scripted.filedialogs.requests[0];
        EXPECT_EQ(request.filename, command.proposed);
        EXPECT_EQ(request.folder, main.session.folders.textoutputfolder);
        EXPECT_EQ(request.filter, "Tables (*.txt)|*.txt");
        EXPECT_TRUE(request.askoverwrite);
        EXPECT_TRUE(std::filesystem::is_empty(main.session.folders.textoutputfolder));
    }
}

TEST(SaveCommands, AnOldFileIsReplacedWholeAndAFailureIsTold) {
    for (const Command& command : commands) {
        LoadedMain main;
        const std::string path = main.session.folders.textoutputfolder + "/St Mary's é.tides";
        ASSERT_TRUE(replacefile(path, std::string(100000, 'x')));
        main.scripted.filedialogs.expectsave(path);
        command.run(main.context);
        const std::string text = contents(path);
        EXPECT_GT(text.size(), 50U);
        EXPECT_EQ(text.find("xx"), std::string::npos);
        for (const std::string& bad : {main.session.folders.textoutputfolder, main.folder / "nowhere/tides.txt"}) {
            main.scripted.filedialogs.expectsave(bad);
            main.scripted.messages.expectshow("The file could not be written:\r" + bad, "Tarvane",
                                              MessageIcon::exclamation);
            command.run(main.context);
        }
        EXPECT_EQ(contents(path), text);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(main.session.folders.textoutputfolder), {}), 1);
    }
}

TEST(SaveCommands, WhatIsNotThereIsRefusedBeforeTheDialog) {
    MainFixture main;
    main.load();
    main.session.month.monthspredictions.assign(10, "x");
    for (const bool month : {true, false}) {
        main.scripted.messages.expectshow(
            std::string("Calculate a months ") + (month ? "tides" : "suntimes") + "\rbefore choosing this option",
            "Tarvane", MessageIcon::information);
        (month ? savemonth : savesun)(main.context);
    }
    EXPECT_TRUE(main.scripted.filedialogs.requests.empty());
}

TEST(SaveCommands, TheMonthIsCalculatedFirstAndTheNamesAreFollowed) {
    MainFixture main;
    main.scripted.locale.months[11] = "décembre";
    main.scripted.clock.set(2024, 12, 31);
    main.load();
    const std::string path = main.folder / "tides.csv";
    main.scripted.filedialogs.expectsave(path);
    savemonth(main.context);
    EXPECT_TRUE(main.session.view.monthvisible);
    EXPECT_TRUE(
        contents(path).starts_with("Alder Quay,d\xE9"
                                   "cembre 2024\r\n,\r\n1 d\xE9"
                                   "c,(Sun)\r\n"));
    nextday(main.context);
    ASSERT_TRUE(nextport(main.context));
    main.scripted.filedialogs.expectsave(std::nullopt);
    savemonth(main.context);
    EXPECT_EQ(main.scripted.filedialogs.requests[0].filename, "Alder Quay_Dec_2024");
    EXPECT_EQ(main.scripted.filedialogs.requests[1].filename, "Birch Sound_Jan_2025");
}

TEST(SaveCommands, TheDayOnShowOrWhyItHasNoPrediction) {
    for (const bool defined : {true, false}) {
        MainFixture main;
        if (!defined) main.scripted.clock.set(1990, 1, 1);
        main.load();
        const std::string path = main.folder / "day";
        main.scripted.filedialogs.expectsave(path);
        saveday(main.context);
        const std::string text = contents(path);
        if (defined) {
            EXPECT_TRUE(text.starts_with("Port    : Alder Quay\r\nDate   : 9 April 2024 (Tuesday)\r\n\t00:00\t"))
                << text;
            EXPECT_NE(text.find("\t04:40\t5.54\r\n"), std::string::npos);
        } else {
            EXPECT_TRUE(text.ends_with("(Monday)\r\nNo prediction. The method has no constants for this day\r\n"))
                << text;
        }
    }
}

}  // namespace
}  // namespace tarvane
