#include "fakes/recordingcanvas.h"

#include <algorithm>
#include <iterator>

namespace tarvane::fakes {

double RecordingCanvas::textwidth(const std::string& text, const TextLook& look) const {
    const auto letters = std::count_if(text.begin(), text.end(), [](char each) { return (each & 0xC0) != 0x80; });
    return static_cast<double>(letters) * look.size * (look.bold ? 0.66 : 0.6);
}

void RecordingCanvas::fill(const Area& area, Rgb colour, double) {
    fills.push_back({{{area.left, area.top}, {area.right, area.bottom}}, colour});
}

void RecordingCanvas::fill(std::span<const Place> corners, Rgb colour, double) {
    fills.push_back({{corners.begin(), corners.end()}, colour});
}

void RecordingCanvas::fillhatched(std::span<const Place> curve, double foot, const HatchLook& look) {
    if (curve.size() < 2) return;
    Shape shape{{curve.begin(), curve.end()}, look.filling};
    shape.places.push_back({curve.back().x, foot});
    shape.places.push_back({curve.front().x, foot});
    fills.push_back(shape);
}

void RecordingCanvas::line(std::span<const Place> places, const LineLook& look) {
    lines.push_back({{places.begin(), places.end()}, look.colour});
}

void RecordingCanvas::text(Place place, const std::string& text, const TextLook& look) {
    const double width = textwidth(text, look);
    const double left = place.x - (look.anchor == Anchor::left ? 0 : look.anchor == Anchor::right ? width : width / 2);
    texts.push_back({text, {left, place.y, left + width, place.y + textheight(look)}, look});
}

std::vector<RecordingCanvas::Shape> RecordingCanvas::of(const std::vector<Shape>& shapes, Rgb colour) {
    std::vector<Shape> found;
    std::copy_if(shapes.begin(), shapes.end(), std::back_inserter(found),
                 [&](const Shape& each) { return each.colour == colour; });
    return found;
}

}  // namespace tarvane::fakes
