#include "world/mapview.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tarvane {
namespace {

using std::numbers::pi;

constexpr double mostlatitude = 89.9;
constexpr double margin = 1.25;            // of what is fitted
constexpr double closestfit = 1.0 / 2048;  // a single port is shown with so much of the world about it

double inradians(double degrees) {
    return degrees * pi / 180;
}

double wrapped(double x) {
    return x - std::floor(x);
}

/// Keeps the middle in the world and the picture within its edges.
void settle(MapView& view) {
    view.scale = std::clamp(view.scale, std::max(view.width, view.height), greatestscale);
    view.middle.x = wrapped(view.middle.x);
    if (view.scale <= 0) return;
    const double half = view.height / 2 / view.scale;
    view.middle.y = std::clamp(view.middle.y, half, std::max(half, 1 - half));
}

}  // namespace

MapPoint mappoint(double latitude, double longitude) {
    const double within = std::clamp(latitude, -mostlatitude, mostlatitude);
    return {longitude / 360 + 0.5, 0.5 - std::asinh(std::tan(inradians(within))) / (2 * pi)};
}

double latitudeof(const MapPoint& point) {
    return std::atan(std::sinh((0.5 - point.y) * 2 * pi)) * 180 / pi;
}

double longitudeof(const MapPoint& point) {
    return wrapped(point.x) * 360 - 180;
}

Place MapView::placeof(const MapPoint& point) const {
    const double east = point.x - middle.x;
    return {width / 2 + (east - std::round(east)) * scale, height / 2 + (point.y - middle.y) * scale};
}

MapPoint MapView::pointof(Place place) const {
    return {wrapped(middle.x + (place.x - width / 2) / scale), middle.y + (place.y - height / 2) / scale};
}

double MapView::milewidth() const {
    return scale / (360 * 60) / std::cos(inradians(latitudeof(middle)));
}

void resizeview(MapView& view, double width, double height) {
    view.width = width;
    view.height = height;
    settle(view);
}

void moveview(MapView& view, double right, double down) {
    view.middle.x -= right / view.scale;
    view.middle.y -= down / view.scale;
    settle(view);
}

void zoomview(MapView& view, double factor, Place about) {
    const double before = view.scale;
    view.scale *= factor;
    settle(view);
    const double change = 1 / before - 1 / view.scale;
    view.middle.x += (about.x - view.width / 2) * change;
    view.middle.y += (about.y - view.height / 2) * change;
    settle(view);
}

void centreview(MapView& view, const MapPoint& point) {
    view.middle = point;
    settle(view);
}

void fitview(MapView& view, std::span<const MapPoint> points) {
    if (points.empty()) return showworld(view);
    std::vector<double> easts;
    double top = points[0].y, bottom = top;
    for (const MapPoint& each : points) {
        easts.push_back(wrapped(each.x));
        top = std::min(top, each.y);
        bottom = std::max(bottom, each.y);
    }
    std::sort(easts.begin(), easts.end());
    // What is left out is the widest gap between neighbours round the world.
    double left = easts.front(), gap = left + 1 - easts.back();
    for (std::size_t i = 1; i < easts.size(); ++i)
        if (easts[i] - easts[i - 1] > gap) {
            gap = easts[i] - easts[i - 1];
            left = easts[i];
        }
    const double wide = std::max(1 - gap, closestfit), high = std::max(bottom - top, closestfit);
    view.scale = std::min(view.width / wide, view.height / high) / margin;
    centreview(view, {left + (1 - gap) / 2, (top + bottom) / 2});
}

void showworld(MapView& view) {
    view.scale = 0;
    centreview(view, mappoint(20, 0));
}

}  // namespace tarvane
