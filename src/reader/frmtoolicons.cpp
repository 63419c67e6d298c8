#include "reader/frmtoolicons.h"

#include <QPainter>
#include <QPainterPath>

namespace tarvane {
namespace {

// Everything is drawn in a square of 24 by 24.

void drawarrow(QPainter& painter, bool right, bool bar) {
    if (right) {
        painter.translate(24, 0);
        painter.scale(-1, 1);
    }
    const double tip = bar ? 7.5 : 6;
    QPolygonF arrow{{tip, 12}, {tip + 11, 4}, {tip + 11, 20}};
    painter.setBrush(painter.pen().color());
    painter.drawPolygon(arrow);
    if (bar) painter.drawRect(QRectF(3.5, 4, 1.6, 16));
}

void drawchevron(QPainter& painter, bool down) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(painter.pen().color(), 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double tip = down ? 16 : 8, ends = 24 - tip;
    painter.drawPolyline(QPolygonF{{5, ends}, {12, tip}, {19, ends}});
}

void drawglass(QPainter& painter, bool plus) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(painter.pen().color(), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(10, 10), 6.5, 6.5);
    painter.drawLine(QPointF(7, 10), QPointF(13, 10));
    if (plus) painter.drawLine(QPointF(10, 7), QPointF(10, 13));
    painter.setPen(QPen(painter.pen().color(), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(15.2, 15.2), QPointF(20, 20));
}

/// A sheet with arrows to its edges: to both sides, or to all.
void drawsheet(QPainter& painter, bool whole) {
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(4, 2, 16, 20));
    painter.setPen(QPen(painter.pen().color(), 1.6, Qt::SolidLine, Qt::RoundCap));
    const auto arrows = [&painter] {
        painter.drawLine(QPointF(6.5, 12), QPointF(17.5, 12));
        for (const double side : {-1.0, 1.0}) {
            painter.drawLine(QPointF(12 + side * 5.5, 12), QPointF(12 + side * 3, 9.5));
            painter.drawLine(QPointF(12 + side * 5.5, 12), QPointF(12 + side * 3, 14.5));
        }
    };
    arrows();
    if (!whole) return;
    painter.translate(12, 12);
    painter.rotate(90);
    painter.scale(1.25, 1);
    painter.translate(-12, -12);
    arrows();
}

QPixmap drawn(ToolPicture picture, int size) {
    QPixmap pixels(size, size);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 24.0, size / 24.0);
    painter.setPen(QPen(QColor(0x30, 0x48, 0x60), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (picture) {
        case ToolPicture::first:
        case ToolPicture::back:
            drawarrow(painter, false, picture == ToolPicture::first);
            break;
        case ToolPicture::next:
        case ToolPicture::last:
            drawarrow(painter, true, picture == ToolPicture::last);
            break;
        case ToolPicture::up:
        case ToolPicture::down:
            drawchevron(painter, picture == ToolPicture::down);
            break;
        case ToolPicture::zoomin:
        case ToolPicture::zoomout:
            drawglass(painter, picture == ToolPicture::zoomin);
            break;
        case ToolPicture::fitwidth:
        case ToolPicture::fitpage:
            drawsheet(painter, picture == ToolPicture::fitpage);
            break;
    }
    return pixels;
}

}  // namespace

QIcon toolicon(ToolPicture picture, const char* theme) {
    QIcon own;
    for (const int size : {16, 24, 32, 48, 64})
        own.addPixmap(drawn(picture, size));
    return *theme ? QIcon::fromTheme(QLatin1String(theme), own) : own;
}

}  // namespace tarvane
