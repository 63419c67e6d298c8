// The planner's menus.
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "planner/frmplanner.h"
#include "planner/plancommands.h"
#include "platform/qt/screentext.h"

namespace tarvane {

QAction* frmplanner::add(QMenu* menu, const char* name, const char* caption, const QKeySequence& key,
                         std::function<void()> act) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    if (!key.isEmpty()) action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
        context.session.view.answer.clear();
        act();
        tell(context.session.view.answer);
    });
    return action;
}

void frmplanner::buildfilemenu() {
    QMenu* file = menuBar()->addMenu("&File");
    QMenu* year = new QMenu("Save the &Year", file);
    const struct {
        const char *name, *yearname, *caption, *yearcaption;
        void (*save)(MainContext&, const PlanView&);
    } saved[] = {{"mnuSaveTides", "mnuYearTides", "Save &Tides as Table", "&Tides as Table", savewaterstable},
                 {"mnuSaveAccess", "mnuYearAccess", "Save &Access as Table", "&Access as Table", savewindowstable},
                 {"mnuCalendarTides", "mnuYearCalendarTides", "Save T&ides as Calendar", "T&ides as Calendar",
                  savewaterscalendar},
                 {"mnuCalendarAccess", "mnuYearCalendarAccess", "Save A&ccess as Calendar", "A&ccess as Calendar",
                  savewindowscalendar}};
    for (const auto& each : saved) {
        add(file, each.name, each.caption, {}, [this, save = each.save] { save(context, view); });
        add(year, each.yearname, each.yearcaption, {},
            [this, save = each.save] { save(context, yearview(context, view)); });
    }
    file->addMenu(year);
    add(file, "mnuSavePicture", "Save &Picture", QKeySequence::Save,
        [this] { saveplanpicture(context, view, picture->width(), picture->height()); });
    file->addSeparator();
    QMenu* pdf = new QMenu("Save as PD&F", file);
    const struct {
        const char *name, *pdfname, *caption, *pdfcaption;
        Sheet sheet;
    } sheets[] = {
        {"mnuPrintDays", "mnuPdfDays", "Print the &Days", "The &Days", Sheet::days},
        {"mnuPrintMonth", "mnuPdfMonth", "Print the &Month", "The &Month", Sheet::month},
        {"mnuPrintAlmanac", "mnuPdfAlmanac", "Print the Year's A&lmanac", "The Year's A&lmanac", Sheet::almanac}};
    for (const auto& each : sheets) {
        add(file, each.name, each.caption, each.sheet == Sheet::days ? QKeySequence::Print : QKeySequence(),
            [this, sheet = each.sheet] { printsheet(context, view, sheet); });
        add(pdf, each.pdfname, each.pdfcaption, {}, [this, sheet = each.sheet] { savesheet(context, view, sheet); });
    }
    file->addMenu(pdf);
    buildpapermenu(file);
    file->addSeparator();
    add(file, "mnuClose", "Cl&ose", QKeySequence("Ctrl+W"), [this] { close(); });
}

void frmplanner::buildpapermenu(QMenu* file) {
    QMenu* papers = file->addMenu("Pape&r");
    auto* either = new QActionGroup(papers);
    const auto paper = [&](const char* name, const char* caption, Paper wanted) {
        QAction* action = add(papers, name, caption, {}, [this, wanted] {
            view.settings.paper = wanted;
            keepsettings(context, view);
        });
        action->setCheckable(true);
        action->setChecked(paperof(context, view) == wanted);
        either->addAction(action);
    };
    paper("mnuA4", "&A4", Paper::a4);
    paper("mnuLetter", "&Letter", Paper::letter);
}

void frmplanner::buildmenus() {
    buildfilemenu();
    QMenu* edit = menuBar()->addMenu("&Edit");
    add(edit, "mnuCopyTable", "Copy &Table", QKeySequence("Ctrl+Shift+C"),
        [this] { copyplantable(context, view, static_cast<PlanTableBox*>(pages->currentWidget())->table()); });
    add(edit, "mnuCopyPicture", "Copy &Picture", QKeySequence("Ctrl+Alt+C"),
        [this] { copyplanpicture(context, view, picture->width(), picture->height()); });

    QMenu* go = menuBar()->addMenu("&Go");
    add(go, "mnuToday", "&Today", QKeySequence("Ctrl+T"), [this] { gotodate(todayof(context, view)); });
    add(go, "mnuPreviousDay", "&Previous Day", QKeySequence("PgUp"), [this] { stepdays(-1); });
    add(go, "mnuNextDay", "&Next Day", QKeySequence("PgDown"), [this] { stepdays(1); });
    add(go, "mnuPreviousWeek", "Pre&vious Week", QKeySequence("Shift+PgUp"), [this] { stepdays(-7); });
    add(go, "mnuNextWeek", "Ne&xt Week", QKeySequence("Shift+PgDown"), [this] { stepdays(7); });
    go->addSeparator();
    add(go, "mnuPort", "P&ort of This Area", QKeySequence("Ctrl+L"), [this] {
        cmbPort->setFocus();
        cmbPort->lineEdit()->selectAll();
    });
    const auto call = [](const std::function<void()>& other) {
        if (other) other();
    };
    add(go, "mnuFind", "&Find a Port", QKeySequence::Find, [this] {
        if (onfind) onfind("");
    });
    add(go, "mnuMap", "&Map", QKeySequence("Ctrl+M"), [this, call] { call(onmap); });
    add(go, "mnuAboutPort", "&About This Port", QKeySequence("Ctrl+I"), [this, call] { call(onabout); });

    QMenu* show = menuBar()->addMenu("&View");
    add(show, "mnuZoomIn", "Zoom &In", QKeySequence::ZoomIn, [this] {
        zoomplan(view, 0.5, view.from + (view.to - view.from) / 2);
        picture->redraw();
    });
    add(show, "mnuZoomOut", "Zoom &Out", QKeySequence::ZoomOut, [this] {
        zoomplan(view, 2, view.from + (view.to - view.from) / 2);
        picture->redraw();
    });
    add(show, "mnuWhole", "&All Days", QKeySequence("Ctrl+0"), [this] {
        showwhole(view);
        picture->redraw();
    });
    show->addSeparator();
    QAction* night = add(show, "mnuNight", "&Night (red)", QKeySequence("Ctrl+R"), [this] {
        shownight(entry("mnuNight")->isChecked());
        keepsettings(context, view);
    });
    night->setCheckable(true);
    night->setChecked(view.settings.night);
    QAction* start = add(show, "mnuOpenAtStart", "Open the planner at &start", {}, [this] {
        view.settings.openatstart = entry("mnuOpenAtStart")->isChecked();
        keepsettings(context, view);
    });
    start->setCheckable(true);
    start->setChecked(view.settings.openatstart);
    QMenu* help = menuBar()->addMenu("&Help");
    add(help, "mnuManual", "&Manual", {}, [this] { context.services.windows.showmanual("frmplanner"); });
}

}  // namespace tarvane
