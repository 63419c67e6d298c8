// How the manual looks: the measures of its page, its fonts and colours. Must not hold any text.
#pragma once

#include <QColor>
#include <QFont>

namespace tarvane::manual {

inline constexpr int dotsperinch = 1200;
inline constexpr double pagewidth = 210, pageheight = 297;                   // mm: A4
inline constexpr double leftmargin = 22, rightmargin = 22;                   // mm
inline constexpr double topmargin = 24, bottommargin = 23;                   // mm
inline constexpr double textwidth = pagewidth - leftmargin - rightmargin;    // mm
inline constexpr double textheight = pageheight - topmargin - bottommargin;  // mm
inline constexpr double inset = 20;                                          // mm that headings hang out to the left
inline constexpr double columnwidth = textwidth - inset;                     // mm: text, tables and figures
inline constexpr double bodysize = 10.5;                                     // points

inline constexpr QRgb ink = 0xFF1A1A1A, deepblue = 0xFF1F5F9E, grey = 0xFF6A7480, hairline = 0xFFB8C0C8;

/// Dots of the device.
constexpr double dots(double mm) {
    return mm / 25.4 * dotsperinch;
}

/// The pixels that text formats count in.
constexpr double pixels(double mm) {
    return mm / 25.4 * 96;
}

constexpr double points(double mm) {
    return mm / 25.4 * 72;
}

inline QFont fontof(const char* family, double size, bool bold = false) {
    QFont font;
    font.setFamilies({QString::fromLatin1(family)});
    font.setPointSizeF(size);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

inline constexpr const char* textfamily = "Liberation Serif";
inline constexpr const char* headfamily = "Liberation Sans";
inline constexpr const char* codefamily = "Liberation Mono";

}  // namespace tarvane::manual
