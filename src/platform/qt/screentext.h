// Texts of the program as controls show them.
#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

namespace tarvane {

/// UTF-8 to the toolkit's text, with CR LF and lone CR as line ends; a line end at the very end is left off.
inline QString screentext(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace("\r\n", "\n").replace('\r', '\n');
    while (shown.endsWith('\n'))
        shown.chop(1);
    return shown;
}

/// Puts a text into a box that shows another, to be read from its beginning.
inline void showtext(QLineEdit& box, const QString& text) {
    if (text == box.text()) return;
    box.setText(text);
    box.setCursorPosition(0);
}

}  // namespace tarvane
