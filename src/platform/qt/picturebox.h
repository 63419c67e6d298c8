// A picture on a window: two layers, a scale, and the mouse told in units of the scale. Must not redraw what its owner
// drew: a resized picture is empty until the owner draws again.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/qt/layeredsurface.h"

namespace tarvane {

class PictureBox : public QWidget, public LayeredSurface {
  public:
    explicit PictureBox(QWidget* parent = nullptr);

    std::function<void(double x, double y)> onmousemove;  ///< also without a button
    std::function<void(double x, double y)> onmousedown;
    std::function<void()> onresized;  ///< the layers are new and empty: draw again

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

    QFont textfont() const override { return font(); }
    void touched(const QRect& pixels) override { update(pixels); }

  private:
    void renew();
};

}  // namespace tarvane
