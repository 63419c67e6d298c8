// What a test foresees: questions stand in a queue with their answers, and one that comes unforeseen, or never comes,
// fails the test.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>

namespace tarvane {

/// Fails the test that runs.
void failtest(const std::string& reason);

template <typename Expected>
class Script {
  public:
    explicit Script(std::string kind) : what(std::move(kind)) {}
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;
    ~Script() {
        for (const Expected& left : queue)
            failtest(what + " never came: " + left.name);
    }

    void expect(Expected expected) { queue.push_back(std::move(expected)); }

    /// The next one foreseen; nothing, and a failure, when none is left.
    std::optional<Expected> take(const std::string& came) {
        if (queue.empty()) {
            failtest("unforeseen: " + what + " " + came);
            return std::nullopt;
        }
        std::optional<Expected> next = std::move(queue.front());
        queue.pop_front();
        return next;
    }

  private:
    std::string what;
    std::deque<Expected> queue;
};

}  // namespace tarvane
