// A list of which nothing is chosen until the user chooses: the keyboard's coming to it is no choice. Must not know
// what is listed.
#pragma once

#include <QItemSelectionModel>
#include <QListWidget>
#include <QSignalBlocker>

namespace tarvane {

class ChoiceList : public QListWidget {
  protected:
    /// A list makes its first row the current one when it gets the focus; here it stays without one.
    void focusInEvent(QFocusEvent* event) override {
        const bool chosen = currentIndex().isValid();
        const QSignalBlocker quiet(selectionModel());
        QListWidget::focusInEvent(event);
        if (!chosen) selectionModel()->clearCurrentIndex();
    }
};

}  // namespace tarvane
