// Makes a control that carries its name, and labels that show a text as it stands. Must not lay anything out.
#pragma once

#include <QLabel>
#include <utility>

namespace tarvane {

/// A new control with its object name set; the arguments are its constructor's. A layout gives it its parent.
template <class Control, class... Arguments>
Control* named(const char* name, Arguments&&... arguments) {
    auto* control = new Control(std::forward<Arguments>(arguments)...);
    control->setObjectName(QLatin1String(name));
    return control;
}

/// A label that lies on `parent` where its owner puts it. Never taken for rich text.
inline QLabel* namedlabel(const char* name, QWidget* parent, const QString& text = {}) {
    auto* label = named<QLabel>(name, text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// What stands beside a control: its letter behind "&" goes there.
inline QLabel* captionof(const char* text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

/// A label in a sunken frame for a value that the user can't change. Never taken for rich text.
inline QLabel* namedvalue(const char* name) {
    auto* label = named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    label->setMargin(2);
    return label;
}

}  // namespace tarvane
