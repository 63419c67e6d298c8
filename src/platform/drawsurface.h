// A drawing surface with a scale of the caller's choosing and two layers: a persistent one, and a passing one over it
// that the next clearing takes away. Screens, pictures and a test's log stand behind the same calls.
#pragma once

#include <cstdint>
#include <string>

namespace tarvane {

/// A 24-bit colour written 0xBBGGRR.
using Colour = std::uint32_t;

inline constexpr Colour black = 0x000000;
inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour red = 0x0000FF;
inline constexpr Colour blue = 0xFF0000;
inline constexpr Colour green = 0x00FF00;
inline constexpr Colour yellow = 0x00FFFF;
inline constexpr Colour magenta = 0xFF00FF;
inline constexpr Colour grey = 0x808080;

enum class LineStyle { solid, dashed, dotted, longdashed, dashdotted };

class DrawSurface {
  public:
    virtual ~DrawSurface() = default;

    /// Coordinates of the left, top, right and bottom edges; kept until set again.
    virtual void setscale(double left, double top, double right, double bottom) = 0;

    /// While on, drawing goes to the persistent layer; while off, to the passing one.
    virtual void setpersistent(bool on) = 0;

    /// With persistent drawing on, empties both layers to the back colour; off, only the passing layer.
    virtual void clear() = 0;

    virtual void setbackcolour(Colour colour) = 0;
    virtual void setlinewidth(int pixels) = 0;

    /// How lines are drawn until it is set again; solid at first.
    virtual void setlinestyle(LineStyle style) = 0;
    virtual void line(double x1, double y1, double x2, double y2, Colour colour) = 0;
    virtual void box(double x1, double y1, double x2, double y2, Colour colour) = 0;
    virtual void point(double x, double y, Colour colour) = 0;

    /// Text with its left at x and its top at y.
    virtual void text(double x, double y, const std::string& text) = 0;
};

}  // namespace tarvane
