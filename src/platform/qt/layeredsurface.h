// The two layers behind every picture: a persistent image and the passing marks painted over it. Must not know a
// widget.
#pragma once

#include <QFont>
#include <QImage>
#include <QRegion>
#include <vector>

#include "platform/drawsurface.h"
#include "platform/qt/marks.h"

namespace tarvane {

class LayeredSurface : public DrawSurface {
  public:
    /// Until a scale is set, coordinates are twips from the top left.
    void setscale(double left, double top, double right, double bottom) override;
    void setpersistent(bool on) override;
    void clear() override;
    void setbackcolour(Colour colour) override;
    void setlinewidth(int pixels) override;
    void setlinestyle(LineStyle style) override;
    void line(double x1, double y1, double x2, double y2, Colour colour) override;
    void box(double x1, double y1, double x2, double y2, Colour colour) override;

    /// A dot two pixels wide, or as wide as the lines when these are wider.
    void point(double x, double y, Colour colour) override;
    void text(double x, double y, const std::string& text) override;

  protected:
    /// Makes the persistent layer anew, empty, and empties the passing one. The size is in logical pixels; the layer
    /// has the whole device pixels among them.
    void remake(QSize size, double pixelratio);

    /// Paints what a part of the picture, in logical pixels, shows. The painter's unit is the layer's own pixel.
    void paintlayers(QPainter& painter, const QRegion& region);

    QSize picturesize() const { return surfacesize; }
    const PixelGrid& pixelgrid() const { return grid; }
    QColor background() const { return screencolour(backcolour); }

    /// A place in logical pixels in the units of the scale.
    QPointF scaled(QPointF pixel) const;

    virtual QFont textfont() const = 0;

    /// Called when these logical pixels show something else than before.
    virtual void touched(const QRect&) {}

  private:
    QPointF pixel(double x, double y) const;
    QRect devicepixels(const QRect& logical) const;
    void touch(const QRect& pixels);
    void put(std::optional<Mark> mark);

    QImage persistentlayer;
    std::vector<Mark> unpainted;  ///< drawn on the persistent layer since it was last looked at
    std::vector<Mark> passinglayer;
    QSize surfacesize;  ///< logical pixels
    PixelGrid grid;
    QRectF scale;  ///< left, top, and signed width and height
    bool ownscale = false;
    bool persistent = false;
    Colour backcolour = white;
    LinePen pen;
};

}  // namespace tarvane
