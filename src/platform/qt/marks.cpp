#include "platform/qt/marks.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPen>
#include <algorithm>
#include <array>
#include <cmath>

namespace tarvane {

namespace {

bool finite(QPointF point) {
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The part of a line within a rectangle, by Liang and Barsky (ACM Transactions on Graphics 3, 1984). An end that lies
/// inside comes back as it is.
std::optional<QLineF> clipped(QPointF from, QPointF to, QRectF room) {
    const double dx = to.x() - from.x();
    const double dy = to.y() - from.y();
    double start = 0;
    double end = 1;
    const double steps[4][2] = {{-dx, from.x() - room.left()},
                                {dx, room.right() - from.x()},
                                {-dy, from.y() - room.top()},
                                {dy, room.bottom() - from.y()}};
    for (const auto& [rate, distance] : steps) {
        if (rate == 0) {
            if (distance < 0) return std::nullopt;
        } else if (rate < 0) {
            start = std::max(start, distance / rate);
        } else {
            end = std::min(end, distance / rate);
        }
    }
    if (!(start <= end)) return std::nullopt;
    const QPointF last = end < 1 ? QPointF(from.x() + end * dx, from.y() + end * dy) : to;
    const QLineF part(QPointF(from.x() + start * dx, from.y() + start * dy), last);
    // From a far enough end the sums above lose every digit.
    const QRectF around = room.adjusted(-1, -1, 1, 1);
    if (!around.contains(part.p1()) || !around.contains(part.p2())) return std::nullopt;
    return part;
}

/// The first of `width` pixels around a place; near an edge they are the pixels along it.
int firstpixel(double at, int width, int length) {
    return static_cast<int>(std::max(0.0, std::min(std::round(at - width / 2.0), double(length - width))));
}

bool straddles(double from, double to, double length) {
    return std::max(from, to) >= 0 && std::min(from, to) <= length;
}

/// The pixels of an upright or level line.
QRect straightarea(QSize size, QPointF from, QPointF to, bool upright, int width) {
    const int length = upright ? size.height() : size.width();
    const auto placed = [&](QPointF point) {
        return static_cast<int>(std::round(std::clamp(upright ? point.y() : point.x(), 0.0, double(length))));
    };
    const auto [start, end] = std::minmax({placed(from), placed(to)});
    const int first = std::min(start, length - 1);
    const int extent = std::max(end - first, 1);
    if (upright) return {firstpixel(from.x(), width, size.width()), first, width, extent};
    return {first, firstpixel(from.y(), width, size.height()), extent, width};
}

Mark areamark(QRect area, Colour colour) {
    Mark mark;
    mark.area = area;
    mark.colour = screencolour(colour);
    mark.touched = area;
    return mark;
}

/// Two dashes and the gap behind each, in widths of the line.
std::array<int, 4> dashesof(LineStyle style) {
    switch (style) {
        case LineStyle::dashed:
            return {4, 3, 4, 3};
        case LineStyle::longdashed:
            return {9, 3, 9, 3};
        case LineStyle::dashdotted:
            return {6, 2, 1, 2};
        default:
            return {1, 2, 1, 2};
    }
}

void paintarea(QPainter& painter, const Mark& mark) {
    const QRect& area = mark.area;
    if (mark.style == LineStyle::solid) {
        painter.fillRect(area, mark.colour);
        return;
    }
    const bool upright = area.height() > area.width();
    const int width = upright ? area.width() : area.height();
    const std::array<int, 4> dashes = dashesof(mark.style);
    QPoint at = area.topLeft();
    for (std::size_t i = 0; area.contains(at); i = (i + 1) % dashes.size()) {
        const int length = width * dashes[i];
        const QRect piece(at, upright ? QSize(width, length) : QSize(length, width));
        if (i % 2 == 0) painter.fillRect(piece.intersected(area), mark.colour);
        at += upright ? QPoint(0, length) : QPoint(length, 0);
    }
}

void paintcurve(QPainter& painter, const Mark& mark) {
    QPen pen(mark.colour, mark.width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
    if (mark.style != LineStyle::solid) {
        const std::array<int, 4> dashes = dashesof(mark.style);
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(QList<qreal>(dashes.begin(), dashes.end()));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(pen);
    painter.drawPolyline(mark.line);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

int PixelGrid::whole(int logical) const {
    return std::max(static_cast<int>(std::floor(std::max(logical, 1) * ratio)), 1);
}

QColor screencolour(Colour colour) {
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                  static_cast<int>(colour >> 16 & 0xFF));
}

std::optional<Mark> linemark(const PixelGrid& grid, QPointF from, QPointF to, const LinePen& pen) {
    if (!finite(from) || !finite(to)) return std::nullopt;
    const bool upright = from.x() == to.x();
    const bool level = from.y() == to.y();
    Mark mark;
    if (upright || level) {
        if (!straddles(from.x(), to.x(), grid.size.width()) || !straddles(from.y(), to.y(), grid.size.height()))
            return std::nullopt;
        mark = areamark(straightarea(grid.size, from, to, upright, grid.whole(pen.width)), pen.colour);
        mark.style = pen.style;
        // A level piece of a curve is as short as its neighbours and must not stand out among them.
        const bool piece = level && !upright && std::abs(to.x() - from.x()) < grid.size.width() / 100.0;
        if (!piece) return mark;
    }
    // Shared out between neighbouring pixels it would look paler than a straight line as wide.
    mark.width = (std::max(pen.width, 1) + 0.25) * grid.ratio;
    const double margin = mark.width + 2;
    const auto line = clipped(from, to, QRectF(QPointF(0, 0), grid.size).adjusted(-margin, -margin, margin, margin));
    if (!line) return std::nullopt;
    mark.kind = Mark::Kind::line;
    mark.line = QPolygonF{line->p1(), line->p2()};
    mark.colour = screencolour(pen.colour);
    mark.style = pen.style;
    mark.touched = mark.line.boundingRect().adjusted(-margin, -margin, margin, margin).toAlignedRect();
    return mark;
}

std::optional<Mark> boxmark(const PixelGrid& grid, QPointF from, QPointF to, Colour colour) {
    if (!finite(from) || !finite(to)) return std::nullopt;
    const auto placed = [](double at, int length) {
        return static_cast<int>(std::round(std::clamp(at, 0.0, double(length))));
    };
    const auto [left, right] = std::minmax({placed(from.x(), grid.size.width()), placed(to.x(), grid.size.width())});
    const auto [top, bottom] = std::minmax({placed(from.y(), grid.size.height()), placed(to.y(), grid.size.height())});
    if (left == right || top == bottom) return std::nullopt;
    return areamark({left, top, right - left, bottom - top}, colour);
}

std::optional<Mark> pointmark(const PixelGrid& grid, QPointF at, Colour colour, int width) {
    if (!finite(at) || !QRectF(QPointF(0, 0), grid.size).contains(at)) return std::nullopt;
    const int side = grid.whole(std::max(width, 2));
    return areamark(
        {firstpixel(at.x(), side, grid.size.width()), firstpixel(at.y(), side, grid.size.height()), side, side},
        colour);
}

std::optional<Mark> textmark(const PixelGrid& grid, QPointF lefttop, const QString& text, const QFont& font) {
    if (!finite(lefttop) || text.isEmpty()) return std::nullopt;
    const QFontMetricsF metrics(font);
    const QRectF area(lefttop, QSizeF(metrics.horizontalAdvance(text), metrics.height()) * grid.ratio);
    if (!area.intersects(QRectF(QPointF(0, 0), grid.size))) return std::nullopt;
    Mark mark;
    mark.kind = Mark::Kind::text;
    mark.colour = screencolour(black);
    mark.text = text;
    // Two pixels clear of an upright line at the same place.
    mark.place = {std::round(lefttop.x()) + grid.whole(2), std::round(lefttop.y() + metrics.ascent() * grid.ratio)};
    const double margin = grid.whole(4);
    mark.touched = area.adjusted(-margin, -margin, margin, margin).toAlignedRect();
    return mark;
}

bool joinmark(Mark& mark, const Mark& next) {
    const bool lines = mark.kind == Mark::Kind::line && next.kind == Mark::Kind::line;
    if (!lines || mark.line.back() != next.line.front() || mark.colour != next.colour || mark.width != next.width ||
        mark.style != next.style)
        return false;
    mark.line << next.line.back();
    mark.area = mark.area.isEmpty() || next.area.isEmpty() ? QRect() : mark.area.united(next.area);
    mark.touched |= next.touched;
    return true;
}

void paintmark(QPainter& painter, const Mark& mark, const QFont& font, double ratio) {
    if (mark.kind == Mark::Kind::text) {
        painter.save();
        painter.scale(ratio, ratio);
        painter.setFont(font);
        painter.setPen(mark.colour);
        painter.drawText(mark.place / ratio, mark.text);
        painter.restore();
    } else if (mark.area.isEmpty()) {
        paintcurve(painter, mark);
    } else {
        paintarea(painter, mark);
    }
}

}  // namespace tarvane
