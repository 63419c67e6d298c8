#include "mainview/savecommands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "mainview/mainfixture.h"
#include "mainview/monthcommand.h"
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

std::size_t linecount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
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
        for (const bool emptyname : {false, true}) {
            main.scripted.filedialogs.expectsave(emptyname ? std::optional<std::string>("") : std::nullopt,
                                                 command.title);
            command.run(main.context);
        }
        for (const FileRequest& request : main.scripted.filedialogs.requests) {
            EXPECT_EQ(request.filename, command.proposed);
            EXPECT_EQ(request.folder, main.session.folders.textoutputfolder);
            EXPECT_EQ(request.filter, "Tables (*.txt)|*.txt");
            EXPECT_TRUE(request.askoverwrite);
        }
        EXPECT_TRUE(std::filesystem::is_empty(main.session.folders.textoutputfolder));
    }
}

TEST(SaveCommands, AFileThatCantBeWrittenIsTold) {
    for (const Command& command : commands) {
        LoadedMain main;
        const std::string inside = main.folder / "taken/kept.txt";
        std::filesystem::create_directory(main.folder / "taken");
        ASSERT_TRUE(replacefile(inside, "kept"));
        for (const std::string& path : {main.folder / "taken", main.folder / "nowhere/tides.txt", inside + "/tides"}) {
            main.scripted.filedialogs.expectsave(path);
            main.scripted.messages.expectshow("The file could not be written:\r" + path, "Tarvane",
                                              MessageIcon::exclamation);
            command.run(main.context);
        }
        EXPECT_EQ(contents(inside), "kept");
        EXPECT_FALSE(std::filesystem::exists(main.folder / "nowhere"));
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(main.folder / "taken"), {}), 1);
    }
}

TEST(SaveCommands, ANameStaysAsTypedAndAnOldFileIsReplacedWhole) {
    for (const Command& command : commands) {
        LoadedMain main;
        const std::string path = main.session.folders.textoutputfolder + "/St Mary's é.tides";
        ASSERT_TRUE(replacefile(path, std::string(100000, 'x')));
        main.scripted.filedialogs.expectsave(path);
        command.run(main.context);
        const std::string text = contents(path);
        EXPECT_GT(text.size(), 50U);
        EXPECT_EQ(text.find("xx"), std::string::npos);
        EXPECT_TRUE(text.ends_with("\r\n"));
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(main.session.folders.textoutputfolder), {}), 1);
    }
}

TEST(SaveCommands, TheMonthIsCalculatedFirstAndTakesItsSeparatorFromTheName) {
    MainFixture main;
    main.load();
    main.session.settings.currentsummer = -1;
    struct Row {
        const char* name;
        const char* start;
        const char* end;
    };
    for (const Row& row :
         {Row{"april.txt", "Alder Quay\tApril 2024\r\n\t\r\n1 Apr\t(Mon)\r\n", "\r\nSummer Time\r\n"},
          Row{"april.csv", "Alder Quay,April 2024\r\n,\r\n1 Apr,(Mon)\r\n", "\r\nTimes are for :,Summer Time\r\n"}}) {
        const std::string path = main.folder / row.name;
        main.scripted.filedialogs.expectsave(path);
        savemonth(main.context);
        const std::string text = contents(path);
        EXPECT_TRUE(text.starts_with(row.start)) << text;
        EXPECT_TRUE(text.ends_with(row.end)) << text;
        EXPECT_EQ(linecount(text), main.session.month.monthcolumn1.size() + 1);
        EXPECT_NE(text.find("04:40"), std::string::npos);
    }
    EXPECT_TRUE(main.session.view.monthvisible);
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

TEST(SaveCommands, TheProposalIsEnglishAndGoesByTheDateOnShow) {
    MainFixture main;
    main.scripted.locale.months[11] = "décembre";
    main.scripted.clock.set(2024, 12, 31);
    main.load();
    main.scripted.filedialogs.expectsave(std::nullopt);
    savemonth(main.context);
    nextday(main.context);
    ASSERT_TRUE(nextport(main.context));
    main.scripted.filedialogs.expectsave(std::nullopt);
    savemonth(main.context);
    EXPECT_EQ(main.scripted.filedialogs.requests[0].filename, "Alder Quay_Dec_2024");
    EXPECT_EQ(main.scripted.filedialogs.requests[1].filename, "Birch Sound_Jan_2025");
}

TEST(SaveCommands, TheDayOnShowAfterAMonth) {
    MainFixture main;
    main.load();
    calculatemonth(main.context);
    const std::string path = main.folder / "day";
    main.scripted.filedialogs.expectsave(path);
    saveday(main.context);
    const std::string text = contents(path);
    EXPECT_EQ(linecount(text), 146U);
    for (const char* row : {"Port    : Alder Quay\r\nDate   : 9 April 2024 (Tuesday)\r\n\t00:00\t", "\t04:40\t5.54\r\n",
                            "\t10:50\t0.67\r\n", "\t17:00\t5.52\r\n", "\t23:10\t0.67\r\n"})
        EXPECT_NE(text.find(row), std::string::npos) << row;
}

TEST(SaveCommands, ADayWithoutAPredictionSaysSo) {
    MainFixture main;
    main.scripted.clock.set(1990, 1, 1);
    main.load();
    const std::string path = main.folder / "day.txt";
    main.scripted.filedialogs.expectsave(path);
    saveday(main.context);
    const std::string text = contents(path);
    EXPECT_EQ(linecount(text), 3U);
    EXPECT_NE(text.find("divide by zero"), std::string::npos);
    EXPECT_EQ(text.find("00:00"), std::string::npos);
}

}  // namespace
}  // namespace tarvane
