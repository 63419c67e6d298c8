// The real door: a modal window is shown and waited for.
#pragma once

#include "platform/windows.h"

namespace tarvane {

class QtWindows : public Windows {
  public:
    void showmodal(ModalWindow& window) override;
};

}  // namespace tarvane
