// Twips to pixels: sizes and places of windows and controls are told in twips. Nothing else converts them.
#pragma once

namespace tarvane {

/// Logical pixels of a length in twips: 15 to a pixel at 96 dpi, rounded to the nearest, halves away from zero.
constexpr int twips(int length) {
    return (length + (length < 0 ? -7 : 7)) / 15;
}

}  // namespace tarvane
