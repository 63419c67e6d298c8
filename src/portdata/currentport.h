// The port that predictions are for: its record's name, place and zone.
#pragma once

#include <cstdint>
#include <string>

namespace tarvane {

struct CurrentPort {
    std::string portname;
    float portlat = 0;   ///< degrees, north positive
    float portlong = 0;  ///< degrees, east positive
    std::int16_t zonehours = 0;
};

}  // namespace tarvane
