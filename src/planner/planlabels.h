// The words in the plot of a plan's picture, none on another: its waters' times and heights, the levels that a passage
// asks for, when its windows open and close. Must not paint anything else but the levels' lines.
#pragma once

#include <algorithm>

#include "paint/labels.h"
#include "planner/planpicture.h"

namespace tarvane {

/// The words in the plot, each in its place.
struct PlanLabels {
    struct LevelName {
        Area area;
        std::string name;
    };
    std::vector<Label> labels;  ///< of waters and windows
    std::vector<LevelName> names;
};

/// What gives way to what: windows' times to waters, the lesser water to the greater; levels' names are always told.
/// `curve` is that of the part shown.
PlanLabels planlabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                      const CurvePieces& curve);

/// What they cover.
std::vector<Area> areasof(const Canvas& canvas, const PlanLabels& labels);

/// With the levels' lines behind them.
void paintplanlabels(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const PlanLabels& labels);

/// What the parts of a picture have in common.
namespace pictureparts {

inline constexpr double inset = 4;

inline double strokeof(const PlanPicture& picture) {
    return picture.textsize / 12;
}

inline TextLook textlook(const PlanPicture& picture, Rgb colour, Anchor anchor = Anchor::left, bool bold = false) {
    return {colour, picture.textsize, bold, anchor};
}

/// The height of the level needed in the picture, or of its foot where that lies above it.
inline double floorof(const PlanPicture& picture, const PlanScale& scale) {
    return std::min(scale.y(picture.passage->needed()), scale.plot.bottom);
}

}  // namespace pictureparts

}  // namespace tarvane
