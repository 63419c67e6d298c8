// The streams of one high water as arrows on a compass rose, laid out for a picture of some size, and drawn. Must not
// know a widget: places are in the picture's own pixels, y downwards.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "diamonds/daystreams.h"
#include "platform/drawsurface.h"

namespace tarvane {

struct RosePicture {
    double width = 0, height = 0;
    double textheight = 0;
    double textwidth = 0;  ///< of one character, the widest that is written
};

struct RosePoint {
    double x = 0, y = 0;
};

struct RoseLabel {
    std::string text;
    double left = 0, top = 0, right = 0, bottom = 0;
    RosePoint middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

struct RoseArrow {
    int hour = 0;
    RosePoint tip;
    RoseLabel label;
};

struct Rose {
    RosePicture picture;
    RosePoint centre;
    double radius = 0;               ///< of the outer ring
    double ringrate = 1;             ///< the rate that reaches it
    std::vector<RoseArrow> arrows;   ///< of the hours whose stream is told in numbers
    std::vector<RoseLabel> letters;  ///< of the compass and of the two rings
};

/// Places rings, arrows and labels so that no label lies on another.
Rose layrose(const TideStreams& tide, const RosePicture& picture);

/// Draws the rose on the persistent layer, which is emptied.
void drawrose(DrawSurface& surface, const Rose& rose);

/// Marks one hour's arrow over it, on the passing layer; with none only takes the mark of before away.
void drawstrong(DrawSurface& surface, const Rose& rose, std::optional<int> hour);

/// The hour of the arrow or the label at a place; nothing off them.
std::optional<int> hourat(const Rose& rose, RosePoint place);

}  // namespace tarvane
