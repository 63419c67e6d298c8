#include "mainview/menus.h"

#include <string_view>

#include "almanac/sunoutput.h"
#include "almanac/sunview.h"
#include "dates/summertime.h"
#include "mainview/copycommands.h"
#include "mainview/exportcommands.h"
#include "mainview/layersview.h"
#include "mainview/monthcommand.h"
#include "mainview/printcommands.h"
#include "mainview/savecommands.h"
#include "mainview/stepping.h"
#include "ports/portselection.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "session/tidecurve.h"
#include "text/programcaption.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

template <auto command>
void run(Desk& desk) {
    command(desk.context);
}

void drawcurve(Desk& desk) {
    drawtidecurve(desk.context.session, desk.context.surfaces);
}

void leave(Desk& desk) {
    desk.leave();
}

void selectdate(Desk& desk) {
    Session& session = desk.context.session;
    desk.open(Dialog::dateentry);
    refreshsun(session, summershift(session.onshow.tidedate, session.settings.summerflag2));
    drawcurve(desk);
}

void openselection(Desk& desk) {
    desk.open(Dialog::selectport);
    enabletopmenus(desk.context.session);
    drawcurve(desk);
}

void selectport(Desk& desk) {
    reloadforportlist(desk.context);
    openselection(desk);
}

void selectarea(Desk& desk) {
    if (choosesearea(desk.context)) openselection(desk);
}

void sunandmoon(Desk& desk) {
    preparesunview(desk.context.session);
    desk.open(Dialog::sunrise);
    drawcurve(desk);
}

void programoptions(Desk& desk) {
    desk.open(Dialog::programoptions);
    clearmonthcells(desk.context.session.month);
}

void portnotes(Desk& desk) {
    desk.open(Dialog::portnotes);
    enabletopmenus(desk.context.session);
}

void showconfiguration(Desk& desk) {
    desk.open(Dialog::configuration);
    drawcurve(desk);
}

void adjustharmonics(Desk& desk) {
    desk.open(Dialog::adjust);
}

void correctconstants(Desk& desk) {
    desk.open(Dialog::correctconstants);
    drawcurve(desk);
}

void copyports(Desk& desk) {
    desk.open(Dialog::copyports);
    drawcurve(desk);
}

void copydiamonds(Desk& desk) {
    desk.open(Dialog::copydiamonds);
}

void importcharts(Desk& desk) {
    desk.open(Dialog::importcharts);
}

void streamsforday(Desk& desk) {
    desk.open(Dialog::streams);
}

void openplanner(Desk& desk) {
    desk.open(Dialog::planner);
}

void findaport(Desk& desk) {
    desk.open(Dialog::finder);
}

void openmap(Desk& desk) {
    desk.open(Dialog::map);
}

void aboutport(Desk& desk) {
    desk.open(Dialog::aboutport);
}

void help(Desk& desk) {
    desk.context.services.windows.showmanual("frmtarvane");
}

void keys(Desk& desk) {
    desk.context.services.messages.show(keystext(), programname, MessageIcon::information);
}

constexpr MenuPlace places[] = {
    {"", "mnufile", " &File"},
    {"mnufile", "mnuS", "&Save"},
    {"mnufile", "mnuprint", "&Print"},
    {"", "mnuDatemenu", "&Date"},
    {"", "mnutides", "  &Select Port ", nullptr, &MainView::topmenusenabled},
    {"", "mnuCalc", "&Calculate  ", nullptr, &MainView::topmenusenabled},
    {"", "mnuCopy", "Clip&board"},
    {"", "mnuconfig", "C&onfigure", nullptr, &MainView::topmenusenabled},
    {"", "mnumaintenance", "&Maintenance", &MainView::maintenancevisible},
    {"", "mnuAdvanced", " &Advanced"},
    {"", "mnuHelpTop", "Help"},
    {"", "mnuSpecial", "Special", &MainView::specialvisible},
};

constexpr MenuEntry entries[] = {
    {"mnuS", "mnusavmonth", "&Months Table", "", run<savemonth>},
    {"mnuS", "mnusaveday", "&Hourly Details", "", run<saveday>},
    {"mnuS", "mnusavesun", "&Sun times/Lunar Phases", "", run<savesun>},
    {"mnuprint", "mnumonthprint", "&Months Table", "", run<printmonth>, true},
    {"mnuprint", "mnuhrprint", "&Hourly Details", "", run<printtenminutes>, true},
    {"mnuprint", "mnudayprint", "&Curve", "Ctrl+P", run<printcurve>, true},
    {"mnuprint", "mnusunprint", "&Sun Times/Lunar Phases", "", run<printsun>, true},
    {"mnufile", "mnuExit", "E&xit", "Ctrl+Q", leave},
    {"mnuDatemenu", "mnutidedate", "&Select Date", "Ctrl+D", selectdate},
    {"mnutides", "mnuPortList", "Port by &Name", "Ctrl+F", selectport},
    {"mnutides", "mnuNextPort", "Next Port ", "Ctrl+PgDown", run<nextport>},
    {"mnutides", "mnuPrevPort", "Prev Port", "Ctrl+PgUp", run<previousport>},
    {"mnutides", "mnuArea", "Sea &Area", "", selectarea},
    {"mnutides", "mnuFinder", "&Find in All Areas", "Ctrl+Shift+F", findaport},
    {"mnutides", "mnuMap", "&Map", "Ctrl+Shift+M", openmap},
    {"mnutides", "mnuAboutPort", "About This Port", "Ctrl+I", aboutport},
    {"mnuCalc", "mnumonth", "&Months Tide", "Ctrl+M", run<calculatemonth>, true},
    {"mnuCalc", "mnusunrise", "&Sunrise/Lunar phases", "", sunandmoon},
    {"mnuCalc", "mnuPlanner", "&Planner", "Ctrl+G", openplanner},
    {"mnuCalc", "mnuStreams", "S&treams for a Day", "", streamsforday},
    {"mnuCopy", "mnuCopyDaysTides", "C&opy Days Tides", "Ctrl+C", run<copydaystides>},
    {"mnuCopy", "mnuCopyMonth", "Copy &Months Tides", "", run<copymonthstides>},
    {"mnuCopy", "mnuCopySunTimes", "Copy &Days Sunrise && Sunset Times", "", run<copydayssuntimes>},
    {"mnuCopy", "mnuCopyMonthSunTimes", "Copy Months Su&nrise && Sunset Times", "", run<copymonthssuntimes>},
    {"mnuconfig", "mnuoutputoptions", "&Program Options", "", programoptions},
    {"mnuconfig", "mnuchartdepth", "Port &Notes", "Ctrl+N", portnotes},
    {"mnuconfig", "Mnushowconfig", "Show &Configuration/Notes", "", showconfiguration},
    {"mnumaintenance", "mnumaintainfile", "&Correct Port Constants", "", correctconstants, false,
     &MainView::maintenancevisible},
    {"mnumaintenance", "mnucopyconstants", "&Copy ports", "", copyports, false, &MainView::copyportsvisible},
    {"mnumaintenance", "mnuCopyDiamonds", "Copy &Tidal Diamonds", "", copydiamonds, false, &MainView::diamondsvisible},
    {"mnumaintenance", "mnuImportCharts", "&Import Charts", "", importcharts, false, &MainView::diamondsvisible},
    {"mnuAdvanced", "mnuLayersShow", "&Show Tides Constituents", "Ctrl+T", run<togglelayers>},
    {"mnuAdvanced", "mnuAdjustLoad", "&Interpolate Between Ports", "", adjustharmonics, true, &MainView::adjustvisible},
    {"mnuHelpTop", "mnuHelp", "Help", "F1", help},
    {"mnuHelpTop", "mnuKeys", "&Keys", "", keys},
    {"mnuSpecial", "mnuAnglesAndFactors", "Angles and Factors", "", run<exportanglesandfactors>},
    {"mnuSpecial", "mnuYears", "Years", "", run<exportyears>},
    {"mnuSpecial", "mnuCalcOrbitalConst", "Orbital Constants", "", run<exportorbitalconstants>},
};

/// A caption without its access mark and the blanks at its ends.
std::string plaincaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        plain += caption[i];
    }
    return trim(plain);
}

}  // namespace

std::span<const MenuPlace> menuplaces() {
    return places;
}

std::span<const MenuEntry> menuentries() {
    return entries;
}

std::string keystext() {
    std::string text = programcaption() +
                       "\n\nTide prediction for yachtsmen. All results are approximate, and not for navigation.\n\n"
                       "Page Down, Page Up: next and previous day\n";
    for (const MenuEntry& entry : entries)
        if (*entry.shortcut) text += std::string(entry.shortcut) + ": " + plaincaption(entry.caption) + "\n";
    return text + "A click on the curve freezes the readout, another frees it.";
}

void showspecial(Session& session) {
    session.view.specialvisible = true;
    session.showconstants = true;
}

void showsteps(Session& session) {
    session.view.stepbuttonsvisible = true;
    enabletopmenus(session);
}

}  // namespace tarvane
