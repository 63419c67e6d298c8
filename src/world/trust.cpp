#include "world/trust.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace tarvane {
namespace {

/// Corners of an arc, from `from` to `to` in half turns, clockwise from the right.
std::vector<Place> arc(Place middle, double radius, double from, double to) {
    // No more than are seen: a map has hundreds of marks.
    const int corners = std::clamp(static_cast<int>(3 * radius), 12, 48);
    std::vector<Place> places;
    for (int i = 0; i <= corners; ++i) {
        const double turn = std::numbers::pi * (from + (to - from) * i / corners);
        places.push_back({middle.x + radius * std::cos(turn), middle.y + radius * std::sin(turn)});
    }
    return places;
}

}  // namespace

Trust trustof(const std::optional<PortAbout>& about, bool own) {
    if (own) return Trust::own;
    if (!about) return Trust::unknown;
    constexpr std::array trusts{Trust::close, Trust::fair, Trust::rough};
    return trusts.at(static_cast<std::size_t>(gradeof(*about)));
}

Trust trustof(const PortKnown& known) {
    return trustof(known.about, known.own.has_value());
}

const char* trustword(Trust trust) {
    constexpr std::array words{"close", "fair", "rough", "entered by you", "not known"};
    return words.at(static_cast<std::size_t>(trust));
}

void painttrust(Canvas& canvas, Place middle, double radius, Trust trust, const Colours& colours) {
    const double width = radius / 3, inner = radius - width / 2;
    if (trust == Trust::unknown) {
        const std::array dash{Place{middle.x - inner, middle.y}, Place{middle.x + inner, middle.y}};
        return canvas.line(dash, {colours.faint, width});
    }
    if (trust == Trust::own) {
        const std::array diamond{Place{middle.x, middle.y - radius}, Place{middle.x + radius, middle.y},
                                 Place{middle.x, middle.y + radius}, Place{middle.x - radius, middle.y}};
        return canvas.fill(diamond, colours.curve);
    }
    const std::vector<Place> rim = arc(middle, inner, 0, 2);
    canvas.fill(rim, trust == Trust::close ? colours.curve : colours.paper);
    if (trust == Trust::fair) canvas.fill(arc(middle, inner, 0.5, 1.5), colours.curve);
    canvas.line(rim, {colours.curve, width});
}

void paintring(Canvas& canvas, Place middle, double radius, const LineLook& look) {
    canvas.line(arc(middle, radius, 0, 2), look);
}

}  // namespace tarvane
