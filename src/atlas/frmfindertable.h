// The finder's list: a row a port, with the mark of trust, the star of favourites, and how far it is. Must not decide
// which ports are listed.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QTreeView>
#include <array>
#include <functional>

#include "atlas/portfinder.h"
#include "dates/portclock.h"
#include "paint/colours.h"

namespace tarvane {

/// What the rows are told from besides the ports themselves.
struct FinderSight {
    const World& world;
    const Zones& zones;
    const Colours& colours;
    Moment now;
};

class FinderTable : public QTreeView {
  public:
    enum Column : int { star, name, area, country, distance, zone, columns };

    explicit FinderTable(const FinderSight& sight);

    std::function<bool(std::size_t place)> isfavourite;
    std::function<void(std::size_t place)> onstar;    ///< its star was clicked
    std::function<void(std::size_t place)> onchoice;  ///< double-clicked

    /// All columns and some rows.
    QSize sizeHint() const override;

    /// Other rows, the first one current.
    void show(Found found);

    const Found& found() const { return model_.found; }

    /// The port of the current row; nothing without rows.
    std::optional<std::size_t> current() const;

    /// Makes a row current, the last one where there are fewer.
    void gotorow(int row);

    /// The stars are other ones now.
    void showstars();

    /// What a cell says.
    QString celltext(int row, Column column) const;

  private:
    struct Model : QAbstractTableModel {
        explicit Model(FinderTable& table, const FinderSight& seen);

        int rowCount(const QModelIndex& parent = {}) const override;
        int columnCount(const QModelIndex& parent = {}) const override;
        QVariant data(const QModelIndex& index, int role) const override;
        QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
        QString text(const WorldPort& port, std::size_t place, Column column) const;
        void replace(Found another);

        FinderTable& owner;
        FinderSight sight;
        Found found;
        std::array<QIcon, 5> marks;  ///< by Trust
    };

    void resizeEvent(QResizeEvent* event) override;

    std::size_t placeof(const QModelIndex& index) const;
    void sizecolumns();

    Model model_;
    std::array<int, columns> wanted{};  ///< widths where there is room
    bool narrowed = false;
};

}  // namespace tarvane
