#include "planner/frmplantable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/qt/screentext.h"

namespace tarvane {
namespace {

/// As the style paints it.
int cellmargin(const QTableView& table) {
    return table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1;
}

/// Texts alone where a cell has no more than that: the style takes many times as long for the same.
class TextCells : public QStyledItemDelegate {
  public:
    TextCells(QTableView& table, MeasuredTexts& measured)
        : QStyledItemDelegate(&table), table_(table), measured_(measured) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QString text = index.data().toString();
        const int margin = cellmargin(table_), room = option.rect.width() - 2 * margin;
        const bool marked = option.state & (QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
        const double width = textwidthof(text.toStdString(), option.font, measured_.in(option.font));
        if (marked || width > room || option.direction == Qt::RightToLeft || !(option.state & QStyle::State_Enabled))
            return QStyledItemDelegate::paint(painter, option, index);
        painter->setFont(option.font);
        painter->setPen(option.palette.color(QPalette::Normal, QPalette::Text));
        const int top = option.rect.top() + (option.rect.height() - option.fontMetrics.height()) / 2;
        painter->drawText(QPoint(option.rect.left() + margin, top + option.fontMetrics.ascent()), text);
    }

  private:
    QTableView& table_;
    MeasuredTexts& measured_;
};

}  // namespace

PlanTableBox::PlanTableBox(const char* name, const char* accessiblename) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessiblename);
    setModel(&model_);
    setItemDelegate(new TextCells(*this, measured_));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    setSortingEnabled(true);
    sortByColumn(0, Qt::AscendingOrder);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) { choose(index.row()); });
}

void PlanTableBox::choose(int row) {
    if (row >= 0 && row < model_.rowCount() && onmoment)
        onmoment(model_.table.rows[static_cast<std::size_t>(row)].moment);
}

void PlanTableBox::showtable(PlanTable table) {
    model_.replace(std::move(table));
    resizeColumnsToContents();
}

int PlanTableBox::sizeHintForColumn(int column) const {
    TextWidths& widths = measured_.in(font());
    double widest = 0;
    for (const PlanTable::Row& row : model_.table.rows)
        widest = std::max(widest, textwidthof(row.cells[static_cast<std::size_t>(column)], font(), widths));
    return static_cast<int>(std::ceil(widest)) + 2 * cellmargin(*this);
}

bool PlanTableBox::event(QEvent* event) {
    // The table's own paging comes before the stepping of days.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool pages = key.key() == Qt::Key_PageDown || key.key() == Qt::Key_PageUp;
        if (pages && key.modifiers() == Qt::NoModifier) event->accept();
    }
    return QTableView::event(event);
}

void PlanTableBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return choose(currentIndex().row());
    if (event->matches(QKeySequence::Copy) && oncopy) return oncopy();
    QTableView::keyPressEvent(event);
}

int PlanTableBox::Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table.rows.size());
}

int PlanTableBox::Model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table.headings.size());
}

QVariant PlanTableBox::Model::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) return {};
    return screentext(
        table.rows[static_cast<std::size_t>(index.row())].cells[static_cast<std::size_t>(index.column())]);
}

QVariant PlanTableBox::Model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return screentext(table.headings[static_cast<std::size_t>(section)]);
}

std::vector<int> PlanTableBox::Model::arrange() {
    const auto column = static_cast<std::size_t>(std::max(sortedby, 0));
    std::vector<std::size_t> places(table.rows.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(), [&](std::size_t first, std::size_t second) {
        const PlanTable::Row &one = table.rows[first], &other = table.rows[second];
        if (column >= one.keys.size()) return false;
        return order == Qt::AscendingOrder ? one.keys[column] < other.keys[column]
                                           : one.keys[column] > other.keys[column];
    });
    std::vector<PlanTable::Row> rows;
    std::vector<int> moved(places.size());
    for (std::size_t row = 0; row < places.size(); ++row) {
        rows.push_back(std::move(table.rows[places[row]]));
        moved[places[row]] = static_cast<int>(row);
    }
    table.rows = std::move(rows);
    return moved;
}

void PlanTableBox::Model::sort(int column, Qt::SortOrder wanted) {
    emit layoutAboutToBeChanged();
    sortedby = column;
    order = wanted;
    const std::vector<int> moved = arrange();
    // What is selected stays selected, wherever it goes.
    for (const QModelIndex& each : persistentIndexList())
        changePersistentIndex(each, index(moved[static_cast<std::size_t>(each.row())], each.column()));
    emit layoutChanged();
}

void PlanTableBox::Model::replace(PlanTable another) {
    beginResetModel();
    table = std::move(another);
    arrange();
    endResetModel();
}

}  // namespace tarvane
