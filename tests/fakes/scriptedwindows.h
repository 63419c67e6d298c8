// The door to modal windows, opened by script: each expected window stands in a queue with what the user does in it. An
// unforeseen window, or one that never comes, fails the test. Must not show anything itself.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "fakes/script.h"
#include "platform/windows.h"

namespace tarvane {

class ScriptedWindows : public Windows {
  public:
    /// What the user does in the window; without it the window is closed at once.
    void expect(std::string name, std::function<void(ModalWindow&)> act = {});

    void showmodal(ModalWindow& window) override;

  private:
    struct Expected {
        std::string name;
        std::function<void(ModalWindow&)> act;
    };

    Script<Expected> script{"a window"};
};

}  // namespace tarvane
