#include "platform/qt/layeredsurface.h"

#include <utility>

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
        unpainted.clear();
        persistentlayer.fill(background());
        touched(QRect(QPoint(0, 0), surfacesize));
    }
    for (const Mark& mark : passinglayer)
        touch(mark.touched);
    passinglayer.clear();
}

void LayeredSurface::setbackcolour(Colour colour) {
    backcolour = colour;
}

void LayeredSurface::setlinewidth(int pixels) {
    pen.width = pixels;
}

void LayeredSurface::setlinestyle(LineStyle style) {
    pen.style = style;
}

void LayeredSurface::line(double x1, double y1, double x2, double y2, Colour colour) {
    pen.colour = colour;
    put(linemark(grid, pixel(x1, y1), pixel(x2, y2), pen));
}

void LayeredSurface::box(double x1, double y1, double x2, double y2, Colour colour) {
    put(boxmark(grid, pixel(x1, y1), pixel(x2, y2), colour));
}

void LayeredSurface::point(double x, double y, Colour colour) {
    put(pointmark(grid, pixel(x, y), colour, pen.width));
}

void LayeredSurface::text(double x, double y, const std::string& text) {
    put(textmark(grid, pixel(x, y), QString::fromStdString(text), textfont()));
}

void LayeredSurface::remake(QSize newsize, double pixelratio) {
    surfacesize = newsize.expandedTo({1, 1});
    grid.ratio = pixelratio;
    grid.size =
        QSize(static_cast<int>(surfacesize.width() * pixelratio), static_cast<int>(surfacesize.height() * pixelratio))
            .expandedTo({1, 1});
    persistentlayer = QImage(grid.size, QImage::Format_RGB32);
    persistentlayer.fill(background());
    unpainted.clear();
    passinglayer.clear();
    if (!ownscale) scale = QRectF(0, 0, surfacesize.width() * 15.0, surfacesize.height() * 15.0);
}

void LayeredSurface::paintlayers(QPainter& painter, const QRegion& region) {
    const QFont font = textfont();
    if (!unpainted.empty()) {
        QPainter onlayer(&persistentlayer);
        for (const Mark& mark : unpainted)
            paintmark(onlayer, mark, font, grid.ratio);
        unpainted.clear();
    }
    for (const QRect& part : region) {
        const QRect pixels = devicepixels(part).intersected(persistentlayer.rect());
        painter.drawImage(pixels.topLeft(), persistentlayer, pixels);
    }
    const QRect around = devicepixels(region.boundingRect());
    for (const Mark& mark : passinglayer)
        if (mark.touched.intersects(around)) paintmark(painter, mark, font, grid.ratio);
}

QPointF LayeredSurface::scaled(QPointF pixel) const {
    return {scale.x() + pixel.x() / surfacesize.width() * scale.width(),
            scale.y() + pixel.y() / surfacesize.height() * scale.height()};
}

QPointF LayeredSurface::pixel(double x, double y) const {
    return {(x - scale.x()) / scale.width() * grid.size.width(), (y - scale.y()) / scale.height() * grid.size.height()};
}

/// The pixels of the layer that logical ones can show: at a broken density the layer may lie half a pixel off them.
QRect LayeredSurface::devicepixels(const QRect& logical) const {
    const QRectF pixels(QPointF(logical.topLeft()) * grid.ratio, QSizeF(logical.size()) * grid.ratio);
    return pixels.toAlignedRect().adjusted(-1, -1, 1, 1);
}

void LayeredSurface::touch(const QRect& pixels) {
    const QRectF logical(QPointF(pixels.topLeft()) / grid.ratio, QSizeF(pixels.size()) / grid.ratio);
    touched(logical.toAlignedRect().adjusted(-1, -1, 1, 1));
}

void LayeredSurface::put(std::optional<Mark> mark) {
    if (!mark) return;
    touch(mark->touched);
    std::vector<Mark>& layer = persistent ? unpainted : passinglayer;
    if (layer.empty() || !joinmark(layer.back(), *mark)) layer.push_back(std::move(*mark));
}

}  // namespace tarvane
