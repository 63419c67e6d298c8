#include "platform/qt/marks.h"

#include <QFontMetricsF>
#include <QPen>
#include <algorithm>
#include <cmath>

namespace tarvane {

namespace {

bool finite(QPointF point) {
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// The part of a line within a rectangle, by Liang and Barsky (ACM Transactions on Graphics 3, 1984).
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
    const QLineF part(from.x() + start * dx, from.y() + start * dy, from.x() + end * dx, from.y() + end * dy);
    // From a far enough end the sums above lose every digit.
    const QRectF around = room.adjusted(-1, -1, 1, 1);
    if (!around.contains(part.p1()) || !around.contains(part.p2())) return std::nullopt;
    return part;
}

/// The first pixel of a line of the given width at a coordinate; a line on the far edge takes the last pixels.
double firstpixel(double at, int width, double length) {
    return std::min(std::floor(at) - (width - 1) / 2, std::floor(length) - width);
}

bool straddles(double from, double to, double length) {
    return std::max(from, to) >= 0 && std::min(from, to) <= length;
}

/// The pixels of an upright or level line.
QRectF straightarea(QSizeF size, QPointF from, QPointF to, bool upright, int width) {
    const double length = upright ? size.height() : size.width();
    const double one = std::clamp(upright ? from.y() : from.x(), 0.0, length);
    const double other = std::clamp(upright ? to.y() : to.x(), 0.0, length);
    const double start = std::floor(std::min(one, other));
    const double extent = std::max(std::ceil(std::max(one, other)) - start, 1.0);
    if (upright) return {firstpixel(from.x(), width, size.width()), start, double(width), extent};
    return {start, firstpixel(from.y(), width, size.height()), extent, double(width)};
}

Mark areamark(QRectF area, Colour colour) {
    Mark mark;
    mark.area = area;
    mark.colour = screencolour(colour);
    mark.touched = area.toAlignedRect().adjusted(-1, -1, 1, 1);
    return mark;
}

}  // namespace

QColor screencolour(Colour colour) {
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                  static_cast<int>(colour >> 16 & 0xFF));
}

std::optional<Mark> linemark(QSizeF size, QPointF from, QPointF to, Colour colour, int width) {
    if (!finite(from) || !finite(to)) return std::nullopt;
    width = std::max(width, 1);
    const bool upright = from.x() == to.x();
    const bool level = from.y() == to.y();
    if (upright || level) {
        if (!straddles(from.x(), to.x(), size.width()) || !straddles(from.y(), to.y(), size.height()))
            return std::nullopt;
        // A level piece of a curve is as short as its neighbours and must not stand out among them.
        const bool piece = level && !upright && std::abs(to.x() - from.x()) < size.width() / 100;
        if (!piece) return areamark(straightarea(size, from, to, upright, width), colour);
    }
    const double margin = width + 2.0;
    const auto line = clipped(from, to, QRectF(QPointF(0, 0), size).adjusted(-margin, -margin, margin, margin));
    if (!line) return std::nullopt;
    Mark mark;
    mark.kind = Mark::Kind::line;
    mark.line = *line;
    mark.colour = screencolour(colour);
    mark.width = width;
    mark.touched = QRectF(line->p1(), line->p2()).normalized().toAlignedRect().adjusted(-width, -width, width, width);
    return mark;
}

std::optional<Mark> boxmark(QSizeF size, QPointF from, QPointF to, Colour colour) {
    if (!finite(from) || !finite(to)) return std::nullopt;
    const double left = std::clamp(std::min(from.x(), to.x()), 0.0, size.width());
    const double right = std::clamp(std::max(from.x(), to.x()), 0.0, size.width());
    const double top = std::clamp(std::min(from.y(), to.y()), 0.0, size.height());
    const double bottom = std::clamp(std::max(from.y(), to.y()), 0.0, size.height());
    const QRectF area(QPointF(std::round(left), std::round(top)), QPointF(std::round(right), std::round(bottom)));
    if (area.isEmpty()) return std::nullopt;
    return areamark(area, colour);
}

std::optional<Mark> pointmark(QSizeF size, QPointF at, Colour colour, int width) {
    if (!finite(at) || !QRectF(QPointF(0, 0), size).contains(at)) return std::nullopt;
    const double side = std::max(width, 2);
    return areamark({std::round(at.x() - side / 2), std::round(at.y() - side / 2), side, side}, colour);
}

std::optional<Mark> textmark(QSizeF size, QPointF lefttop, const QString& text, const QFont& font) {
    if (!finite(lefttop) || text.isEmpty()) return std::nullopt;
    const QFontMetricsF metrics(font);
    const QRectF area(lefttop, QSizeF(metrics.horizontalAdvance(text), metrics.height()));
    if (!area.intersects(QRectF(QPointF(0, 0), size))) return std::nullopt;
    Mark mark = areamark(area, black);
    mark.kind = Mark::Kind::text;
    mark.text = text;
    // Two pixels clear of an upright line at the same place.
    mark.line.setP1({std::round(lefttop.x()) + 2, std::round(lefttop.y() + metrics.ascent())});
    mark.touched.adjust(-3, -2, 3, 2);
    return mark;
}

void paintmark(QPainter& painter, const Mark& mark, const QFont& font) {
    switch (mark.kind) {
        case Mark::Kind::area:
            painter.fillRect(mark.area, mark.colour);
            break;
        case Mark::Kind::line:
            painter.setRenderHint(QPainter::Antialiasing, true);
            painter.setPen(QPen(mark.colour, mark.width, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(mark.line);
            painter.setRenderHint(QPainter::Antialiasing, false);
            break;
        case Mark::Kind::text:
            painter.setFont(font);
            painter.setPen(mark.colour);
            painter.drawText(mark.line.p1(), mark.text);
            break;
    }
}

}  // namespace tarvane
