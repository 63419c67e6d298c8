// A plan's table on a window: sorted by a click on a heading, its rows leading to moments. Must not change the plan.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>

#include "planner/plantexts.h"
#include "platform/qt/textwidths.h"

namespace tarvane {

class PlanTableBox : public QTableView {
  public:
    PlanTableBox(const char* name, const char* accessiblename);

    std::function<void(Moment at)> onmoment;  ///< a row was clicked, or Enter pressed on it
    std::function<void()> oncopy;             ///< the keys for copying were pressed

    /// Shows another table; the column that it was sorted by stays.
    void showtable(PlanTable table);

    /// As it is sorted.
    const PlanTable& table() const { return model_.table; }

    /// By all rows: times are wider where a clock has changed.
    int sizeHintForColumn(int column) const override;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Model : QAbstractTableModel {
        PlanTable table;

        int rowCount(const QModelIndex& parent = {}) const override;
        int columnCount(const QModelIndex& parent = {}) const override;
        QVariant data(const QModelIndex& index, int role) const override;
        QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
        void sort(int column, Qt::SortOrder order) override;
        std::vector<int> arrange();  ///< puts the rows in order; where each of them went
        void replace(PlanTable another);
        int sortedby = 0;
        Qt::SortOrder order = Qt::AscendingOrder;
    };

    void choose(int row);

    Model model_;
    mutable MeasuredTexts measured_;
};

}  // namespace tarvane
