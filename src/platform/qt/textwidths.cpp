#include "platform/qt/textwidths.h"

#include <QFontMetricsF>

namespace tarvane {
namespace {

constexpr std::size_t mosttexts = 20000;

}  // namespace

TextWidths& MeasuredTexts::in(const QFont& font) {
    TextWidths& widths = byfont_[font.key()];
    if (widths.size() > mosttexts) widths.clear();
    return widths;
}

double textwidthof(const std::string& text, const QFont& font, TextWidths& widths) {
    const auto known = widths.find(text);
    if (known != widths.end()) return known->second;
    return widths[text] = QFontMetricsF(font).horizontalAdvance(QString::fromStdString(text));
}

}  // namespace tarvane
