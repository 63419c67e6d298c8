// What a drawing surface puts on the screen: lines, boxes, points and texts in device pixels, made safe for the
// painter. One routine paints them, whatever the surface. Must not know a scale.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPolygonF>
#include <QRect>
#include <QString>
#include <optional>

#include "platform/drawsurface.h"

namespace tarvane {

/// The pixels that marks are placed on: a surface's own, and how many of them a logical pixel has each way.
struct PixelGrid {
    QSize size;
    double ratio = 1;

    /// Whole pixels of a length in logical ones, 1 at least: equal lines cover equally many, whatever the density.
    int whole(int logical) const;
};

/// One thing drawn. Upright and level lines, boxes and points are a filled `area`; the short pieces of a curve are a
/// `line`, which has an `area` too as long as it is level.
struct Mark {
    enum class Kind { line, area, text };
    Kind kind = Kind::area;
    QPolygonF line;
    QRect area;
    QColor colour;
    double width = 1;  ///< of the line
    LineStyle style = LineStyle::solid;
    QPointF place;  ///< of the text's first letter, on its base line
    QString text;
    QRect touched;  ///< the pixels that painting it can change
};

struct LinePen {
    Colour colour = black;
    int width = 1;  ///< logical pixels
    LineStyle style = LineStyle::solid;
};

QColor screencolour(Colour colour);

/// The makers give nothing when nothing of the mark would be seen on the grid, or when a coordinate isn't finite.
/// Places are pixels of the grid, widths logical ones.
std::optional<Mark> linemark(const PixelGrid& grid, QPointF from, QPointF to, const LinePen& pen);
std::optional<Mark> boxmark(const PixelGrid& grid, QPointF from, QPointF to, Colour colour);
std::optional<Mark> pointmark(const PixelGrid& grid, QPointF at, Colour colour, int width);
std::optional<Mark> textmark(const PixelGrid& grid, QPointF lefttop, const QString& text, const QFont& font);

/// Lengthens a line by one that begins where it ends and looks alike, so that a curve is painted in one stroke. False,
/// and nothing changed, for any other two marks.
bool joinmark(Mark& mark, const Mark& next);

/// Paints in pixels of the grid; the font is a logical one.
void paintmark(QPainter& painter, const Mark& mark, const QFont& font, double ratio);

}  // namespace tarvane
