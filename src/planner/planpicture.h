// The picture of a plan: the curve over night and day, the heads of its days, its waters with their times, the windows
// of passage, the level needed. Laid out for a canvas of any size, and painted. Must not reckon tides.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "paint/colours.h"
#include "planner/plan.h"
#include "platform/canvas.h"
#include "platform/locale.h"

namespace tarvane {

/// What is to be seen, and where.
struct PlanPicture {
    const Plan& plan;
    const Locale& locale;
    const Colours& look;
    Area area;                              ///< of the canvas; all of it is painted
    Moment from, to;                        ///< of the part that is shown
    std::optional<Passage> passage = {};    ///< when the level needed and the bottom are shown
    const PlannedAccess* access = nullptr;  ///< windows that are shown
    double textsize = 12;                   ///< of most of its texts
    std::string title = {};                 ///< above it; empty for none
    std::string trust = {};                 ///< how good the port is, in a clause, beside a title where it has room
};

/// Which moment and height lie where.
struct PlanScale {
    Area plot;  ///< within the picture's area
    Moment from, to;
    double least = 0, greatest = 1;  ///< heights at the plot's foot and head
    std::string dayform;             ///< the longest form of the days' names that has room in all their heads

    /// Across, for what stands in the head of a whole day.
    double dayroom() const;

    /// Of the days: where their names have no room for weekdays, these have a row of their own.
    int headrows() const { return dayform == "d" ? 3 : 2; }

    double x(Moment moment) const;
    double y(double height) const;
    Moment moment(double x) const;  ///< to the second, also beyond the plot
};

/// Measures texts on the canvas, paints nothing.
PlanScale scaleof(const PlanPicture& picture, const Canvas& canvas);

/// Where words stand in a plot: upright lines are left out there.
using Worded = std::vector<Area>;

/// Returns where its words stand.
Worded paintplan(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale);

/// The line of now; nothing where it isn't within the part shown.
void paintnow(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const Worded& worded, Moment now);

/// The cursor, a line with a dot on the curve, and a bubble with the lines of `words`.
void paintcursor(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const Worded& worded, Moment at,
                 const std::vector<std::string>& words);

/// The curve of the part shown, a place a unit of width and at each water, in as many pieces as days without a
/// prediction part it.
using CurvePieces = std::vector<std::vector<Place>>;
CurvePieces curvepieces(const PlanPicture& picture, const PlanScale& scale);

/// What of a curve lies between two places across.
CurvePieces curvebetween(const CurvePieces& curve, double left, double right);

/// A moon of a phase, 0 new to 3 last quarter, as the north sees it.
void paintmoon(Canvas& canvas, Place middle, double radius, int phase, const Colours& look);

}  // namespace tarvane
