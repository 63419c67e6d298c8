// The real door: a modal window is shown and waited for, the manual's is its owner's to open.
#pragma once

#include <functional>

#include "platform/windows.h"

namespace tarvane {

class QtWindows : public Windows {
  public:
    void showmodal(ModalWindow& window) override;
    void showmanual(const std::string& windowname) override;

    std::function<void(const std::string& windowname)> onmanual;
};

}  // namespace tarvane
