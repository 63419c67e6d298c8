// The menu tree of the main window as the table has it, and the windows that it opens.
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>

#include "almanac/frmsunrise.h"
#include "diamonds/frmimport.h"
#include "diamonds/frmstreams.h"
#include "diamonds/frmtidaldiamondscopy.h"
#include "mainview/frmtarvane.h"
#include "mainview/frmtimdat.h"
#include "mainview/plannersteps.h"
#include "ports/frmchartdepth.h"
#include "ports/frmconfig.h"
#include "ports/frmharmedit.h"
#include "ports/frmhccopy.h"
#include "ports/frmoutoptions.h"
#include "ports/frmshowconf.h"

namespace tarvane {
namespace {

template <typename Window>
void openmodal(MainContext& context, QWidget* over) {
    Window window(context, over);
    context.services.windows.showmodal(window);
}

}  // namespace

void frmtarvane::opendialog(Dialog dialog) {
    // What the session holds by now is seen behind the window that opens.
    showview();
    switch (dialog) {
        case Dialog::dateentry:
            return openmodal<Frmtimdat>(context, this);
        case Dialog::selectport:
            return openmodal<frmconfig>(context, this);
        case Dialog::programoptions:
            return openmodal<frmoutoptions>(context, this);
        case Dialog::portnotes:
            return openmodal<frmChartdepth>(context, this);
        case Dialog::configuration:
            return openmodal<frmshowconf>(context, this);
        case Dialog::sunrise:
            return openmodal<Frmsunrise>(context, this);
        case Dialog::adjust:
            return openadjust();
        case Dialog::planner:
            return openplanner();
        case Dialog::finder:
            return openfinder();
        case Dialog::map:
            return openmap();
        case Dialog::aboutport:
            return openabout();
        case Dialog::correctconstants:
            return openmodal<frmharmedit>(context, this);
        case Dialog::copyports:
            return openmodal<frmHCcopy>(context, this);
        case Dialog::copydiamonds:
            return openmodal<frmTidalDiamondsCopy>(context, this);
        case Dialog::importcharts:
            return openmodal<frmimport>(context, this);
        case Dialog::streams:
            return openmodal<frmstreams>(context, this);
    }
}

/// The workshop stands beside the main window, and both end together.
void frmtarvane::openadjust() {
    if (!adjust) {
        adjust = std::make_unique<frmHarmAdjust>(context, this);
        adjust->onchanged = [this] { showview(); };
        adjust->onclosed = [this] { close(); };
    }
    adjust->show();
    adjust->raise();
    adjust->activateWindow();
}

/// The planner stands beside the main window too, and follows it to another port.
void frmtarvane::openplanner() {
    if (!planner) {
        planner = std::make_unique<frmplanner>(context);
        planner->onport = [this](std::int16_t number) {
            chooseport(context, number);
            showview();
        };
        planner->onfind = [this](const std::string& text) { openfinder(text); };
        planner->onmap = [this] { openmap(); };
        planner->onabout = [this] { openabout(); };
        planner->onnight = [this](bool night) {
            if (onnight) onnight(night);
            if (map) map->shownight(night);
        };
        planner->onday = [this](Date date) {
            showdate(context, date);
            showview();
        };
    }
    if (onnight) onnight(planner->planview().settings.night);
    planner->follow();
    planner->show();
    planner->raise();
    planner->activateWindow();
}

void frmtarvane::openatstart() {
    if (readplansettings(plansettingspath(session.folders)).openatstart) openplanner();
}

void frmtarvane::closeEvent(QCloseEvent* event) {
    if (adjust && adjust->isVisible() && !adjust->close()) return event->ignore();
    if (planner) planner->close();
    keeprecent();
    if (map) map->close();
    QMainWindow::closeEvent(event);
}

void frmtarvane::buildmenus() {
    for (const MenuPlace& place : menuplaces()) {
        QMenu* menu =
            *place.parent ? findChild<QMenu*>(place.parent)->addMenu(place.caption) : menuBar()->addMenu(place.caption);
        menu->setObjectName(place.name);
        menu->setToolTipsVisible(true);
        menu->menuAction()->setObjectName(place.name);
        switched.push_back({menu->menuAction(), place.visible, place.enabled});
    }
    for (const MenuEntry& entry : menuentries()) {
        QAction* action = findChild<QMenu*>(entry.menu)->addAction(entry.caption);
        action->setObjectName(entry.name);
        if (*entry.shortcut) action->setShortcut(QKeySequence(entry.shortcut));
        connect(action, &QAction::triggered, this, [this, &entry] { choose(entry); });
        switched.push_back({action, entry.visible, nullptr});
    }
    layersentry = menuentry("mnuLayersShow");
    layersentry->setCheckable(true);
}

void frmtarvane::choose(const MenuEntry& entry) {
    Desk desk{context, [this](Dialog dialog) { opendialog(dialog); }, [this] { close(); }};
    session.view.answer.clear();
    statusbar->show(session.view);
    if (entry.slow) QApplication::setOverrideCursor(Qt::WaitCursor);
    entry.command(desk);
    if (entry.slow) QApplication::restoreOverrideCursor();
    showview();
}

void frmtarvane::showmenus() {
    for (const Switched& entry : switched) {
        if (entry.visible) entry.action->setVisible(session.view.*entry.visible);
        if (entry.enabled) entry.action->setEnabled(session.view.*entry.enabled);
    }
    layersentry->setChecked(session.layersmode == 1);
}

QAction* frmtarvane::menuentry(const char* name) const {
    for (const Switched& entry : switched)
        if (entry.action->objectName() == QLatin1String(name)) return entry.action;
    return nullptr;
}

}  // namespace tarvane
