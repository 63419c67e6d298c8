// How wide texts are on one kind of device, measured once: measuring is the dearest part of setting labels. Must not
// paint.
#pragma once

#include <QString>
#include <map>
#include <string>
#include <unordered_map>

QT_BEGIN_NAMESPACE
class QFont;
QT_END_NAMESPACE

namespace tarvane {

/// Of texts in one font, logical pixels.
using TextWidths = std::unordered_map<std::string, double>;

class MeasuredTexts {
  public:
    /// What was measured in a font; the reference stays.
    TextWidths& in(const QFont& font);

  private:
    std::map<QString, TextWidths> byfont_;
};

/// In the font whose widths are given.
double textwidthof(const std::string& text, const QFont& font, TextWidths& widths);

}  // namespace tarvane
