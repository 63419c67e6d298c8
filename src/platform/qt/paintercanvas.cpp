#include "platform/qt/paintercanvas.h"

#include <QPaintEngine>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/qt/hatching.h"

namespace tarvane {
namespace {

/// Rows: from a hundred on the toolkit calls other threads to help, which takes longer than to paint what is narrow.
constexpr double lowpiece = 40;

QPolygonF polygonof(std::span<const Place> places) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(places.size()));
    for (const Place& each : places)
        polygon << QPointF(each.x, each.y);
    return polygon;
}

constexpr double tallest = 20000;  // units, of a shape: no picture shows more

bool higher(const Place& one, const Place& other) {
    return one.y < other.y;
}

/// What lies under a curve and between two levels, `top` above `bottom`.
std::vector<Place> bandunder(std::span<const Place> curve, double top, double bottom) {
    std::vector<Place> shape;
    for (std::size_t i = 0; i < curve.size(); ++i) {
        shape.push_back({curve[i].x, std::clamp(curve[i].y, top, bottom)});
        if (i + 1 == curve.size()) break;
        const Place &from = curve[i], &to = curve[i + 1];
        std::array levels{top, bottom};
        if (from.y > to.y) std::swap(levels[0], levels[1]);
        for (const double level : levels)
            if ((from.y < level) != (to.y < level))
                shape.push_back({from.x + (to.x - from.x) * (level - from.y) / (to.y - from.y), level});
    }
    shape.push_back({curve.back().x, bottom});
    shape.push_back({curve.front().x, bottom});
    return shape;
}

constexpr double coarsest = 0.15;  // pixels, between a line on a screen and what is painted of it

/// Whether the places between two of a line lie on the straight way from one to the other.
bool isstraight(std::span<const Place> places, std::size_t first, std::size_t last, double tolerance) {
    const double x = places[last].x - places[first].x, y = places[last].y - places[first].y;
    const double length = std::hypot(x, y);
    for (std::size_t i = first + 1; i < last; ++i) {
        const double dx = places[i].x - places[first].x, dy = places[i].y - places[first].y;
        const double along = (dx * x + dy * y) / length, aside = (dx * y - dy * x) / length;
        if (!(along >= 0 && along <= length && std::abs(aside) <= tolerance)) return false;
    }
    return true;
}

/// A line as strokes, for which the toolkit has a far faster way. Each goes a little over its ends, so that no bend has
/// a gap.
std::vector<QLineF> strokesof(std::span<const Place> places, double over, double tolerance) {
    constexpr std::size_t most = 8;  // places left out on end
    std::vector<QLineF> strokes;
    strokes.reserve(places.size());
    for (std::size_t from = 0, to = 0; from + 1 < places.size(); from = to) {
        to = from + 1;
        while (to + 1 < places.size() && to - from < most && isstraight(places, from, to + 1, tolerance))
            ++to;
        QLineF stroke(places[from].x, places[from].y, places[to].x, places[to].y);
        const double length = stroke.length();
        if (!(length > 0)) continue;
        const QPointF beyond = (stroke.p2() - stroke.p1()) * (over / length);
        strokes.emplace_back(stroke.p1() - beyond, stroke.p2() + beyond);
    }
    return strokes;
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

PainterCanvas::PainterCanvas(QPainter& painter, const QFont& font, double scale, MeasuredTexts* measured)
    : painter_(painter), font_(font), measured_(measured ? *measured : own_) {
    painter_.save();
    painter_.scale(scale, scale);
    pixels_ = painter_.deviceTransform().m11();
    onscreen_ = painter_.paintEngine()->type() == QPaintEngine::Raster;
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

PainterCanvas::~PainterCanvas() {
    painter_.restore();
}

const PainterCanvas::Font& PainterCanvas::fontof(const TextLook& look) const {
    const int size = std::max(1, static_cast<int>(std::lround(look.size)));
    const auto known = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const Font& each) { return each.size == size && each.bold == look.bold; });
    if (known != fonts_.end()) return *known;
    QFont font = font_;
    font.setPixelSize(size);
    font.setBold(look.bold);
    fonts_.push_back({size, look.bold, font, QFontMetricsF(font), measured_.in(font)});
    return fonts_.back();
}

double PainterCanvas::textwidth(const std::string& text, const TextLook& look) const {
    const Font& font = fontof(look);
    return textwidthof(text, font.font, font.widths);
}

double PainterCanvas::textheight(const TextLook& look) const {
    return fontof(look).metrics.height();
}

void PainterCanvas::fill(const Area& area, Rgb colour, double opacity) {
    QColor filling = QColor::fromRgb(colour);
    filling.setAlphaF(static_cast<float>(opacity));
    // Between whole pixels: neighbours meet, and what isn't smoothed is far quicker.
    painter_.setRenderHint(QPainter::Antialiasing, !onscreen_);
    painter_.fillRect(QRectF(area.left, area.top, area.width(), area.height()), filling);
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterCanvas::fill(std::span<const Place> corners, Rgb colour, double opacity) {
    QColor filling = QColor::fromRgb(colour);
    filling.setAlphaF(static_cast<float>(opacity));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(filling);
    painter_.drawPolygon(polygonof(corners));
}

void PainterCanvas::fillrough(std::span<const Place> corners, Rgb colour) {
    painter_.setRenderHint(QPainter::Antialiasing, !onscreen_);
    fill(corners, colour, 1);
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterCanvas::fillhatched(std::span<const Place> curve, double foot, const HatchLook& look) {
    if (curve.size() < 2) return;
    painter_.setPen(Qt::NoPen);
    if (!onscreen_) {
        painter_.setBrush(QColor::fromRgb(look.filling));
        painter_.drawPolygon(polygonof(bandunder(curve, -HUGE_VAL, foot)));
        painter_.setPen(QPen(QColor::fromRgb(look.lines), look.width, Qt::SolidLine, Qt::FlatCap));
        return painter_.drawLines(hatchlines(curve, foot, look.step));
    }
    if (!hatch_ || hatch_->look != look) hatch_ = {look, hatchbrush(look, pixels_)};
    painter_.setBrush(hatch_->brush);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    // In pieces a few tides wide: the toolkit's time for a shape grows with the square of its slopes. And in low ones.
    const double tall = lowpiece / pixels_;
    constexpr std::size_t wide = 32;
    for (std::size_t from = 0; from + 1 < curve.size(); from += wide) {
        const auto part = curve.subspan(from, std::min(wide + 1, curve.size() - from));
        const double top = std::max(std::min_element(part.begin(), part.end(), higher)->y, foot - tallest);
        for (double bottom = foot; bottom > top; bottom -= tall)
            painter_.drawPolygon(polygonof(bandunder(part, bottom - tall, bottom)));
    }
    painter_.setRenderHint(QPainter::Antialiasing);
}

/// A grid's lines on a screen lie on whole pixels and needn't be smoothed. False for any other line.
bool PainterCanvas::levelline(std::span<const Place> places, const LineLook& look) {
    if (places.size() != 2 || look.style != LineStyle::solid || !onscreen_) return false;
    const bool upright = places[0].x == places[1].x;
    if (!upright && places[0].y != places[1].y) return false;
    QColor colour = QColor::fromRgb(look.colour);
    colour.setAlphaF(static_cast<float>(std::min(look.width, 1.0)));
    const auto onpixel = [this](double at) { return std::round(at * pixels_) / pixels_; };
    const double width = onpixel(std::max(std::round(look.width), 1.0));
    const auto [left, right] = std::minmax({places[0].x, places[1].x});
    const auto [top, bottom] = std::minmax({places[0].y, places[1].y});
    const QRectF whole = upright
                             ? QRectF(onpixel(left - width / 2), onpixel(top), width, onpixel(bottom) - onpixel(top))
                             : QRectF(onpixel(left), onpixel(top - width / 2), onpixel(right) - onpixel(left), width);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    const double tall = lowpiece / pixels_;
    for (double down = 0; down < whole.height(); down += tall)
        painter_.fillRect(
            QRectF(whole.left(), whole.top() + down, whole.width(), std::min(tall, whole.height() - down)), colour);
    painter_.setRenderHint(QPainter::Antialiasing);
    return true;
}

void PainterCanvas::line(std::span<const Place> places, const LineLook& look) {
    if (levelline(places, look)) return;
    painter_.setPen(QPen(QColor::fromRgb(look.colour), look.width, penstyle(look.style), Qt::FlatCap, Qt::BevelJoin));
    painter_.setBrush(Qt::NoBrush);
    // The toolkit has a far faster way for single lines without round ends.
    if (places.size() == 2)
        return painter_.drawLine(QPointF(places[0].x, places[0].y), QPointF(places[1].x, places[1].y));
    if (onscreen_ && look.style == LineStyle::solid) {
        const std::vector<QLineF> strokes = strokesof(places, look.width / 5, coarsest / pixels_);
        return painter_.drawLines(strokes.data(), static_cast<int>(strokes.size()));
    }
    painter_.drawPolyline(polygonof(places));
}

void PainterCanvas::text(Place place, const std::string& text, const TextLook& look) {
    const double width = look.anchor == Anchor::left ? 0 : textwidth(text, look);
    const double left = place.x - (look.anchor == Anchor::middle ? width / 2 : width);
    const Font& font = fontof(look);
    painter_.setFont(font.font);
    painter_.setPen(QColor::fromRgb(look.colour));
    painter_.drawText(QPointF(left, place.y + font.metrics.ascent()), QString::fromStdString(text));
}

}  // namespace tarvane
