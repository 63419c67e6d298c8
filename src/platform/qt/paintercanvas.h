// A canvas on the toolkit's painter, whatever that paints on.
#pragma once

#include <QBrush>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/qt/textwidths.h"

namespace tarvane {

class PainterCanvas : public Canvas {
  public:
    /// The painter's own units become 1/96 inch when they are multiplied by `scale`; `font` gives the family. What
    /// texts measure is kept in `measured`, where it is given.
    PainterCanvas(QPainter& painter, const QFont& font, double scale = 1, MeasuredTexts* measured = nullptr);
    ~PainterCanvas() override;
    PainterCanvas(const PainterCanvas&) = delete;
    PainterCanvas& operator=(const PainterCanvas&) = delete;

    double textwidth(const std::string& text, const TextLook& look) const override;
    double textheight(const TextLook& look) const override;
    void fill(const Area& area, Rgb colour, double opacity) override;
    void fill(std::span<const Place> corners, Rgb colour, double opacity) override;
    void fillrough(std::span<const Place> corners, Rgb colour) override;
    void fillhatched(std::span<const Place> curve, double foot, const HatchLook& look) override;
    void line(std::span<const Place> places, const LineLook& look) override;
    void text(Place place, const std::string& text, const TextLook& look) override;

  private:
    struct Font {
        int size;
        bool bold;
        QFont font;
        QFontMetricsF metrics;
        TextWidths& widths;
    };
    struct Hatch {
        HatchLook look;
        QBrush brush;
    };
    bool levelline(std::span<const Place> places, const LineLook& look);
    const Font& fontof(const TextLook& look) const;

    QPainter& painter_;
    QFont font_;
    MeasuredTexts own_;  ///< where no other are given
    MeasuredTexts& measured_;
    double pixels_ = 1;                ///< a unit's
    bool onscreen_ = false;            ///< pixels: a window or an image
    std::optional<Hatch> hatch_;       ///< the one that was last asked for
    mutable std::vector<Font> fonts_;  ///< those that were asked for
};

}  // namespace tarvane
