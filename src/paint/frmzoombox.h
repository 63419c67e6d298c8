// A picture on a window that is zoomed by wheel, pinch and keys. What stands still is painted once and kept. Must not
// know what is painted.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "paint/colours.h"
#include "platform/canvas.h"
#include "platform/qt/textwidths.h"

namespace tarvane {

class ZoomBox : public QWidget {
  public:
    void setlook(const Colours& wanted);

    /// What is painted has changed.
    virtual void redraw();

  protected:
    /// `step` is how much nearer one click of the wheel or one key goes.
    ZoomBox(const char* name, const char* accessiblename, double step, QWidget* parent);

    /// Paints all that stands still, in the box's logical pixels, over all of the box: what stood there may be there
    /// still.
    virtual void paintstill(Canvas& canvas) = 0;

    /// Shows so many times as little, about a place that stays where it is.
    virtual void zoomabout(double factor, QPointF about) = 0;

    /// By so many eighths of a degree that a wheel is turned up.
    void zoomturned(int turned, QPointF about);

    /// Paints what is kept, made anew where it has to be; goes first at painting.
    void showstill(QPainter& painter);

    bool event(QEvent* event) override;

    static constexpr double wheelclick = 120;  ///< eighths of a degree

    const double zoomstep;
    const Colours* look;

  private:
    MeasuredTexts measured;
    QPixmap painted;
    bool stale = true;  ///< what is painted has changed: to be painted over
};

}  // namespace tarvane
