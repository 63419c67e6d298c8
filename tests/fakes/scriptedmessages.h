// Message boxes that a test foresees: each expected box stands in a queue with its answer; a box that comes unforeseen,
// or that never comes, fails the test. Must not show anything.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/messages.h"

namespace tarvane {

class ScriptedMessages : public Messages {
  public:
    struct Shown {
        std::string text;
        std::string title;
        MessageIcon icon = MessageIcon::none;
        bool question = false;
    };

    std::vector<Shown> shown;  ///< every box that came, in order
    int beeps = 0;

    ScriptedMessages() = default;
    ScriptedMessages(const ScriptedMessages&) = delete;
    ScriptedMessages& operator=(const ScriptedMessages&) = delete;
    ~ScriptedMessages() override {
        for (const Expected& left : queue)
            ADD_FAILURE() << "a message never came: " << left.text;
    }

    /// The whole text is compared; title and icon only where given.
    void expectshow(std::string text, std::optional<std::string> title = {}, std::optional<MessageIcon> icon = {}) {
        queue.push_back({false, std::move(text), std::move(title), icon, false});
    }
    void expectask(std::string text, bool answer, std::optional<std::string> title = {},
                   std::optional<MessageIcon> icon = {}) {
        queue.push_back({true, std::move(text), std::move(title), icon, answer});
    }

    void show(const std::string& text, const std::string& title, MessageIcon icon) override {
        take({text, title, icon, false});
    }
    bool ask(const std::string& text, const std::string& title, MessageIcon icon) override {
        return take({text, title, icon, true});
    }
    void beep() override { ++beeps; }

  private:
    struct Expected {
        bool question = false;
        std::string text;
        std::optional<std::string> title;
        std::optional<MessageIcon> icon;
        bool answer = false;
    };

    bool take(Shown box) {
        shown.push_back(box);
        if (queue.empty()) {
            ADD_FAILURE() << "an unforeseen message: " << box.text;
            return false;
        }
        const Expected expected = queue.front();
        queue.pop_front();
        EXPECT_EQ(box.text, expected.text);
        EXPECT_EQ(box.question, expected.question) << box.text;
        EXPECT_EQ(box.title, expected.title.value_or(box.title)) << box.text;
        EXPECT_EQ(box.icon, expected.icon.value_or(box.icon)) << box.text;
        return expected.answer;
    }

    std::deque<Expected> queue;
};

}  // namespace tarvane
