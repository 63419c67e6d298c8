#include "paint/colours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvane {
namespace {

constexpr Colours daylook{.paper = 0xFFFFFF,
                          .twilight = 0xEEF1F6,
                          .night = 0xDDE3EC,
                          .band = 0xF4F5F7,
                          .field = 0xFFFFFF,
                          .grid = 0xC3CAD4,
                          .text = 0x1B2430,
                          .faint = 0x4A5563,
                          .curve = 0x0B5CAD,
                          .passable = 0xBFE3C8,
                          .hatch = 0x2E7D46,
                          .needed = 0x1E5B33,
                          .seabed = 0xC9B38C,
                          .now = 0xAF1B1B,
                          .cursor = 0x5B2A86,
                          .sea = 0xDCEAF7,
                          .land = 0xF3EBD3,
                          .shore = 0x8A7B56};

constexpr Colours darklook{.paper = 0x20262E,
                           .twilight = 0x1A2027,
                           .night = 0x12171D,
                           .band = 0x2A323C,
                           .field = 0x161B21,
                           .grid = 0x46515F,
                           .text = 0xE8ECF1,
                           .faint = 0xB3BDC9,
                           .curve = 0x6CB6FF,
                           .passable = 0x1F4A2E,
                           .hatch = 0x5FC27E,
                           .needed = 0x8FE0A8,
                           .seabed = 0x6B5B3E,
                           .now = 0xFF9088,
                           .cursor = 0xD3A6FF,
                           .sea = 0x16202C,
                           .land = 0x353A35,
                           .shore = 0x7C7F6C};

// Red alone, which leaves the eye its sight in the dark.
constexpr Colours nightlook{.paper = 0x140000,
                            .twilight = 0x0E0000,
                            .night = 0x080000,
                            .band = 0x1C0000,
                            .field = 0x300000,
                            .grid = 0x4A0000,
                            .text = 0xFF6250,
                            .faint = 0xEE4434,
                            .curve = 0xFF5A48,
                            .passable = 0x330000,
                            .hatch = 0xA02018,
                            .needed = 0xFF6A58,
                            .seabed = 0x3C1008,
                            .now = 0xFF8070,
                            .cursor = 0xFF8C78,
                            .sea = 0x0C0000,
                            .land = 0x240300,
                            .shore = 0x6E120A};

double luminance(Rgb colour) {
    const std::array<double, 3> weights{0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        const double part = static_cast<double>(colour >> (16 - 8 * i) & 0xFF) / 255;
        sum += weights[i] * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

}  // namespace

const Colours& coloursof(Lighting light) {
    return light == Lighting::day ? daylook : light == Lighting::dark ? darklook : nightlook;
}

double contrast(Rgb first, Rgb second) {
    const double one = luminance(first), other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

}  // namespace tarvane
