// The bytes of the coast's file, as its reader tells of them. Must not read or write a file.
#pragma once

#include <string>

#include "coast/rings.h"

namespace tarvane::makecoast {

/// The land at each of these tolerances, millionths of the world's width, the finest first.
std::string coastbytes(const Land& land, const std::vector<int>& tolerances);

}  // namespace tarvane::makecoast
