#include "platform/qt/modaldialog.h"

#include <QGuiApplication>
#include <QScreen>

namespace tarvane {

void centreon(QWidget& window, const QWidget* over) {
    const QScreen* screen = over ? over->screen() : QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect room = screen->availableGeometry();
    QRect place = window.frameGeometry();
    place.moveCenter(over ? over->frameGeometry().center() : room.center());
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    window.move(place.topLeft());
}

}  // namespace tarvane
