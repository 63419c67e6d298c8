#include "platform/qt/qtwindows.h"

namespace tarvane {

void QtWindows::showmodal(ModalWindow& window) {
    window.runmodal();
}

void QtWindows::showmanual(const std::string& windowname) {
    if (onmanual) onmanual(windowname);
}

}  // namespace tarvane
