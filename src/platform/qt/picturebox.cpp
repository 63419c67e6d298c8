#include "platform/qt/picturebox.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QTimer>

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
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        paintlayers(painter, part);
    }
    // The window has gone to a screen of another density: the layer still fits in place, but not in sharpness.
    if (pictureratio() != devicePixelRatioF()) QTimer::singleShot(0, this, [this] { renew(); });
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
