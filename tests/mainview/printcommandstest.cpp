#include "mainview/printcommands.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "almanac/sunoutput.h"
#include "almanac/sunview.h"
#include "fakes/mainfixture.h"
#include "mainview/monthcommand.h"
#include "mainview/stepping.h"

namespace tarvane::tests {
namespace {

struct Command {
    const char* question;
    void (*run)(MainContext&);
    const char* document;
    const char* printedtext;
};

const Command commands[] = {
    {"              Print curve?", printcurve, "Alder Quay curve 2024-04-09", "Metres"},
    {"Print rise at 10 minute intervals?", printtenminutes, "Alder Quay heights 2024-04-09", "Time Height"},
    {"Print Months Tide Table?", printmonth, "Alder Quay months tides 2024-04", "30 Apr (Tue)"},
    {"Print Sun and Lunar times?", printsun, "Alder Quay sun and moon 2024-04", "Nautical Twilights"},
};

class PrintCommands : public MainFixture, public testing::Test {
  protected:
    PrintCommands() {
        load();
        preparesunview(session);
        calculatesun(context, portsuninput(session));
    }

    void run(const Command& command, bool answer = true) {
        scripted.messages.expectask(command.question, answer, "Tarvane", MessageIcon::question);
        command.run(context);
    }

    bool printed(const std::string& text) const {
        const auto all = scripted.printer.texts();
        return std::find(all.begin(), all.end(), text) != all.end();
    }
};

TEST_F(PrintCommands, EachHandsOverOneDocumentOnYesOnly) {
    for (const Command& command : commands)
        run(command, false);
    EXPECT_EQ(scripted.printer.pages, 0);
    EXPECT_TRUE(session.month.monthspredictions.empty());
    int documents = 0;
    for (const Command& command : commands) {
        scripted.printer.printed.clear();
        run(command);
        EXPECT_EQ(scripted.printer.documents, ++documents);
        EXPECT_EQ(scripted.printer.title, command.document);
        EXPECT_TRUE(printed(command.printedtext)) << command.question;
    }
    scripted.printer.place = "/somewhere/curve.pdf";
    for (const bool refuse : {false, true}) {
        scripted.printer.refuse = refuse;
        for (const Command& command : commands) {
            scripted.messages.expectask(command.question, true);
            scripted.messages.expectshow(
                refuse ? "There is nothing to print to" : "Printed to the file\r/somewhere/curve.pdf", "Tarvane",
                refuse ? MessageIcon::exclamation : MessageIcon::information);
            command.run(context);
        }
    }
    EXPECT_EQ(scripted.printer.documents, 8);
}

TEST_F(PrintCommands, AMonthIsCalculatedOnceOnly) {
    run(commands[2]);
    session.month.days[0].head = "1 Apr (Mon) as it stood";
    run(commands[2]);
    EXPECT_TRUE(printed("1 Apr (Mon) as it stood"));
    session.month.monthspredictions.resize(10);
    scripted.printer.printed.clear();
    run(commands[2]);
    EXPECT_TRUE(printed("1 Apr (Mon)"));
}

TEST_F(PrintCommands, SunTimesMustHaveBeenCalculated) {
    clearsuntable(session.suntable);
    scripted.messages.expectask("Print Sun and Lunar times?", true);
    scripted.messages.expectshow("Calculate a months suntimes\rbefore choosing this option", "Tarvane");
    printsun(context);
    EXPECT_EQ(scripted.printer.documents, 0);
}

TEST_F(PrintCommands, TheCurveOnShowIsPrintedWithItsDayTableAndDrawnAnew) {
    nextday(context);
    const int drawn = picture.persistentclears;
    run(commands[0], false);
    EXPECT_EQ(picture.persistentclears, drawn);
    run(commands[0]);
    EXPECT_EQ(picture.persistentclears, drawn + 1);
    EXPECT_TRUE(printed(session.view.tidedatebox));
    EXPECT_TRUE(printed("   " + session.daytable.turningtext[1].time + "   " + session.daytable.turningtext[1].height));
}

}  // namespace
}  // namespace tarvane::tests
