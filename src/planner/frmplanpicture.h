// The planner's picture on a window: painted once and kept, the line of now and the cursor over it. Wheel and pinch
// zoom, dragging moves, keys walk. Must not change the plan, but for the part shown and the cursor.
#pragma once

#include <functional>
#include <optional>

#include "paint/frmzoombox.h"
#include "planner/planview.h"
#include "platform/services.h"

namespace tarvane {

class PlanPictureBox : public ZoomBox {
  public:
    PlanPictureBox(PlanView& view, const Services& services, QWidget* parent = nullptr);

    std::function<void()> oncursor;        ///< the cursor stands elsewhere or is gone
    std::function<void(Date date)> onday;  ///< a day was double clicked
    std::function<void()> onnow;           ///< Home was pressed while now isn't in the plan

    /// The plan, its answer or the part shown were changed.
    void redraw() override;

    /// The minute is another.
    void shownow() { update(); }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintstill(Canvas& canvas) override;
    void zoomabout(double factor, QPointF about) override;

  private:
    std::optional<PlanPicture> picture() const;
    void walk(std::chrono::minutes by);
    void walkwater(bool forwards);
    void gonow();
    void putat(std::optional<Moment> at);

    PlanView& view;
    const Services services;
    PlanScale scale;
    Worded worded;  ///< of what is painted
    std::optional<double> draggedfrom;
    bool bymouse = false;  ///< the cursor follows the mouse
};

}  // namespace tarvane
