// Harbour towns that sailors look for and that have no port of their name here. Must not know ports.
#pragma once

#include <span>
#include <string_view>

#include "world/greatcircle.h"

namespace tarvane {

struct NamedPlace {
    const char* name;
    EarthPlace at;
};

/// All there are.
std::span<const NamedPlace> namedplaces();

/// The one that a text is the name of, whatever its case and accents; null for any other.
const NamedPlace* namedplace(std::string_view text);

}  // namespace tarvane
