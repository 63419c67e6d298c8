// The menu tree of the main window. An entry without a command stands in the tree, disabled.
#include <QMenuBar>

#include "mainview/frmtarvane.h"

namespace tarvane {
namespace {

using Click = void (frmtarvane::*)();

struct MenuEntry {
    const char* menu;  ///< the menu that it stands in
    const char* name;
    const char* caption;
    Click click;  ///< nothing: not to be had
    const char* shortcut;
};

/// A menu on the bar or in another menu, in order.
struct MenuPlace {
    const char* parent;  ///< empty for the bar
    const char* name;
    const char* caption;
};

}  // namespace

void frmtarvane::buildmenus() {
    static constexpr MenuPlace menus[] = {
        {"", "mnufile", " &File"},         {"mnufile", "mnuS", "&Save"},        {"mnufile", "mnuprint", "&Print"},
        {"", "mnuDatemenu", "&Date"},      {"", "mnutides", "  &Select Port "}, {"", "mnuCalc", "&Calculate  "},
        {"", "mnuCopy", "Clip&board"},     {"", "mnuconfig", "C&onfigure"},     {"", "mnumaintenance", "&Maintenance"},
        {"", "mnuAdvanced", " &Advanced"}, {"", "mnuHelpTop", "Help"},          {"", "mnuSpecial", "Special"},
    };
    using F = frmtarvane;
    static constexpr MenuEntry entries[] = {
        {"mnuS", "mnusavmonth", "&Months Table", &F::mnusavmonth_Click, ""},
        {"mnuS", "mnusaveday", "&Hourly Details", &F::mnusaveday_Click, ""},
        {"mnuS", "mnusavesun", "&Sun times/Lunar Phases", &F::mnusavesun_Click, ""},
        {"mnuprint", "mnumonthprint", "&Months Table", &F::mnumonthprint_Click, ""},
        {"mnuprint", "mnuhrprint", "&Hourly Details", &F::mnuhrprint_Click, ""},
        {"mnuprint", "mnudayprint", "&Curve", &F::mnudayprint_Click, "Ctrl+P"},
        {"mnuprint", "mnusunprint", "&Sun Times/Lunar Phases", &F::mnusunprint_Click, ""},
        {"mnufile", "mnuExit", "E&xit", &F::mnuExit_Click, "Ctrl+Q"},
        {"mnuDatemenu", "mnutidedate", "&Select Date", &F::mnutidedate_Click, "Ctrl+D"},
        {"mnutides", "mnuPortList", "Port by &Name", &F::mnuPortList_Click, "Ctrl+F"},
        {"mnutides", "mnuNextPort", "Next Port ", &F::mnuNextPort_Click, "Ctrl+PgDown"},
        {"mnutides", "mnuPrevPort", "Prev Port", &F::mnuPrevPort_Click, "Ctrl+PgUp"},
        {"mnutides", "mnuArea", "Sea &Area", &F::mnuArea_Click, ""},
        {"mnuCalc", "mnumonth", "&Months Tide", &F::mnumonth_Click, "Ctrl+M"},
        {"mnuCalc", "mnusunrise", "&Sunrise/Lunar phases", &F::mnusunrise_Click, ""},
        {"mnuCopy", "mnuCopyDaysTides", "C&opy Days Tides", &F::mnuCopyDaysTides_Click, "Ctrl+C"},
        {"mnuCopy", "mnuCopyMonth", "Copy &Months Tides", &F::mnuCopyMonth_Click, ""},
        {"mnuCopy", "mnuCopySunTimes", "Copy &Days Sunrise && Sunset Times", &F::mnuCopySunTimes_Click, ""},
        {"mnuCopy", "mnuCopyMonthSunTimes", "Copy Months Su&nrise && Sunset Times", &F::mnuCopyMonthSunTimes_Click, ""},
        {"mnuconfig", "mnuoutputoptions", "&Program Options", &F::mnuoutputoptions_Click, ""},
        {"mnuconfig", "mnuchartdepth", "Port &Notes", &F::mnuchartdepth_Click, "Ctrl+N"},
        {"mnuconfig", "Mnushowconfig", "Show &Configuration/Notes", &F::Mnushowconfig_Click, ""},
        {"mnumaintenance", "mnumaintainfile", "&Correct Port Constants", nullptr, ""},
        {"mnumaintenance", "mnucopyconstants", "&Copy ports", nullptr, ""},
        {"mnumaintenance", "mnuCopyDiamonds", "Copy &Tidal Diamonds", nullptr, ""},
        {"mnuAdvanced", "mnuLayersShow", "&Show Tides Constituents", &F::mnuLayersShow_Click, "Ctrl+T"},
        {"mnuAdvanced", "mnuAdjustLoad", "&Interpolate Between Ports", nullptr, ""},
        {"mnuHelpTop", "mnuHelp", "Help", nullptr, ""},
        {"mnuSpecial", "mnuAnglesAndFactors", "Angles and Factors", nullptr, ""},
        {"mnuSpecial", "mnuYears", "Years", nullptr, ""},
        {"mnuSpecial", "mnuCalcOrbitalConst", "Orbital Constants", nullptr, ""},
    };
    for (const MenuPlace& place : menus) {
        QMenu* menu =
            *place.parent ? findChild<QMenu*>(place.parent)->addMenu(place.caption) : menuBar()->addMenu(place.caption);
        menu->setObjectName(place.name);
        menu->menuAction()->setObjectName(place.name);
    }
    for (const MenuEntry& entry : entries) {
        QAction* action = findChild<QMenu*>(entry.menu)->addAction(entry.caption);
        action->setObjectName(entry.name);
        action->setEnabled(entry.click != nullptr);
        if (*entry.shortcut) action->setShortcut(QKeySequence(entry.shortcut));
        if (entry.click) connect(action, &QAction::triggered, this, entry.click);
    }
    menuentry("mnuLayersShow")->setCheckable(true);
    for (const char* hidden : {"mnuSpecial", "mnuAdjustLoad", "mnuCopyDiamonds", "mnucopyconstants", "mnumaintenance"})
        menuentry(hidden)->setVisible(false);
}

QAction* frmtarvane::menuentry(const char* name) const {
    return findChild<QAction*>(name);
}

}  // namespace tarvane
