#include "world/frmtrusticon.h"

#include <QApplication>
#include <QPixmap>

#include "platform/qt/paintercanvas.h"

namespace tarvane {
namespace {

QPixmap trustpicture(Trust trust, const Colours& colours, int size, int ratio) {
    QPixmap picture(size * ratio, size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        PainterCanvas canvas(painter, QApplication::font());
        painttrust(canvas, {size / 2.0, size / 2.0}, size * 0.36, trust, colours);
    }
    return picture;
}

}  // namespace

QIcon trusticon(Trust trust, const Colours& colours, int size) {
    // On a chosen row, which has the curve's colour, it is drawn in the paper's.
    Colours chosen = colours;
    chosen.curve = chosen.faint = colours.paper;
    chosen.paper = colours.curve;
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        icon.addPixmap(trustpicture(trust, colours, size, ratio));
        icon.addPixmap(trustpicture(trust, chosen, size, ratio), QIcon::Selected);
    }
    return icon;
}

}  // namespace tarvane
