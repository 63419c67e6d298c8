// Message boxes that a test foresees: each expected box stands in a queue with its answer; a box that comes unforeseen,
// or that never comes, fails the test. Must not show anything.
#pragma once

#include <optional>
#include <string>

#include "fakes/script.h"
#include "platform/messages.h"

namespace tarvane {

class ScriptedMessages : public Messages {
  public:
    using Title = std::optional<std::string>;
    using Icon = std::optional<MessageIcon>;

    int beeps = 0;

    /// The whole text is compared; title and icon only where given.
    void expectshow(std::string text, Title title = {}, Icon icon = {});
    void expectask(std::string text, bool answer, Title title = {}, Icon icon = {});
    void expectaskorcancel(std::string text, Answer answer, Title title = {}, Icon icon = {});

    void show(const std::string& text, const std::string& title, MessageIcon icon) override;
    bool ask(const std::string& text, const std::string& title, MessageIcon icon) override;
    Answer askorcancel(const std::string& text, const std::string& title, MessageIcon icon) override;
    void beep() override { ++beeps; }

  private:
    enum class Kind { show, ask, askorcancel };
    struct Expected {
        std::string name;
        Kind kind;
        Title title;
        Icon icon;
        Answer answer;
    };

    Answer take(const std::string& text, Kind kind, const std::string& title, MessageIcon icon);

    Script<Expected> script{"a message"};
};

}  // namespace tarvane
