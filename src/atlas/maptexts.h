// What the map's window tells of a port. Must not know where it is shown.
#pragma once

#include <optional>
#include <string>

#include "world/trust.h"
#include "world/worldports.h"

namespace tarvane {

/// "Falmouth, United Kingdom, close, 12 nm E of Newlyn": the miles are along the great circle, and left out without
/// another port in hand. The places are those in `World::ports`.
std::string mapporttext(const World& world, std::size_t place, std::optional<std::size_t> inhand);

/// What a mark means, for a hint: "nine in ten of the high and low waters are within ..."
std::string trusthint(Trust trust);

}  // namespace tarvane
