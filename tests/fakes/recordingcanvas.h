// A canvas that notes where its texts and its shapes stand, in a font whose letters are all of one width. Must not
// draw.
#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"

namespace tarvane::fakes {

class RecordingCanvas : public Canvas {
  public:
    struct Text {
        std::string text;
        Area area;
        TextLook look;
    };
    struct Shape {
        std::vector<Place> places;
        Rgb colour;
    };
    std::vector<Text> texts;
    std::vector<Shape> fills, lines;

    double textwidth(const std::string& text, const TextLook& look) const override;
    double textheight(const TextLook& look) const override { return 1.17 * look.size; }
    void fill(const Area& area, Rgb colour, double) override;
    void fill(std::span<const Place> corners, Rgb colour, double) override;
    void fillhatched(std::span<const Place> curve, double foot, const HatchLook& look) override;
    void line(std::span<const Place> places, const LineLook& look) override;
    void text(Place place, const std::string& text, const TextLook& look) override;

    /// Of the fills or lines those of a colour.
    static std::vector<Shape> of(const std::vector<Shape>& shapes, Rgb colour);
};

}  // namespace tarvane::fakes
