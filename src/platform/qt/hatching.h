// How a painter's shapes are hatched: lines that rise to the right, the same through neighbouring shapes.
#pragma once

#include <QBrush>
#include <QLineF>
#include <QList>
#include <span>

#include "platform/canvas.h"

namespace tarvane {

/// A brush that fills and hatches at once, for images: `pixels` are a unit's.
QBrush hatchbrush(const HatchLook& look, double pixels);

/// The parts of the lines that lie between a curve of two places or more, from left to right, and the level `foot`.
QList<QLineF> hatchlines(std::span<const Place> curve, double foot, double step);

}  // namespace tarvane
