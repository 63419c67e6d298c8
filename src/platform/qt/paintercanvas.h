// A canvas on the toolkit's painter, whatever that paints on.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/canvas.h"

namespace tarvane {

class PainterCanvas : public Canvas {
  public:
    /// The painter's own units become 1/96 inch when they are multiplied by `scale`; `font` gives the family.
    PainterCanvas(QPainter& painter, const QFont& font, double scale = 1);
    ~PainterCanvas() override;
    PainterCanvas(const PainterCanvas&) = delete;
    PainterCanvas& operator=(const PainterCanvas&) = delete;

    double textwidth(const std::string& text, const TextLook& look) const override;
    double textheight(const TextLook& look) const override;
    void fill(const Area& area, Rgb colour) override;
    void fill(std::span<const Place> corners, Rgb colour, double opacity) override;
    void fillrough(std::span<const Place> corners, Rgb colour) override;
    void line(std::span<const Place> places, const LineLook& look) override;
    void text(Place place, const std::string& text, const TextLook& look) override;

  private:
    struct Font {
        int size;
        bool bold;
        QFont font;
        QFontMetricsF metrics;
        mutable std::unordered_map<std::string, double> widths;  ///< measured so far: measuring is dear
    };
    bool levelline(std::span<const Place> places, const LineLook& look);
    const Font& fontof(const TextLook& look) const;

    QPainter& painter_;
    QFont font_;
    bool onscreen_ = false;            ///< and not on paper
    mutable std::vector<Font> fonts_;  ///< those that were asked for
};

}  // namespace tarvane
