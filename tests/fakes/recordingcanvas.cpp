#include "fakes/recordingcanvas.h"

#include <algorithm>

namespace tarvane::fakes {

double RecordingCanvas::textwidth(const std::string& text, const TextLook& look) const {
    const auto letters = std::count_if(text.begin(), text.end(), [](char each) { return (each & 0xC0) != 0x80; });
    return static_cast<double>(letters) * look.size * (look.bold ? 0.66 : 0.6);
}

void RecordingCanvas::text(Place place, const std::string& text, const TextLook& look) {
    const double width = textwidth(text, look);
    const double left = place.x - (look.anchor == Anchor::left ? 0 : look.anchor == Anchor::right ? width : width / 2);
    texts.push_back({text, {left, place.y, left + width, place.y + textheight(look)}, look});
}

}  // namespace tarvane::fakes
