#include "platform/qt/imagesurface.h"

namespace tarvane {

ImageSurface::ImageSurface(QSize size, double pixelratio) {
    remake(size, pixelratio);
}

QImage ImageSurface::image() {
    QImage both(pixelgrid().size, QImage::Format_RGB32);
    QPainter painter(&both);
    paintlayers(painter, QRect(QPoint(0, 0), picturesize()));
    painter.end();
    both.setDevicePixelRatio(pixelgrid().ratio);
    return both;
}

}  // namespace tarvane
