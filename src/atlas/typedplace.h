// A latitude and a longitude as a person types them, and as they are told. Must not know ports.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "world/greatcircle.h"

namespace tarvane {

/// "50.1 N 1.4 W", "50 06.2 N, 1 24 W", "50° 6' 12\" N 1° 24' W", "N50.1 W1.4", "1.4 W 50.1 N", "50-06N 001-24W",
/// "lat 50.1 lon -1.4", or signed degrees, latitude first: "-33.85, 151.2", on one line or several. A comma between two
/// digits is a decimal point where the text has none. Nothing for another text or a place that there isn't.
std::optional<EarthPlace> readplace(std::string_view text);

/// "50° 06.0' N, 1° 24.0' W", to a tenth of a minute; longitudes within 180 degrees.
std::string placetext(EarthPlace place);

}  // namespace tarvane
