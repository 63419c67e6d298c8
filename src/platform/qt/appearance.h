// How the program looks on every desktop: style, colours, font and icon. Must be called once, before the first window.
#pragma once

#include <QApplication>

namespace tarvane {

/// Sets the application up. The process's number conventions go back to "C", which creating the application had
/// changed.
void setappearance(QApplication& application);

/// What the desktop asks of windows that follow it.
struct DesktopLook {
    bool dark = false;
    double fontpoints = 9;
};

/// Its font as it was when the application was set up, light or dark as it is now.
DesktopLook desktoplook();

/// The program's icon: a tide's curve over the marks of a staff.
QIcon programicon();

}  // namespace tarvane
