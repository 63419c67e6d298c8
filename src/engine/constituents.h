// The seven terms of a height, once: the four constituents, the two shallow-water terms and the mean level. Whatever
// shows, draws or lists them goes through this table, in the order in which they are drawn. Must not draw.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/height.h"
#include "engine/prediction.h"

namespace tarvane {

struct Constituent {
    const char* name;                                     ///< "M2"
    Layer Prediction::*layer;                             ///< its part of the height, row by row
    double HeightParts::*part;                            ///< the same of one height; null for the mean level
    std::uint32_t colour;                                 ///< of its curve, 0xBBGGRR
    bool points;                                          ///< drawn as single points, not as a line
    std::string (*constant)(const HarmonicRecord& port);  ///< " (g 257 : Hm 1.87)"
};

inline constexpr std::array<Constituent, 7> constituents{{
    {"M2", &Prediction::m2layer, &HeightParts::m2, 0xFF0000, false,
     [](const HarmonicRecord& port) { return constituenttext(port.M2g, port.M2Hm); }},
    {"S2", &Prediction::s2layer, &HeightParts::s2, 0x0000FF, false,
     [](const HarmonicRecord& port) { return constituenttext(port.S2g, port.S2Hm); }},
    {"K1", &Prediction::k1layer, &HeightParts::k1, 0x000000, true,
     [](const HarmonicRecord& port) { return constituenttext(port.K1g, port.K1Hm); }},
    {"O1", &Prediction::o1layer, &HeightParts::o1, 0x00FFFF, false,
     [](const HarmonicRecord& port) { return constituenttext(port.O1g, port.O1Hm); }},
    {"f4", &Prediction::f4layer, &HeightParts::f4, 0x00FF00, false,
     [](const HarmonicRecord& port) { return f4text(port.SF4, port.LF4); }},
    {"f6", &Prediction::f6layer, &HeightParts::f6, 0xFF00FF, false,
     [](const HarmonicRecord& port) { return f6text(port.SF6, port.LF6); }},
    {"Z0", &Prediction::sumlayer, nullptr, 0x0000FF, true, [](const HarmonicRecord& port) { return z0text(port.Z0); }},
}};

/// The place of the mean level in the table.
inline constexpr std::size_t meanlevelplace = 6;

}  // namespace tarvane
