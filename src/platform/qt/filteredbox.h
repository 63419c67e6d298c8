// A text box that takes some characters and drops others, whatever way they come: pressed, pasted, dropped by the mouse
// or from an input method. Must not judge the whole text.
#pragma once

#include <QLineEdit>
#include <functional>

#include "platform/messages.h"

namespace tarvane {

/// What a character becomes in a box; 0 drops it.
using KeyRule = char32_t (*)(char32_t);

/// Dropped characters beep; when none is left, text and selection stay as they were. A double click takes the whole
/// text, not its part on one side of a point.
class FilteredBox : public QLineEdit {
  public:
    FilteredBox(KeyRule rule, Messages& messages);

    std::function<void()> onkey;  ///< after anything that was to change the text, dropped or not

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent*) override { selectAll(); }
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    QString filtered(const QString& typed);
    void take(const QString& typed);
    void pressed();

    KeyRule rule;
    Messages& messages;
};

}  // namespace tarvane
