// Heights of many samples on end without most of their sines, near enough to tell most of the rises and falls, and how
// far the heights of a day spread. Must not be shown themselves.
#pragma once

#include <span>

#include "engine/height.h"

namespace tarvane {

/// True for constants whose heights are numbers, and no great ones: of no others `nearheights` keeps its word.
bool keepsnear(const HeightInputs& inputs);

/// The heights less their level, metres, at `times`, hours from 00:00 of the base day at even steps; `heights` has as
/// many. Returned: how far the difference of two may be out. Vectors are turned by products from sample to sample.
double nearheights(const HeightInputs& inputs, std::span<const double> times, std::span<double> heights);

}  // namespace tarvane
