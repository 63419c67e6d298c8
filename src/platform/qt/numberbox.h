// A text box for a number. Must not judge what is typed.
#pragma once

#include <QLineEdit>

namespace tarvane {

/// A double click takes the whole number, not its part on one side of the point.
class NumberBox : public QLineEdit {
  protected:
    void mouseDoubleClickEvent(QMouseEvent*) override { selectAll(); }
};

}  // namespace tarvane
