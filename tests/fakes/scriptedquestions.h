// What a test foresees of the user: messages, file dialogs and windows stand in queues with their answers, and one that
// comes unforeseen, is another one or never comes fails the test. Must not show anything or look at the disk.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/filedialogs.h"
#include "platform/messages.h"
#include "platform/windows.h"

namespace tarvane {

template <typename Expected>
class Script {
  public:
    Script() = default;
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;
    ~Script() {
        for (const Expected& left : queue)
            ADD_FAILURE() << "never came: " << left.name;
    }

    void expect(Expected expected) { queue.push_back(std::move(expected)); }

    /// The next one foreseen, which must be the one that came; an empty one when none is left.
    Expected take(const std::string& came) {
        if (queue.empty()) {
            ADD_FAILURE() << "unforeseen: " << came;
            return {};
        }
        Expected next = std::move(queue.front());
        queue.pop_front();
        EXPECT_EQ(came, next.name);
        return next;
    }

  private:
    std::deque<Expected> queue;
};

class ScriptedMessages : public Messages {
  public:
    using Title = std::optional<std::string>;
    using Icon = std::optional<MessageIcon>;

    int beeps = 0;

    /// The whole text is compared; title and icon only where given.
    void expectshow(const std::string& text, Title title = {}, Icon icon = {}) {
        script.expect({"told: " + text, std::move(title), icon, Answer::cancel});
    }
    void expectask(const std::string& text, bool answer, Title title = {}, Icon icon = {}) {
        script.expect({"asked: " + text, std::move(title), icon, answer ? Answer::yes : Answer::no});
    }
    void expectaskorcancel(const std::string& text, Answer answer, Title title = {}, Icon icon = {}) {
        script.expect({"asked with Cancel: " + text, std::move(title), icon, answer});
    }

    void show(const std::string& text, const std::string& title, MessageIcon icon) override {
        take("told: " + text, title, icon);
    }
    bool ask(const std::string& text, const std::string& title, MessageIcon icon) override {
        return take("asked: " + text, title, icon) == Answer::yes;
    }
    Answer askorcancel(const std::string& text, const std::string& title, MessageIcon icon) override {
        return take("asked with Cancel: " + text, title, icon);
    }
    void beep() override { ++beeps; }

  private:
    struct Expected {
        std::string name;
        Title title;
        Icon icon;
        Answer answer = Answer::cancel;
    };

    Answer take(const std::string& came, const std::string& title, MessageIcon icon) {
        const Expected expected = script.take(came);
        EXPECT_EQ(title, expected.title.value_or(title)) << came;
        EXPECT_EQ(icon, expected.icon.value_or(icon)) << came;
        return expected.answer;
    }

    Script<Expected> script;
};

class ScriptedFileDialogs : public FileDialogs {
  public:
    using Text = std::optional<std::string>;

    std::vector<FileRequest> requests;  ///< every request that came, in order

    /// The path chosen; nothing for Cancel. The title is compared only where given.
    void expectopen(Text answer, Text title = {}) { script.expect({"open", std::move(answer), std::move(title)}); }
    void expectsave(Text answer, Text title = {}) { script.expect({"save", std::move(answer), std::move(title)}); }

    Text open(const FileRequest& request) override { return take("open", request); }
    Text save(const FileRequest& request) override { return take("save", request); }

  private:
    struct Expected {
        std::string name;
        Text answer, title;
    };

    Text take(const std::string& kind, const FileRequest& request) {
        requests.push_back(request);
        const Expected expected = script.take(kind);
        EXPECT_EQ(request.title, expected.title.value_or(request.title));
        return expected.answer;
    }

    Script<Expected> script;
};

class ScriptedWindows : public Windows {
  public:
    /// What the user does in the window; without it the window is closed at once.
    void expect(std::string name, std::function<void(ModalWindow&)> act = {}) {
        script.expect({std::move(name), std::move(act)});
    }

    std::vector<std::string> manuals;  ///< the windows whose chapter was opened

    void showmanual(const std::string& windowname) override { manuals.push_back(windowname); }

    void showmodal(ModalWindow& window) override {
        const Expected expected = script.take(window.windowname());
        if (window.windowname() == expected.name && expected.act) expected.act(window);
    }

  private:
    struct Expected {
        std::string name;
        std::function<void(ModalWindow&)> act;
    };

    Script<Expected> script;
};

}  // namespace tarvane
