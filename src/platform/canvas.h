// A picture or a page painted with smooth lines, filled shapes and texts of any size: a window, an image, a drawing in
// a file and paper stand behind the same calls. Must not know what is painted.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/drawsurface.h"

namespace tarvane {

/// 0xRRGGBB.
using Rgb = std::uint32_t;

/// On a canvas, in 1/96 inch (a pixel of a screen that isn't scaled) from its top left, y downwards.
struct Place {
    double x = 0, y = 0;
};

struct Area {
    double left = 0, top = 0, right = 0, bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    bool holds(Place place) const { return place.x >= left && place.x <= right && place.y >= top && place.y <= bottom; }
};

inline bool overlap(const Area& one, const Area& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

struct LineLook {
    Rgb colour = 0;
    double width = 1;
    LineStyle style = LineStyle::solid;
};

/// What fills a shape, and lines rising to the right that mark it where colours can't be told apart.
struct HatchLook {
    Rgb filling = 0, lines = 0;
    double width = 1;  ///< of a line
    double step = 7;   ///< from line to line along the level; on a screen the nearest that is whole pixels

    bool operator==(const HatchLook&) const = default;
};

/// Which part of a text stands at its place.
enum class Anchor { left, middle, right };

struct TextLook {
    Rgb colour = 0;
    double size = 12;  ///< of the font, whole units
    bool bold = false;
    Anchor anchor = Anchor::left;
};

class Canvas {
  public:
    virtual ~Canvas() = default;

    /// Of one line, as the look has it.
    virtual double textwidth(const std::string& text, const TextLook& look) const = 0;
    virtual double textheight(const TextLook& look) const = 0;

    /// `opacity` from 0 to 1.
    virtual void fill(const Area& area, Rgb colour, double opacity = 1) = 0;

    /// A shape by its corners.
    virtual void fill(std::span<const Place> corners, Rgb colour, double opacity = 1) = 0;

    /// The same of a shape whose edge a line will cover: it needn't be smooth.
    virtual void fillrough(std::span<const Place> corners, Rgb colour) { fill(corners, colour, 1); }

    /// What lies between a curve, its places from left to right, and the level `foot`. A line will cover the curve.
    virtual void fillhatched(std::span<const Place> curve, double foot, const HatchLook& look) = 0;

    virtual void line(std::span<const Place> places, const LineLook& look) = 0;

    /// One line of text, the top of its line at the place.
    virtual void text(Place place, const std::string& text, const TextLook& look) = 0;
};

}  // namespace tarvane
