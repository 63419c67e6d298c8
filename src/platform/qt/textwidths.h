// How wide texts are, measured once: measuring is the dearest part of setting labels.
#pragma once

#include <string>
#include <unordered_map>

QT_BEGIN_NAMESPACE
class QFont;
QT_END_NAMESPACE

namespace tarvane {

/// Of a text in a font, logical pixels.
using TextWidths = std::unordered_map<std::string, double>;

/// What this thread has measured in a font, to be kept by reference for as long as one thing is painted.
TextWidths& textwidthsof(const QFont& font);

/// In the font whose widths are given.
double textwidthof(const std::string& text, const QFont& font, TextWidths& widths);

}  // namespace tarvane
