#include "atlas/frmfindertable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <numeric>

#include "world/frmtrusticon.h"

namespace tarvane {
namespace {

constexpr int marksize = 16;

QString textof(const std::string& text) {
    return QString::fromStdString(text);
}

Trust trustof(const WorldPort& port) {
    return tarvane::trustof(port.about, port.own);
}

/// "Europe/London, UT+1": the zone, and what the port's clocks are off universal time now.
std::string zonetext(const WorldPort& port, const FinderSight& sight) {
    const std::string zone = port.about ? port.about->timezone : "";
    HarmonicRecord record;
    record.TimeZoneLetter = port.zoneletter;
    const PortClock clock(ClockChoice::port, zonehoursof(record), zone, sight.zones);
    return (clock.byrule() ? "Zone " + port.zoneletter : zone) + ", " + utname(clock.at(sight.now).ahead);
}

/// Cut in its middle, so that what the clock is ahead stays to be read.
class ZoneDelegate : public QStyledItemDelegate {
    using QStyledItemDelegate::QStyledItemDelegate;

    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

}  // namespace

FinderTable::Model::Model(FinderTable& table, const FinderSight& seen) : owner(table), sight(seen) {
    for (std::size_t i = 0; i < marks.size(); ++i)
        marks[i] = trusticon(static_cast<Trust>(i), sight.colours, marksize);
}

int FinderTable::Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(found.ports.size());
}

int FinderTable::Model::columnCount(const QModelIndex&) const {
    return columns;
}

QString FinderTable::Model::text(const WorldPort& port, std::size_t place, Column column) const {
    switch (column) {
        case star:
            return owner.isfavourite && owner.isfavourite(place) ? QStringLiteral("\u2605") : QStringLiteral("\u2606");
        case name:
            return textof(port.name);
        case area:
            return textof(sight.world.areas[port.area].name);
        case country:
            return textof(port.about ? port.about->country : "");
        case distance:
            return found.from ? textof(distancetext(*found.from, {port.latitude, port.longitude})) : QString();
        case zone:
            return textof(zonetext(port, sight));
        case columns:
            break;
    }
    return {};
}

QVariant FinderTable::Model::data(const QModelIndex& index, int role) const {
    const std::size_t place = found.ports[static_cast<std::size_t>(index.row())].place;
    // Another window may have read the areas anew.
    if (place >= sight.world.ports.size()) return {};
    const WorldPort& port = sight.world.ports[place];
    const auto column = static_cast<Column>(index.column());
    const Trust trust = trustof(port);
    if (role == Qt::DisplayRole) return text(port, place, column);
    if (role == Qt::DecorationRole && column == name) return marks[static_cast<std::size_t>(trust)];
    if (role == Qt::TextAlignmentRole && column == star) return Qt::AlignCenter;
    const bool marked = column == star && owner.isfavourite && owner.isfavourite(place);
    if (role == Qt::ForegroundRole && column == star)
        return QColor::fromRgb(marked ? sight.colours.needed : sight.colours.faint);
    if (role == Qt::ToolTipRole && column == star)
        return marked ? QStringLiteral("A favourite (Ctrl+D)") : QStringLiteral("Make it a favourite (Ctrl+D)");
    if (role == Qt::ToolTipRole && column == name)
        return QStringLiteral("%1. How good this port is: %2").arg(textof(port.name), QLatin1String(trustword(trust)));
    if (role == Qt::ToolTipRole) return text(port, place, column);
    if (role == Qt::AccessibleTextRole && column == star)
        return marked ? QStringLiteral("favourite") : QStringLiteral("no favourite");
    if (role == Qt::AccessibleTextRole && column == name)
        return QStringLiteral("%1, %2").arg(textof(port.name), QLatin1String(trustword(trust)));
    return {};
}

QVariant FinderTable::Model::headerData(int section, Qt::Orientation orientation, int role) const {
    constexpr std::array heads{"\u2605", "Port", "Sea area", "Country", "Distance", "Time zone, now"};
    if (orientation != Qt::Horizontal) return {};
    if (section == star && role == Qt::TextAlignmentRole) return Qt::AlignCenter;
    if (role == Qt::DisplayRole) return QString::fromUtf8(heads.at(static_cast<std::size_t>(section)));
    if (section == star && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return QStringLiteral("Favourites");
    return {};
}

void FinderTable::Model::replace(Found another) {
    beginResetModel();
    found = std::move(another);
    endResetModel();
}

FinderTable::FinderTable(const FinderSight& sight) : model_(*this, sight) {
    setObjectName("ports");
    setAccessibleName("Ports");
    setModel(&model_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(SingleSelection);
    setExpandsOnDoubleClick(false);
    setIconSize({marksize, marksize});
    header()->setSectionsMovable(false);
    setItemDelegateForColumn(zone, new ZoneDelegate(this));
    sizecolumns();
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == star && onstar) onstar(placeof(index));
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() != star && onchoice) onchoice(placeof(index));
    });
}

/// Once, for any list: to measure all that is listed would take longer than to find it.
void FinderTable::sizecolumns() {
    const auto widthof = [this](const char* text) { return fontMetrics().horizontalAdvance(QString::fromUtf8(text)); };
    const int blank = widthof("00");
    header()->setMinimumSectionSize(blank);
    header()->setStretchLastSection(true);
    wanted[star] = widthof("\u2605") + 2 * blank;
    wanted[name] = widthof("South Newport River Daymark 1 (GA)") + marksize + blank;
    wanted[area] = widthof("US Delaware and Chesapeake") + blank;
    wanted[country] = widthof("Papua New Guinea") + blank;
    wanted[distance] = widthof("10000 nm NW") + blank;
    wanted[zone] = widthof("America/Los_Angeles, UT-08:00") + blank;
    for (int column = 0; column < columns; ++column)
        header()->resizeSection(column, wanted[static_cast<std::size_t>(column)]);
}

/// In a narrow window those columns give way whose texts can be cut; their hints have them whole.
void FinderTable::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    const int whole = std::accumulate(wanted.begin(), wanted.end(), 0), stiff = wanted[star] + wanted[distance];
    const int width = viewport()->width();
    const bool narrow = width < whole;
    if (!narrow && !narrowed) return;
    narrowed = narrow;
    for (const Column column : {name, area, country, zone}) {
        const int usual = wanted[column];
        header()->resizeSection(column, narrow ? usual * std::max(width - stiff, stiff) / (whole - stiff) : usual);
    }
}

QSize FinderTable::sizeHint() const {
    constexpr int rowsseen = 16;
    const int row = std::max(fontMetrics().height(), marksize) + 2;
    return {
        std::accumulate(wanted.begin(), wanted.end(), 0) + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
        header()->sizeHint().height() + rowsseen * row + 2 * frameWidth()};
}

void FinderTable::show(Found found) {
    model_.replace(std::move(found));
    gotorow(0);
    scrollToTop();
}

void FinderTable::gotorow(int row) {
    if (model_.rowCount() > 0) setCurrentIndex(model_.index(std::clamp(row, 0, model_.rowCount() - 1), name));
}

std::size_t FinderTable::placeof(const QModelIndex& index) const {
    return model_.found.ports[static_cast<std::size_t>(index.row())].place;
}

std::optional<std::size_t> FinderTable::current() const {
    const QModelIndex index = currentIndex();
    if (!index.isValid() || index.row() >= model_.rowCount()) return std::nullopt;
    return placeof(index);
}

void FinderTable::showstars() {
    if (model_.rowCount() > 0)
        emit model_.dataChanged(model_.index(0, star), model_.index(model_.rowCount() - 1, star));
}

QString FinderTable::celltext(int row, Column column) const {
    return model_.data(model_.index(row, column), Qt::DisplayRole).toString();
}

}  // namespace tarvane
