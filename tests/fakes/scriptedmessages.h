// Message boxes that a test foresees: each expected box stands in a queue with its answer; a box that comes unforeseen,
// or that never comes, fails the test. Must not show anything.
#pragma once

#include "fakes/script.h"
#include "platform/messages.h"

namespace tarvane {

class ScriptedMessages : public Messages {
  public:
    using Title = std::optional<std::string>;
    using Icon = std::optional<MessageIcon>;

    int beeps = 0;

    /// The whole text is compared; title and icon only where given.
    void expectshow(std::string text, Title title = {}, Icon icon = {}) {
        script.expect({std::move(text), false, std::move(title), icon, false});
    }
    void expectask(std::string text, bool answer, Title title = {}, Icon icon = {}) {
        script.expect({std::move(text), true, std::move(title), icon, answer});
    }

    void show(const std::string& text, const std::string& title, MessageIcon icon) override {
        take(text, false, title, icon);
    }
    bool ask(const std::string& text, const std::string& title, MessageIcon icon) override {
        return take(text, true, title, icon);
    }
    void beep() override { ++beeps; }

  private:
    struct Expected {
        std::string name;
        bool question;
        Title title;
        Icon icon;
        bool answer;
    };

    bool take(const std::string& text, bool question, const std::string& title, MessageIcon icon) {
        const std::optional<Expected> expected = script.take(text);
        if (!expected) return false;
        EXPECT_EQ(text, expected->name);
        EXPECT_EQ(question, expected->question) << text;
        EXPECT_EQ(title, expected->title.value_or(title)) << text;
        EXPECT_EQ(icon, expected->icon.value_or(icon)) << text;
        return expected->answer;
    }

    Script<Expected> script{"a message"};
};

}  // namespace tarvane
