// What a drawing surface puts on the screen: lines, boxes, points and texts in logical pixels, made safe for the
// painter. One routine paints them, whatever the surface. Must not know a scale.
#pragma once

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QRect>
#include <QString>
#include <optional>

#include "platform/drawsurface.h"

namespace tarvane {

/// One thing drawn. A slanted line has a `line`; an upright or level one, a box and a point are the filled `area`.
struct Mark {
    enum class Kind { line, area, text };
    Kind kind = Kind::area;
    QLineF line;
    QRectF area;
    QColor colour;
    int width = 1;
    QString text;
    QRect touched;  ///< the pixels that painting it can change
};

QColor screencolour(Colour colour);

/// The makers give nothing when nothing of the mark would be seen on a surface of this size, or when a coordinate isn't
/// finite. Widths and places are logical pixels.
std::optional<Mark> linemark(QSizeF size, QPointF from, QPointF to, Colour colour, int width);
std::optional<Mark> boxmark(QSizeF size, QPointF from, QPointF to, Colour colour);
std::optional<Mark> pointmark(QSizeF size, QPointF at, Colour colour, int width);
std::optional<Mark> textmark(QSizeF size, QPointF lefttop, const QString& text, const QFont& font);

void paintmark(QPainter& painter, const Mark& mark, const QFont& font);

}  // namespace tarvane
