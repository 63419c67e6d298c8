// The one door through which modal windows open.
#pragma once

#include <string>

namespace tarvane {

/// A window that can be shown modally over another.
class ModalWindow {
  public:
    virtual ~ModalWindow() = default;
    virtual std::string windowname() const = 0;  ///< "frmconfig"
    virtual void runmodal() = 0;                 ///< shows it and comes back when it is closed
};

class Windows {
  public:
    virtual ~Windows() = default;
    virtual void showmodal(ModalWindow& window) = 0;
};

}  // namespace tarvane
