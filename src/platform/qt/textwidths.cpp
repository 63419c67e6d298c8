#include "platform/qt/textwidths.h"

#include <QFontMetricsF>
#include <QString>
#include <map>

namespace tarvane {
namespace {

constexpr std::size_t mosttexts = 20000;

}  // namespace

TextWidths& textwidthsof(const QFont& font) {
    thread_local std::map<QString, TextWidths> known;
    TextWidths& widths = known[font.key()];
    if (widths.size() > mosttexts) widths.clear();
    return widths;
}

double textwidthof(const std::string& text, const QFont& font, TextWidths& widths) {
    const auto known = widths.find(text);
    if (known != widths.end()) return known->second;
    return widths[text] = QFontMetricsF(font).horizontalAdvance(QString::fromStdString(text));
}

}  // namespace tarvane
