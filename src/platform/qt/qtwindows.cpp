#include "platform/qt/qtwindows.h"

namespace tarvane {

void QtWindows::showmodal(ModalWindow& window) {
    window.runmodal();
}

}  // namespace tarvane
