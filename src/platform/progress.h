// A long calculation in steps, while the user sees how far it is and can cancel it. Must not know what is calculated.
#pragma once

#include <functional>
#include <string>

namespace tarvane {

class Progress {
  public:
    virtual ~Progress() = default;

    /// Runs `step` for 0 to `steps` - 1 under a text, a bar and a Cancel button; the other windows stay painted and
    /// take nothing. False when the user cancelled, the rest then not being run, or when a step returned false.
    virtual bool run(const std::string& text, int steps, const std::function<bool(int)>& step) = 0;
};

}  // namespace tarvane
