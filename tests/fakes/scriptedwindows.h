// The door to modal windows, opened by script: each expected window stands in a queue with what the user does in it. An
// unforeseen window, or one that never comes, fails the test. Must not show anything itself.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/windows.h"

namespace tarvane {

class ScriptedWindows : public Windows {
  public:
    std::vector<std::string> opened;  ///< names of every window that came, in order

    ScriptedWindows() = default;
    ScriptedWindows(const ScriptedWindows&) = delete;
    ScriptedWindows& operator=(const ScriptedWindows&) = delete;
    ~ScriptedWindows() override {
        for (const Expected& left : queue)
            ADD_FAILURE() << "a window never came: " << left.name;
    }

    /// What the user does in the window; without it the window is closed at once.
    void expect(std::string name, std::function<void(ModalWindow&)> act = {}) {
        queue.push_back({std::move(name), std::move(act)});
    }

    /// The same for a window of a known class.
    template <class Window>
    void expect(std::string name, std::function<void(Window&)> act) {
        expect(std::move(name), [act = std::move(act)](ModalWindow& window) {
            if (auto* known = dynamic_cast<Window*>(&window))
                act(*known);
            else
                ADD_FAILURE() << window.windowname() << " is of another class";
        });
    }

    void showmodal(ModalWindow& window) override {
        opened.push_back(window.windowname());
        if (queue.empty()) {
            ADD_FAILURE() << "an unforeseen window: " << window.windowname();
            return;
        }
        const Expected expected = std::move(queue.front());
        queue.pop_front();
        EXPECT_EQ(window.windowname(), expected.name);
        if (window.windowname() == expected.name && expected.act) expected.act(window);
    }

  private:
    struct Expected {
        std::string name;
        std::function<void(ModalWindow&)> act;
    };

    std::deque<Expected> queue;
};

}  // namespace tarvane
