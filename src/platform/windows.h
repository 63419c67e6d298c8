// The one door through which modal windows open, and the manual beside them.
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

    /// Opens the manual at the chapter of the window of this name, in a window of its own, and comes back at once.
    virtual void showmanual(const std::string& windowname) = 0;
};

}  // namespace tarvane
