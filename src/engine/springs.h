// A day's place between springs and neaps, measured on its own curve: hours from the S2 maximum to the next M2 maximum.
#pragma once

#include <optional>
#include <string>

#include "engine/prediction.h"

namespace tarvane {

/// Hours, in steps of 1/6, from the day's S2 maximum to the next M2 maximum; nothing when no such pair is found (the
/// lag in force then stands).
std::optional<double> findspringslag(const Prediction& prediction);

/// The status in words; empty outside 0 to 14.
std::string springstext(double springslag);

}  // namespace tarvane
