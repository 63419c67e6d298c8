// A diamond of round figures, with which rates can be worked by hand, in a file of its own.
#pragma once

#include <string>
#include <vector>

#include "diamonds/diamondfile.h"

namespace tarvane::tests {

/// Directions 010 to 250 in steps of 20; springs 1.6, neaps 0.8, but for high water: springs 3, neaps 1.
inline DiamondRecord rounddiamond(const std::string& letter = "A") {
    DiamondRecord diamond{50.75F, -1.5F, letter, {}};
    for (std::size_t i = 0; i < streamhours; ++i)
        diamond.streams[i] = {static_cast<float>(10 + 20 * i), 1.6F, 0.8F};
    diamond.streams[highwaterplace] = {130, 3, 1};
    return diamond;
}

inline void putdiamonds(const std::string& path, const std::vector<DiamondRecord>& diamonds) {
    std::vector<std::byte> bytes;
    for (const DiamondRecord& diamond : diamonds) {
        const DiamondBytes record = encode(diamond);
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    replacefile(path, bytes);
}

}  // namespace tarvane::tests
