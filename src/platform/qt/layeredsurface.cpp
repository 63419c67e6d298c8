#include "platform/qt/layeredsurface.h"

#include <cmath>

namespace tarvane {

void LayeredSurface::setscale(double left, double top, double right, double bottom) {
    scale = QRectF(left, top, right - left, bottom - top);
    ownscale = true;
}

void LayeredSurface::setpersistent(bool on) {
    persistent = on;
}

void LayeredSurface::clear() {
    if (persistent) {
        persistentlayer.fill(screencolour(backcolour));
        touched(QRect(QPoint(0, 0), surfacesize));
    }
    for (const Mark& mark : passinglayer)
        touched(mark.touched);
    passinglayer.clear();
}

void LayeredSurface::setbackcolour(Colour colour) {
    backcolour = colour;
}

void LayeredSurface::setlinewidth(int pixels) {
    linewidth = pixels;
}

void LayeredSurface::line(double x1, double y1, double x2, double y2, Colour colour) {
    put(linemark(surfacesize, pixel(x1, y1), pixel(x2, y2), colour, linewidth));
}

void LayeredSurface::box(double x1, double y1, double x2, double y2, Colour colour) {
    put(boxmark(surfacesize, pixel(x1, y1), pixel(x2, y2), colour));
}

void LayeredSurface::point(double x, double y, Colour colour) {
    put(pointmark(surfacesize, pixel(x, y), colour, linewidth));
}

void LayeredSurface::text(double x, double y, const std::string& text) {
    put(textmark(surfacesize, pixel(x, y), QString::fromStdString(text), textfont()));
}

void LayeredSurface::remake(QSize newsize, double pixelratio) {
    surfacesize = newsize.expandedTo({1, 1});
    const QSizeF device = QSizeF(surfacesize) * pixelratio;
    persistentlayer = QImage(int(std::ceil(device.width())), int(std::ceil(device.height())), QImage::Format_RGB32);
    persistentlayer.setDevicePixelRatio(pixelratio);
    persistentlayer.fill(screencolour(backcolour));
    passinglayer.clear();
    if (!ownscale) scale = QRectF(0, 0, surfacesize.width() * 15.0, surfacesize.height() * 15.0);
}

void LayeredSurface::paintlayers(QPainter& painter, const QRect& part) const {
    const double ratio = persistentlayer.devicePixelRatio();
    painter.drawImage(QRectF(part), persistentlayer,
                      QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio));
    const QFont font = textfont();
    for (const Mark& mark : passinglayer)
        if (mark.touched.intersects(part)) paintmark(painter, mark, font);
}

QPointF LayeredSurface::scaled(QPointF pixel) const {
    return {scale.x() + pixel.x() / surfacesize.width() * scale.width(),
            scale.y() + pixel.y() / surfacesize.height() * scale.height()};
}

QPointF LayeredSurface::pixel(double x, double y) const {
    return {(x - scale.x()) / scale.width() * surfacesize.width(),
            (y - scale.y()) / scale.height() * surfacesize.height()};
}

void LayeredSurface::put(const std::optional<Mark>& mark) {
    if (!mark) return;
    if (persistent) {
        QPainter painter(&persistentlayer);
        paintmark(painter, *mark, textfont());
    } else {
        passinglayer.push_back(*mark);
    }
    touched(mark->touched);
}

}  // namespace tarvane
