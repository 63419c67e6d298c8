#include "mainview/menus.h"

#include <gtest/gtest.h>

#include <optional>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

/// The entries that print, save and copy have a test of their own, and which window each opens is the main window's.
struct Menus : LoadedMain {
    Desk desk{context, [this](Dialog dialog) { opened = dialog; }, [this] { left = true; }};
    std::optional<Dialog> opened;
    bool left = false;

    void choose(const std::string& name) {
        for (const MenuEntry& entry : menuentries())
            if (entry.name == name) return entry.command(desk);
        ADD_FAILURE() << name << " is not to be had";
    }
};

TEST_F(Menus, SomeEntriesDoMoreThanOpenAWindow) {
    session.month.monthcells[1][1][1] = "00:10";
    choose("mnuoutputoptions");
    EXPECT_EQ(session.month.monthcells[1][1][1], "");
    EXPECT_TRUE(session.lunar.lunartext.empty());
    choose("mnusunrise");
    EXPECT_FALSE(session.lunar.lunartext.empty());
    scripted.filedialogs.expectopen(area(), "Select Sea Area");
    choose("mnuArea");
    EXPECT_EQ(opened, Dialog::selectport);
    scripted.messages.expectshow(keystext());
    choose("mnuKeys");
    choose("mnuHelp");
    EXPECT_EQ(scripted.windows.manuals, std::vector<std::string>{"frmtarvane"});
    choose("mnuExit");
    EXPECT_TRUE(left);
}

TEST_F(Menus, WindowsThatChangeTheDayAreFollowedByTheCurve) {
    for (const char* entry :
         {"mnutidedate", "mnuPortList", "mnusunrise", "Mnushowconfig", "mnumaintainfile", "mnucopyconstants"}) {
        session.view.topmenusenabled = false;
        const int before = picture.persistentclears;
        choose(entry);
        EXPECT_EQ(picture.persistentclears, before + 1) << entry;
        EXPECT_EQ(session.view.topmenusenabled, std::string(entry) == "mnuPortList") << entry;
    }
    session.view.topmenusenabled = false;
    choose("mnuchartdepth");
    EXPECT_TRUE(session.view.topmenusenabled);
    // The sun of a date chosen in the window: the day's times are fetched anew.
    desk.open = [this](Dialog) { setdateonshow(session.onshow, makedate(2024, 12, 21)); };
    const double april = session.sun.sunrise;
    choose("mnutidedate");
    EXPECT_GT(session.sun.sunrise, april + 1);
}

TEST_F(Menus, TheKeysAreNamed) {
    const std::string text = keystext();
    EXPECT_TRUE(text.starts_with("Tarvane Tides   (v9.5.0)"));
    for (const char* line : {"\nCtrl+F: Port by Name\n", "\nCtrl+G: Planner\n", "\nF1: Help\n",
                             "\nCtrl+C: Copy Days Tides\n", "\nPage Down, Page Up: "})
        EXPECT_NE(text.find(line), std::string::npos) << line;
}

TEST_F(Menus, HiddenPartsComeWithTheirClicks) {
    EXPECT_FALSE(session.view.specialvisible);
    session.view.stepbuttonsvisible = session.view.topmenusenabled = false;
    showspecial(session);
    EXPECT_TRUE(session.view.specialvisible && session.showconstants);
    EXPECT_FALSE(session.view.stepbuttonsvisible);
    showsteps(session);
    EXPECT_TRUE(session.view.stepbuttonsvisible && session.view.topmenusenabled);
}

}  // namespace
}  // namespace tarvane::tests
