#include "world/frmtrusticon.h"

#include <QApplication>
#include <QPixmap>

#include "platform/qt/paintercanvas.h"

namespace tarvane {

QIcon trusticon(Trust trust, const Colours& colours, int size) {
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        QPixmap picture(size * ratio, size * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        {
            QPainter painter(&picture);
            PainterCanvas canvas(painter, QApplication::font());
            painttrust(canvas, {size / 2.0, size / 2.0}, size * 0.36, trust, colours);
        }
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace tarvane
