#include "platform/qt/hatching.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvane {

QBrush hatchbrush(const HatchLook& look, double pixels) {
    // Whole pixels, so that tiles meet; many lines a tile, because the toolkit paints tile by tile.
    constexpr int lines = 32;
    const int step = std::max(2, static_cast<int>(std::lround(look.step * pixels)));
    QImage tile(lines * step, step, QImage::Format_RGB32);
    tile.fill(QColor::fromRgb(look.filling));
    {
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor::fromRgb(look.lines), look.width * pixels, Qt::SolidLine, Qt::SquareCap));
        for (int x = 0; x <= (lines + 1) * step; x += step)
            painter.drawLine(x, 0, x - step, step);
    }
    QBrush brush(tile);
    brush.setTransform(QTransform::fromScale(1 / pixels, 1 / pixels));
    return brush;
}

QList<QLineF> hatchlines(std::span<const Place> curve, double foot, double step) {
    std::vector<Place> shape(curve.begin(), curve.end());
    shape.push_back({curve.back().x, foot});
    shape.push_back({curve.front().x, foot});
    const auto [least, greatest] =
        std::minmax_element(shape.begin(), shape.end(),
                            [](const Place& one, const Place& other) { return one.x + one.y < other.x + other.y; });
    QList<QLineF> lines;
    for (double sum = std::ceil((least->x + least->y) / step) * step; sum < greatest->x + greatest->y; sum += step) {
        std::vector<double> crossed;  // x of the places where the line meets the shape's edge
        for (std::size_t i = 0; i < shape.size(); ++i) {
            const Place &one = shape[i], &other = shape[(i + 1) % shape.size()];
            const double first = one.x + one.y - sum, second = other.x + other.y - sum;
            if ((first < 0) != (second < 0)) crossed.push_back(one.x + (other.x - one.x) * first / (first - second));
        }
        std::sort(crossed.begin(), crossed.end());
        for (std::size_t i = 0; i + 1 < crossed.size(); i += 2)
            lines << QLineF(crossed[i], sum - crossed[i], crossed[i + 1], sum - crossed[i + 1]);
    }
    return lines;
}

}  // namespace tarvane
