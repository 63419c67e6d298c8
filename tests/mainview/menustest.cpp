#include "mainview/menus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>

#include "almanac/sunview.h"
#include "fakes/mainfixture.h"
#include "files/wholefiles.h"

namespace tarvane::tests {
namespace {

/// The main window's context with a window opener that notes what was opened.
struct MenusFixture : MainFixture {
    MenusFixture() { load(); }

    Desk desk{context, [this](Dialog dialog) { opened = dialog; }, [this] { left = true; }};
    std::optional<Dialog> opened;
    bool left = false;

    void choose(const std::string& name) {
        const auto entries = menuentries();
        const auto entry =
            std::find_if(entries.begin(), entries.end(), [&](const MenuEntry& each) { return each.name == name; });
        if (entry == entries.end() || !entry->command)
            ADD_FAILURE() << name << " is not to be had";
        else
            entry->command(desk);
    }

    std::string saved() const {
        const auto bytes = readwhole(folder / "saved.txt");
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

    bool printed(const std::string& text) const {
        const auto all = scripted.printer.texts();
        return std::find(all.begin(), all.end(), text) != all.end();
    }

    void expectsave(const char* title) { scripted.filedialogs.expectsave(folder / "saved.txt", title); }
    void expectprint(const char* question) { scripted.messages.expectask(question, true); }
    void expecttold(const char* text) { scripted.messages.expectshow(text); }
};

struct Menus : testing::Test, MenusFixture {};

/// An entry, what is foreseen before it is chosen, and the one thing that it must cause.
struct Row {
    const char* entry;
    void (*foresee)(MenusFixture&);
    bool (*caused)(const MenusFixture&);
};

constexpr auto nothing = [](MenusFixture&) {};

const Row rows[] = {
    {"mnusavmonth", [](MenusFixture& m) { m.expectsave("Save Months Tides To Text File"); },
     [](const MenusFixture& m) { return m.saved().find("9 Apr\t(Tue)") != std::string::npos; }},
    {"mnusaveday", [](MenusFixture& m) { m.expectsave("Save hourly details"); },
     [](const MenusFixture& m) { return m.saved().find("\t23:50\t") != std::string::npos; }},
    {"mnusavesun", [](MenusFixture& m) { m.expectsave("Save Sun's Data To Text File"); },
     [](const MenusFixture& m) { return m.saved().find("Civil Twilights") != std::string::npos; }},
    {"mnumonthprint", [](MenusFixture& m) { m.expectprint("Print Months Tide Table?"); },
     [](const MenusFixture& m) { return m.printed("Year : 2024 - Heights to Chart Datum"); }},
    {"mnuhrprint", [](MenusFixture& m) { m.expectprint("Print rise at 10 minute intervals?"); },
     [](const MenusFixture& m) { return m.printed("Time Height"); }},
    {"mnudayprint", [](MenusFixture& m) { m.expectprint("              Print curve?"); },
     [](const MenusFixture& m) { return m.printed("Metres"); }},
    {"mnusunprint", [](MenusFixture& m) { m.expectprint("Print Sun and Lunar times?"); },
     [](const MenusFixture& m) { return m.printed("Nautical Twilights"); }},
    {"mnuExit", nothing, [](const MenusFixture& m) { return m.left; }},
    {"mnutidedate", nothing, [](const MenusFixture& m) { return m.opened == Dialog::dateentry; }},
    {"mnuPortList", nothing, [](const MenusFixture& m) { return m.opened == Dialog::selectport; }},
    {"mnuNextPort", nothing,
     [](const MenusFixture& m) { return m.session.view.portbox.find("Birch") != std::string::npos; }},
    {"mnuPrevPort", [](MenusFixture& m) { m.session.settings.currentport = 3; },
     [](const MenusFixture& m) { return m.session.view.portbox.find("Birch") != std::string::npos; }},
    {"mnuArea", [](MenusFixture& m) { m.scripted.filedialogs.expectopen(m.area(), "Select Sea Area"); },
     [](const MenusFixture& m) { return m.opened == Dialog::selectport; }},
    {"mnumonth", nothing, [](const MenusFixture& m) { return m.session.view.monthvisible; }},
    {"mnusunrise", nothing,
     [](const MenusFixture& m) { return m.opened == Dialog::sunrise && !m.session.lunar.lunartext.empty(); }},
    {"mnuCopyDaysTides", nothing,
     [](const MenusFixture& m) {
         return m.scripted.clipboard.contents.starts_with("Port : Alder Quay\r\nDate : 9/4/2024");
     }},
    {"mnuCopyMonth", nothing,
     [](const MenusFixture& m) { return m.scripted.clipboard.contents.starts_with("Alder Quay\tApril 2024"); }},
    {"mnuCopySunTimes",
     [](MenusFixture& m) { m.expecttold("The day's sunrise and sunset times have been copied to the clipboard"); },
     [](const MenusFixture& m) { return m.scripted.clipboard.contents.find("Sunset  : ") != std::string::npos; }},
    {"mnuCopyMonthSunTimes",
     [](MenusFixture& m) { m.expecttold("Months sunrise and sunset times have been copied to the clipboard"); },
     [](const MenusFixture& m) { return m.scripted.clipboard.contents.find("30/4/2024\t") != std::string::npos; }},
    {"mnuoutputoptions", [](MenusFixture& m) { m.session.month.monthcells[1][1][1] = "00:10"; },
     [](const MenusFixture& m) {
         return m.opened == Dialog::programoptions && m.session.month.monthcells[1][1][1].empty();
     }},
    {"mnuchartdepth", nothing, [](const MenusFixture& m) { return m.opened == Dialog::portnotes; }},
    {"Mnushowconfig", nothing, [](const MenusFixture& m) { return m.opened == Dialog::configuration; }},
    {"mnumaintainfile", nothing, [](const MenusFixture& m) { return m.opened == Dialog::correctconstants; }},
    {"mnucopyconstants", nothing, [](const MenusFixture& m) { return m.opened == Dialog::copyports; }},
    {"mnuLayersShow", nothing, [](const MenusFixture& m) { return m.session.layersmode == 1; }},
    {"mnuHelp", [](MenusFixture& m) { m.scripted.messages.expectshow(helptext()); },
     [](const MenusFixture&) { return true; }},
};

TEST(MenuTable, EachEntryCausesItsOneThing) {
    std::set<std::string> tried;
    for (const Row& row : rows) {
        MenusFixture menus;
        // A sun table, for those that need one; a readout's clock that moves on, so that nothing holds by chance.
        preparesunview(menus.session);
        calculatesun(menus.context, portsuninput(menus.session));
        menus.session.lunar.lunartext.clear();
        row.foresee(menus);
        EXPECT_TRUE(std::string(row.entry) == "mnuHelp" || !row.caused(menus)) << row.entry << " holds before the act";
        menus.choose(row.entry);
        EXPECT_TRUE(row.caused(menus)) << row.entry;
        tried.insert(row.entry);
    }
    for (const MenuEntry& entry : menuentries())
        EXPECT_EQ(tried.count(entry.name) == 1, entry.command != nullptr) << entry.name;
}

TEST_F(Menus, WindowsThatChangeTheDayAreFollowedByTheCurve) {
    for (const char* entry : {"mnutidedate", "mnuPortList", "mnusunrise", "Mnushowconfig"}) {
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

TEST_F(Menus, AnAreaThatIsNotChosenOpensNothing) {
    scripted.filedialogs.expectopen(std::nullopt);
    choose("mnuArea");
    EXPECT_EQ(opened, std::nullopt);
}

TEST_F(Menus, TheHelpNamesEveryKey) {
    const std::string text = helptext();
    EXPECT_TRUE(text.starts_with("Tarvane Tides   (v9.5.0)"));
    for (const char* line : {"\nCtrl+F: Port by Name\n", "\nCtrl+C: Copy Days Tides\n", "\nPage Down, Page Up: "})
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
