#include "platform/qt/imagesurface.h"

#include <cmath>

namespace tarvane {

ImageSurface::ImageSurface(QSize size, double pixelratio) {
    remake(size, pixelratio);
}

QImage ImageSurface::image() const {
    const QSizeF device = QSizeF(picturesize()) * pictureratio();
    QImage both(int(std::ceil(device.width())), int(std::ceil(device.height())), QImage::Format_RGB32);
    both.setDevicePixelRatio(pictureratio());
    QPainter painter(&both);
    paintlayers(painter, QRect(QPoint(0, 0), picturesize()));
    return both;
}

}  // namespace tarvane
