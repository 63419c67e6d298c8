// A canvas that notes where its texts stand, in a font whose letters are all of one width. Must not draw.
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
    std::vector<Text> texts;

    double textwidth(const std::string& text, const TextLook& look) const override;
    double textheight(const TextLook& look) const override { return 1.17 * look.size; }
    void fill(const Area&, Rgb) override {}
    void fill(std::span<const Place>, Rgb, double) override {}
    void line(std::span<const Place>, const LineLook&) override {}
    void text(Place place, const std::string& text, const TextLook& look) override;
};

}  // namespace tarvane::fakes
