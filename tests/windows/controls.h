// A window under test: its controls by name, what has the focus, and whether every text has room.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarvane::tests {

/// The control of that name; the test ends when there is none.
template <class Control>
Control& control(const QWidget& window, const char* name) {
    auto* found = window.findChild<Control*>(name);
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

inline std::string shown(const QLabel& label) {
    return label.text().toStdString();
}

/// Shows a window and waits until keys reach it.
inline void present(QWidget& window) {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

inline std::string infocus(const QWidget& window) {
    const QWidget* focus = window.focusWidget();
    return focus ? focus->objectName().toStdString() : "";
}

/// The button that Enter presses.
inline std::string defaultbutton(const QWidget& window) {
    for (const auto* button : window.findChildren<QPushButton*>())
        if (button->isDefault()) return button->objectName().toStdString();
    return "";
}

/// Names of the controls that Tab reaches, from the one in focus until it comes round. A control may take several Tabs.
inline std::vector<std::string> taborder(QWidget& window) {
    std::vector<std::string> names{infocus(window)};
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        if (infocus(window) == names.back()) continue;
        if (infocus(window) == names.front()) break;
        names.push_back(infocus(window));
    }
    return names;
}

inline void expectroomfortexts(const QWidget& window) {
    const auto hasroom = [](const QWidget& widget) {
        const QSize wanted = widget.sizeHint();
        return widget.width() >= wanted.width() && widget.height() >= wanted.height();
    };
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisibleTo(&window) && !label->wordWrap()) {
            EXPECT_TRUE(hasroom(*label)) << label->text().toStdString();
        }
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisibleTo(&window) && !button->text().isEmpty()) {
            EXPECT_TRUE(hasroom(*button)) << button->text().toStdString();
        }
}

}  // namespace tarvane::tests
