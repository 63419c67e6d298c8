#include "platform/qt/paintercanvas.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <cmath>

namespace tarvane {
namespace {

QPolygonF polygonof(std::span<const Place> places) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(places.size()));
    for (const Place& each : places)
        polygon << QPointF(each.x, each.y);
    return polygon;
}

Qt::PenStyle penstyle(LineStyle style) {
    switch (style) {
        case LineStyle::dashed:
        case LineStyle::longdashed:
            return Qt::DashLine;
        case LineStyle::dotted:
            return Qt::DotLine;
        case LineStyle::dashdotted:
            return Qt::DashDotLine;
        case LineStyle::solid:
            break;
    }
    return Qt::SolidLine;
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const QFont& font, double scale) : painter_(painter), font_(font) {
    painter_.save();
    painter_.scale(scale, scale);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

PainterCanvas::~PainterCanvas() {
    painter_.restore();
}

QFont PainterCanvas::fontof(const TextLook& look) const {
    QFont font = font_;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(look.size))));
    font.setBold(look.bold);
    return font;
}

double PainterCanvas::textwidth(const std::string& text, const TextLook& look) const {
    return QFontMetricsF(fontof(look)).horizontalAdvance(QString::fromStdString(text));
}

double PainterCanvas::textheight(const TextLook& look) const {
    return QFontMetricsF(fontof(look)).height();
}

void PainterCanvas::fill(const Area& area, Rgb colour) {
    painter_.fillRect(QRectF(area.left, area.top, area.width(), area.height()), QColor::fromRgb(colour));
}

void PainterCanvas::fill(std::span<const Place> corners, Rgb colour, double opacity) {
    QColor filling = QColor::fromRgb(colour);
    filling.setAlphaF(static_cast<float>(opacity));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(filling);
    painter_.drawPolygon(polygonof(corners));
}

void PainterCanvas::line(std::span<const Place> places, const LineLook& look) {
    QPen pen(QColor::fromRgb(look.colour), look.width, penstyle(look.style), Qt::RoundCap, Qt::RoundJoin);
    if (look.style != LineStyle::solid) pen.setCapStyle(Qt::FlatCap);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPolyline(polygonof(places));
}

void PainterCanvas::text(Place place, const std::string& text, const TextLook& look) {
    const QFont font = fontof(look);
    const QFontMetricsF metrics(font);
    const QString shown = QString::fromStdString(text);
    const double width = look.anchor == Anchor::left ? 0 : metrics.horizontalAdvance(shown);
    const double left = place.x - (look.anchor == Anchor::middle ? width / 2 : width);
    painter_.setFont(font);
    painter_.setPen(QColor::fromRgb(look.colour));
    painter_.drawText(QPointF(left, place.y + metrics.ascent()), shown);
}

}  // namespace tarvane
