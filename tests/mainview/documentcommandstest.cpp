// The commands that print, save and copy, each driven by its entry of the menu.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <sstream>

#include "almanac/sunview.h"
#include "fakes/mainfixture.h"
#include "mainview/menus.h"
#include "mainview/monthcommand.h"
#include "mainview/stepping.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

enum class Kind { print, save, copy };

/// A command with what it asks, what it hands over and what it answers on 9 April 2024 with summer time.
struct Command {
    Kind kind;
    const char* entry;
    const char* asked;   ///< the question, the file dialog's title, or what is told
    const char* name;    ///< the document's, or the proposed file's
    const char* parts;   ///< of the text, in this order, "|" between them
    const char* answer;  ///< but for a saved file's
};

#define CLOSING                                                                 \
    "|All data are derived and should therefore be considered as approximate\n" \
    "|Times are from midnight local time - ADJUSTED FOR SUMMER TIME\n"

const Command commands[] = {
    {Kind::print, "mnudayprint", "              Print curve?", "Alder Quay curve 2024-04-09",
     "Metres\n|Port    : Alder Quay\n|9 April 2024 (Tuesday)\n|   05:40   5.5\n" CLOSING,
     "Printed: curve of Alder Quay, 9 April 2024"},
    {Kind::print, "mnuhrprint", "Print rise at 10 minute intervals?", "Alder Quay heights 2024-04-09",
     "Port    : Alder Quay\n|9 April 2024 (Tuesday)\n|Time Height\n|05:40    5.5\n|23:50    " CLOSING,
     "Printed: heights of Alder Quay, 9 April 2024"},
    {Kind::print, "mnumonthprint", "Print Months Tide Table?", "Alder Quay months tides 2024-04",
     "Port : Alder Quay  Tarvane Tides Months Predictions\n|Year : 2024 - Heights to Chart Datum\n|9 Apr (Tue)\n"
     "05:40   5.54\n11:50   0.67\n|30 Apr (Tue)\n" CLOSING,
     "Printed: months tides of Alder Quay, April 2024"},
    {Kind::print, "mnusunprint", "Print Sun and Lunar times?", "Alder Quay sun and moon 2024-04",
     "Alder Quay\n 50.30N\n 1.15W\n|Nautical Twilights\n| 1Apr  2024\n06:40\n19:38\n|NEW MOON" CLOSING,
     "Printed: sun and moon of Alder Quay, April 2024"},
    {Kind::save, "mnusavmonth", "Save Months Tides To Text File", "Alder Quay_Apr_2024",
     "Alder Quay\tApril 2024\r\n|\r\n9 Apr\t(Tue)\r\n05:40\t5.54\r\n|\r\nSummer Time\r\n", ""},
    {Kind::save, "mnusaveday", "Save hourly details", "",
     "Port    : Alder Quay\r\nDate   : 9 April 2024 (Tuesday)\r\n\t00:00\t|\t05:40\t5.54\r\n|\t23:50\t", ""},
    {Kind::save, "mnusavesun", "Save Sun's Data To Text File", "",
     "\tAlder Quay\t 50.30N\t 1.15W\r\n\tDate\t|\t 1Apr  2024\t06:40\t19:38\t", ""},
    {Kind::copy, "mnuCopyDaysTides", "", "",
     "Port : Alder Quay\r\nDate : 9/4/2024\r\n\r\n05:40   5.5\r\n|(Summer Time)\r\nSpring",
     "Copied: the day's tides of Alder Quay"},
    {Kind::copy, "mnuCopyMonth", "", "",
     "Alder Quay\tApril 2024\r\n|\r\n9 Apr\t(Tue)\r\n05:40\t5.54\r\n|\r\nTimes are for :\tSummer Time\r\n",
     "Copied: the month's tides of Alder Quay"},
    {Kind::copy, "mnuCopySunTimes", "The day's sunrise and sunset times have been copied to the clipboard", "",
     "Port : Alder Quay\tTime Zone = Summer Time\r\n\r\nDate : 9/4/2024\r\n\r\nSunrise : 06:2|Sunset  : 19:5", ""},
    {Kind::copy, "mnuCopyMonthSunTimes", "Months sunrise and sunset times have been copied to the clipboard", "",
     "Alder Quay\tTime Zone = Summer Time\t 50.30N\t 1.15W\r\n|\r\n1/4/2024\t06:40:|\r\n30/4/2024\t", ""}};

struct DocumentCommands : MainFixture, testing::Test {
    DocumentCommands() {
        store([](ConfigRecord& record) {
            record.summertimeflag = -1;
            record.outputoption = 1;
        });
        come();
    }

    void come() {
        load();
        preparesunview(session);
        calculatesun(context, portsuninput(session));
        clearmonthlist(session);
    }

    /// The entry's command, its question or dialog answered; what it handed over, everything else being emptied.
    std::string run(const Command& command, const std::string& path = "", bool answer = true,
                    const std::string& failure = "") {
        if (command.kind == Kind::print)
            scripted.messages.expectask(command.asked, answer, "Tarvane", MessageIcon::question);
        if (command.kind == Kind::save)
            scripted.filedialogs.expectsave(answer ? std::optional(path) : std::nullopt, command.asked);
        if (command.kind == Kind::copy && *command.asked) scripted.messages.expectshow(command.asked, "Tarvane");
        if (!failure.empty()) scripted.messages.expectshow(failure, "Tarvane", MessageIcon::exclamation);
        choose(command.entry);
        std::string text = scripted.clipboard.contents + filetext(path);
        for (const std::string& line : scripted.printer.texts())
            text += line + "\n";
        scripted.printer.printed.clear();
        scripted.clipboard.contents.clear();
        return text;
    }

    void choose(const std::string& entry) {
        Desk desk{context, {}, {}};
        for (const MenuEntry& each : menuentries())
            if (entry == each.name) return each.command(desk);
        FAIL() << entry;
    }

    void fails(const Command& command, const std::string& told, const std::string& path = "") {
        session.view.answer = "of before";
        run(command, path, true, told);
        EXPECT_EQ(session.view.answer, "");
    }

    const std::string file = folder / "St Mary's é.tides";
};

TEST_F(DocumentCommands, EachHandsOverItsOwnWithTheShiftAndTheWordsOfSummerTime) {
    for (const Command& command : commands) {
        session.view.answer = "of before";
        if (command.kind != Kind::copy) {
            EXPECT_EQ(run(command, file, false), "") << command.entry;
            EXPECT_EQ(session.view.answer, "of before");
        }
        putfile(file, std::string(100000, 'x'));
        const int documents = scripted.printer.documents, clears = scripted.clipboard.clears;
        const std::string text = run(command, file);
        std::istringstream parts(command.parts);
        std::size_t at = 0;
        for (std::string part; std::getline(parts, part, '|');) {
            at = text.find(part, at);
            EXPECT_NE(at, std::string::npos) << command.entry << " lacks " << part << text;
        }
        EXPECT_EQ(scripted.printer.documents - documents, command.kind == Kind::print);
        EXPECT_EQ(scripted.clipboard.clears - clears, command.kind == Kind::copy);
        EXPECT_EQ(session.view.answer, command.kind == Kind::save ? "Saved: " + file : command.answer);
        if (command.kind == Kind::print) {
            EXPECT_EQ(scripted.printer.title, command.name);
            scripted.printer.place = "/somewhere/page.pdf";
            run(command);
            EXPECT_EQ(session.view.answer, "Printed: /somewhere/page.pdf");
            scripted.printer.place.clear();
        }
        if (command.kind == Kind::save) {
            const FileRequest& request = scripted.filedialogs.requests.back();
            EXPECT_EQ(request.filename, command.name);
            EXPECT_EQ(request.folder, session.folders.textoutputfolder);
            EXPECT_EQ(request.filter, "Tables (*.txt)|*.txt");
            EXPECT_TRUE(request.askoverwrite);
            EXPECT_EQ(text.find("xx"), std::string::npos) << "the old file is replaced whole";
            run(command, "");
        }
        std::filesystem::remove(file);
        clearmonthlist(session);
        come();
    }
}

TEST_F(DocumentCommands, WhatCannotBeDoneIsToldWithItsReasonAndHarmsNothing) {
    const std::string nowhere = folder / "nowhere/tides.txt";
    putfile(file, "old");
    for (const Command& command : commands) {
        if (command.kind == Kind::print) {
            const std::string told = "The page could not be printed:\r/home/anna/TextOutput: Permission denied";
            scripted.printer.refuse = "/home/anna/TextOutput: Permission denied";
            fails(command, told);
            std::swap(scripted.printer.refuse, scripted.printer.fail);
            fails(command, told);
            scripted.printer.fail.clear();
        }
        if (command.kind == Kind::save) {
            fails(command, "The file could not be written:\r" + nowhere + ": No such file or directory", nowhere);
            fails(command, "The file could not be written:\r" + folder.path() + ": Is a directory", folder.path());
        }
    }
    EXPECT_EQ(scripted.printer.documents, 0);
    EXPECT_EQ(filetext(file), "old");
}

TEST_F(DocumentCommands, WhatIsNotThereIsCalculatedOrRefused) {
    clearsuntable(session.suntable);
    for (const Command& command : commands) {
        const std::string entry = command.entry;
        if (entry == "mnusunprint" || entry == "mnusavesun") {
            if (entry == "mnusunprint") scripted.messages.expectask(command.asked, true);
            scripted.messages.expectshow("Calculate a months suntimes\rbefore choosing this option", "Tarvane",
                                         MessageIcon::information);
            choose(entry);
        }
        if (entry != "mnumonthprint" && entry != "mnusavmonth" && entry != "mnuCopyMonth") continue;
        for (const std::size_t rows : {0U, 9U, 10U, 11U}) {
            session.month.monthspredictions.assign(rows, "x");
            session.view.monthvisible = false;
            // ten rows are too few to print and too many to be calculated before saving and copying
            const bool refused = rows == 10 && entry != "mnumonthprint";
            if (refused) {
                scripted.messages.expectshow("Calculate a months tides\rbefore choosing this option", "Tarvane",
                                             MessageIcon::information);
                choose(entry);
            } else {
                run(command, file);
            }
            EXPECT_EQ(session.view.monthvisible, rows < 10 || (rows == 10 && !refused)) << entry << rows;
        }
    }
}

TEST_F(DocumentCommands, NothingIsMadeUpWhereThereIsNoPrediction) {
    HarmonicRecord broken = fixtureport("Alder Quay", 3);
    broken.M2g = std::numeric_limits<float>::quiet_NaN();
    for (const std::string reason : {noconstants, brokenrecord}) {
        scripted.clock.set(reason == noconstants ? 1990 : 2024, 1, 2);
        if (reason == brokenrecord) {
            ASSERT_TRUE(writeport(area(), 1, broken));
            storedepth(1, std::numeric_limits<float>::infinity());
        }
        come();
        session.settings.currentoutput = 3;
        for (const Command& command : commands) {
            const std::string text = run(command, file), entry = command.entry;
            if (entry.find("sun") == std::string::npos && entry.find("Sun") == std::string::npos) {
                EXPECT_NE(text.find("No prediction"), std::string::npos) << entry;
                EXPECT_NE(text.find(reason), std::string::npos) << entry;
            }
            for (const char* odd : {"nan", "NaN", "inf", "Inf", "19998", "    0.0", "\t0.00"})
                EXPECT_EQ(text.find(odd), std::string::npos) << entry << " has " << odd << "\n" << text;
        }
    }
}

TEST_F(DocumentCommands, EachIsNamedAfterWhatItHoldsAndACsvHasCommas) {
    ASSERT_TRUE(writeport(area(), 1, fixtureport("Alder/Quay: \"A\"", 3)));
    scripted.locale.months[11] = "décembre";
    scripted.clock.set(2024, 12, 31);
    come();
    calculatemonth(context);
    calculatesun(context, {"User entry", "50.30N", "1.15W"});
    nextday(context);
    const char* const titles[] = {"Alder/Quay: \"A\" curve 2025-01-01", "Alder/Quay: \"A\" heights 2025-01-01",
                                  "Alder/Quay: \"A\" months tides 2024-12", "User entry sun and moon 2024-12"};
    for (std::size_t i = 0; i < std::size(titles); ++i) {
        run(commands[i]);
        EXPECT_EQ(scripted.printer.title, titles[i]);
    }
    const std::string csv = run(commands[4], folder / "tides.csv");
    EXPECT_TRUE(
        csv.starts_with("Alder/Quay: \"A\",d\xE9"
                        "cembre 2024\r\n,\r\n1 d\xE9"
                        "c,(Sun)\r\n"))
        << csv;
    EXPECT_EQ(scripted.filedialogs.requests.back().filename, "Alder_Quay_ _A__Jan_2025") << "of the day on show";
    run(commands[10]);
    run(commands[3]);
    EXPECT_EQ(scripted.printer.title, "Alder/Quay: \"A\" sun and moon 2025-01") << "the port's, without titles";
}

TEST_F(DocumentCommands, PrintingTheCurveDrawsItAnewOnTheScreen) {
    const int drawn = picture.persistentclears;
    run(commands[0], "", false);
    EXPECT_EQ(picture.persistentclears, drawn);
    run(commands[0]);
    EXPECT_EQ(picture.persistentclears, drawn + 1);
}

TEST_F(DocumentCommands, TheDaysSunChangesTheDayTableUntilTheNextRefresh) {
    const Command &tides = commands[7], &sun = commands[9];
    const std::string before = run(tides);
    run(sun);
    const std::string changed = run(tides);
    EXPECT_TRUE(changed.starts_with("Port : Alder Quay\tTime Zone = Summer Time\r\n\r\nDate : 9/4/2024\r\n\r\n05:40"));
    refreshday(context);
    EXPECT_EQ(run(tides), before);
}

TEST_F(DocumentCommands, TheMonthsSunGoesByTheRecordAndTheDateOnShow) {
    ASSERT_TRUE(nextport(context));
    // a position typed or read earlier is not what is copied
    session.port.portlat = 0;
    session.suntable.suntext[1][suncolumn::sunrise] = "06:40";
    for (const std::int16_t shift : {std::int16_t{0}, std::int16_t{-1}}) {
        session.settings.summerflag2 = shift;
        const std::string text = run(commands[10]);
        EXPECT_TRUE(text.starts_with("Birch Sound")) << text;
        EXPECT_NE(text.find(shift == 0 ? "\r\n1/4/2024\t06:40:01\t19:38:21\t" : "\r\n1/4/2024\t07:40:01\t20:38:21\t"),
                  std::string::npos)
            << text;
        EXPECT_EQ(session.suntable.suntext[1][suncolumn::date] + session.suntable.suntext[1][suncolumn::sunrise],
                  "1/4/2024");
    }
}

}  // namespace
}  // namespace tarvane::tests
