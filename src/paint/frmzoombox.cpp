#include "paint/frmzoombox.h"

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPinchGesture>
#include <cmath>

#include "platform/qt/paintercanvas.h"

namespace tarvane {

ZoomBox::ZoomBox(const char* name, const char* accessiblename, double step, QWidget* parent)
    : QWidget(parent), zoomstep(step), look(&coloursof(Lighting::day)) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessiblename);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    grabGesture(Qt::PinchGesture);
}

void ZoomBox::setlook(const Colours& wanted) {
    look = &wanted;
    painted = {};
    redraw();
}

void ZoomBox::redraw() {
    stale = true;
    update();
}

void ZoomBox::zoomturned(int turned, QPointF about) {
    if (turned != 0) zoomabout(std::pow(zoomstep, turned / wheelclick), about);
}

void ZoomBox::showstill(QPainter& painter) {
    const double ratio = devicePixelRatioF();
    if (painted.size() != size() * ratio || painted.devicePixelRatio() != ratio) {
        painted = QPixmap(size() * ratio);
        painted.setDevicePixelRatio(ratio);
        painted.fill(QColor::fromRgb(look->paper));
        stale = true;
    }
    if (stale) {
        QPainter stillpainter(&painted);
        PainterCanvas canvas(stillpainter, font(), 1, &measured);
        paintstill(canvas);
        stale = false;
    }
    painter.drawPixmap(0, 0, painted);
}

bool ZoomBox::event(QEvent* event) {
    if (event->type() == QEvent::Gesture) {
        const auto* pinch = static_cast<QPinchGesture*>(static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture));
        if (pinch && pinch->scaleFactor() > 0) zoomabout(pinch->scaleFactor(), mapFromGlobal(pinch->hotSpot()));
        return true;
    }
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) zoomabout(1 + gesture->value(), gesture->position());
        return true;
    }
    if (event->type() == QEvent::FontChange) redraw();
    return QWidget::event(event);
}

}  // namespace tarvane
