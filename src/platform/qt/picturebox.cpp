#include "platform/qt/picturebox.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QTimer>
#include <cmath>

namespace tarvane {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    remake(QWidget::size(), devicePixelRatioF());
}

void PictureBox::renew() {
    remake(QWidget::size(), devicePixelRatioF());
    update();
    if (onresized) onresized();
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QTransform device = painter.deviceTransform();
    const double ratio = pixelgrid().ratio;
    // At a broken density a pixel along the right and the lower edge can lie outside the layer.
    if (ratio != std::floor(ratio)) painter.fillRect(rect(), background());
    // On the device's own pixels, wherever among them the window system has put this corner.
    if (device.m11() == ratio)
        painter.setWorldTransform(QTransform::fromTranslate(std::round(device.dx()), std::round(device.dy())) *
                                  device.inverted());
    else
        painter.scale(1 / ratio, 1 / ratio);
    paintlayers(painter, event->region());
    // The window has gone to a screen of another density: the layer still fits in place, but not in sharpness.
    if (ratio != devicePixelRatioF()) QTimer::singleShot(0, this, [this] { renew(); });
}

void PictureBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    renew();
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = scaled(event->position());
    if (onmousemove) onmousemove(place.x(), place.y());
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    const QPointF place = scaled(event->position());
    if (onmousedown) onmousedown(place.x(), place.y());
}

}  // namespace tarvane
