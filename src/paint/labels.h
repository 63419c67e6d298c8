// Labels of a picture, of which none may lie on another: the more important take their places first, and
// one that finds none is left out. Must not know what they tell.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace tarvane {

/// Lines of text, one under the other, each middled.
struct Label {
    std::vector<std::string> lines;
    TextLook look;
    Place middle;                    ///< of its upper edge
    double importance = 0;           ///< the greater first
    std::optional<Rgb> behind = {};  ///< fills its place
};

/// What a label covers.
Area areaof(const Canvas& canvas, const Label& label);

class LabelPlaces {
  public:
    LabelPlaces(const Canvas& canvas, const Area& within) : canvas_(&canvas), within_(within) {}

    /// Keeps the first of several areas free that has room; nothing where none has.
    std::optional<Area> takefirst(const std::vector<Area>& choices);

    /// Keeps the very area free, whatever was taken there.
    void take(const Area& area) { taken_.push_back(area); }

    /// The first of several labels that has room, which it takes as it stands.
    std::optional<Label> placefirst(const std::vector<Label>& choices);

    /// Those of the labels that have room, each moved sideways where only that keeps it inside.
    std::vector<Label> place(std::vector<Label> labels);

  private:
    bool isfree(const Area& area) const;

    const Canvas* canvas_;
    Area within_;
    std::vector<Area> taken_;
};

void paintlabel(Canvas& canvas, const Label& label);

}  // namespace tarvane
