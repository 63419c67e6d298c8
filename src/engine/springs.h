// A day's place between springs and neaps, measured on its own curve: hours from the S2 maximum to the next M2 maximum.
#pragma once

#include <optional>
#include <string>

#include "engine/prediction.h"

namespace tarvane {

/// Hours, in steps of 1/6, from the day's S2 maximum to the next M2 maximum; nothing when no such pair is found (the
/// lag in force then stands).
std::optional<double> findspringslag(const Prediction& prediction);

/// Mean ranges of a port, metres: twice the sum and the difference of M2 and S2. At neaps it is negative where S2 is
/// the greater.
double meanspringrange(const HarmonicRecord& port);
double meanneaprange(const HarmonicRecord& port);

/// The status in words; empty outside 0 to 14.
std::string springstext(double springslag);

}  // namespace tarvane
