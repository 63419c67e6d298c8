// The highlighted row of a list from which one row or none is chosen. Must not know what is listed.
#pragma once

#include <QItemSelectionModel>
#include <QListWidget>
#include <QSignalBlocker>

namespace tarvane {

/// The highlighted row, -1 for none; a row can be current without that.
inline int highlighted(const QListWidget& list) {
    const auto selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.first());
}

/// Highlights a row, or none, without its being a click. With none the keys go on from where they were.
inline void highlight(QListWidget& list, int row) {
    const QSignalBlocker quiet(&list);
    if (row < 0)
        list.clearSelection();
    else
        list.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

/// Calls `act` for a click on the row that is highlighted already, of which the list itself tells nothing.
template <class Act>
void onclickagain(QListWidget& list, Act act) {
    QObject::connect(&list, &QListWidget::itemClicked, &list, [&list, act](const QListWidgetItem* item) {
        if (list.row(item) == highlighted(list)) act();
    });
}

}  // namespace tarvane
