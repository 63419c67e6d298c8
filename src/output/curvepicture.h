// A day's curve on a drawing surface: its series, its constituents, grid and sun lines, hours across and metres up. Any
// prediction can be drawn so. Must not predict, and keeps nothing.
#pragma once

#include <array>
#include <string>

#include "engine/constituents.h"
#include "engine/curvelimits.h"
#include "platform/drawsurface.h"
#include "sunmoon/suntimes.h"

namespace tarvane {

/// The constituents that are ticked, by their places in `constituents`.
using LayerChoice = std::array<bool, constituents.size()>;

/// Beyond this many metres a line a metre would only blacken a picture.
inline constexpr double mostgridlines = 500;

/// Starts the persistent picture anew with 24 hours across and the limits up; persistent drawing stays on.
void startpicture(DrawSurface& picture, const CurveLimits& limits);

/// A line from sample to sample, rows 1 to `count`.
void drawseries(DrawSurface& picture, const std::array<TimedValue, 501>& rows, int count, Colour colour);

/// A dot for each row from 1 to `count`.
void drawdots(DrawSurface& picture, const std::array<TimedValue, 501>& rows, int count, Colour colour);

/// How the lines of the constituents can differ beside their colours, for who can't tell these; K1 and the mean level
/// are points.
using LayerDashes = std::array<LineStyle, constituents.size()>;
inline constexpr LayerDashes solidlayers{};
inline constexpr LayerDashes dashedlayers{LineStyle::solid,      LineStyle::dashed,     LineStyle::dotted,
                                          LineStyle::dashdotted, LineStyle::longdashed, LineStyle::dotted,
                                          LineStyle::dotted};

/// The ticked constituents of a prediction in their colours.
void drawlayers(DrawSurface& picture, const Prediction& prediction, const LayerChoice& ticked,
                const LayerDashes& dashes = solidlayers);

/// A line every three hours and every metre, each metre named and the topmost with `topunit` behind it.
void drawgrid(DrawSurface& picture, const CurveLimits& limits, const std::string& topunit);

/// The dashed lines at sunrise and sunset, with their names.
void drawsunlines(DrawSurface& picture, const CurveLimits& limits, const SunHours& sun);

/// An upright line over the whole height at `hours`.
void drawmarker(DrawSurface& picture, const CurveLimits& limits, double hours, Colour colour);

/// Lines of text, LF between them, where the curve would be.
void drawnote(DrawSurface& picture, const CurveLimits& limits, const std::string& lines);

}  // namespace tarvane
