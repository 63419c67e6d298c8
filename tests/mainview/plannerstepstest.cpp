// What the planner asks of the main window: a port and a day, as their dialogs would have it; and the present tide.
#include "mainview/plannersteps.h"

#include <filesystem>

#include "fakes/mainfixture.h"
#include "mainview/stepping.h"
#include "session/statusline.h"

namespace tarvane::tests {
namespace {

struct PlannerSteps : LoadedMain {
    std::string status() {
        refreshstatus(context);
        return session.view.statusline;
    }
};

TEST_F(PlannerSteps, APortIsChosenAsInItsList) {
    store([](ConfigRecord& record) { record.draught = 1.8F; });
    chooseport(context, 3);
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(stored().draught, 1.8F) << "what others stored survives";
    EXPECT_EQ(session.settings.currentdraught, 1.8F) << "and comes into force";
    EXPECT_EQ(session.view.portbox, "Port    : Cedar Head");
    EXPECT_EQ(status(), "Tides of Cedar Head (3), Tuesday 9 April 2024, UT, heights above chart datum");
    // Another run of the program has gone to another area: the number is of the one in hand.
    writeport(folder / "Other.hc", 1, fixtureport("Other Place", 2));
    store([&](ConfigRecord& record) { record.hcfilepath = folder / "Other.hc"; });
    chooseport(context, 2);
    EXPECT_EQ(session.settings.hcfile, area());
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
    EXPECT_EQ(stored().hcfilepath, area());
    std::filesystem::remove(area());
    scripted.messages.expectshow("Error in Port selection, Port number greater than the number of records in the file");
    chooseport(context, 4);
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
}

TEST_F(PlannerSteps, ADayIsShownAsIfEntered) {
    nextday(context);
    showdate(context, makedate(2026, 10, 25));
    EXPECT_EQ(session.view.tidedatebox, "Date   : 25 October 2026 (Sunday)");
    EXPECT_EQ(session.onshow.tidedayofyear, 298);
    EXPECT_EQ(status(), "Tides of Alder Quay (1), Sunday 25 October 2026, UT, heights above chart datum");
}

TEST_F(PlannerSteps, ThePresentTideIsToldWhateverDayIsOnShow) {
    PresentTide present;
    const auto brief = [&] { return presenttidetexts(context, present).brief; };
    const std::string text = brief();
    // In summer time and to the minute; the day's table is without it, in rows of ten.
    EXPECT_EQ(text, "Now 3.6 m, rising 1.2 m/h, HW 18:03 UT+1");
    const std::string whole = presenttidetexts(context, present).whole;
    EXPECT_TRUE(whole.starts_with("Now 15:32: 3.6 m, rising 1.2 m/h. High water 5.5 m at 18:03, in 2 h 31 min. Low"))
        << whole;
    EXPECT_NE(whole.find("\nTimes by the port's clock"), std::string::npos) << whole;
    EXPECT_NE(session.daytable.daystide1.find("17:00   5.5"), std::string::npos) << session.daytable.daystide1;
    showdate(context, makedate(2026, 10, 25));
    EXPECT_EQ(brief(), text);
    scripted.clock.set(1990, 1, 1);
    EXPECT_EQ(brief(), "") << "no prediction";
    scripted.clock.set(2024, 4, 9, 14, 32);
    for (const int number : {0, 5, -1}) {
        session.settings.currentport = static_cast<std::int16_t>(number);
        EXPECT_EQ(brief(), "") << number;
    }
    session.settings.currentport = 1;
    std::filesystem::remove(area());
    EXPECT_EQ(brief(), "");
}

}  // namespace
}  // namespace tarvane::tests
