// The menu tree of the main window as one table, and what each entry does: which command runs, which window opens, and
// what is redrawn when it closes. Must not know any control.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "session/session.h"

namespace tarvane {

/// The windows that menu entries open.
enum class Dialog {
    dateentry,
    selectport,
    programoptions,
    portnotes,
    configuration,
    sunrise,
    correctconstants,
    copyports,
    streams,
    copydiamonds,
    importcharts,
    planner,
    finder,
    map,
    aboutport,
    adjust
};

/// What a menu command works with: the session's context, and what only the window itself can do.
struct Desk {
    MainContext& context;
    std::function<void(Dialog)>
        open;  ///< shows a window, modal but for `adjust`, `planner` and `map`: back when it is closed
    std::function<void()> leave;  ///< closes the main window
};

/// A menu on the bar or in another menu, in order.
struct MenuPlace {
    const char* parent;  ///< empty for the bar
    const char* name;
    const char* caption;
    bool MainView::*visible = nullptr;  ///< null: always
    bool MainView::*enabled = nullptr;  ///< null: always
};

struct MenuEntry {
    const char* menu;  ///< the menu that it stands in
    const char* name;
    const char* caption;
    const char* shortcut;  ///< empty for none
    void (*command)(Desk&);
    bool slow = false;  ///< runs under the hourglass
    bool MainView::*visible = nullptr;
};

std::span<const MenuPlace> menuplaces();
std::span<const MenuEntry> menuentries();

/// What the program is, and its keys.
std::string keystext();

/// A double click on `Label1` of the constituents view: the special menu, and the constants behind the names.
void showspecial(Session& session);

/// A click on the readout's caption or value: the step buttons and the menus.
void showsteps(Session& session);

}  // namespace tarvane
