#include <gtest/gtest.h>

#include "fakes/scriptedfiledialogs.h"
#include "fakes/scriptedmessages.h"
#include "fakes/scriptedwindows.h"

namespace tarvane {

void failtest(const std::string& reason) {
    ADD_FAILURE() << reason;
}

void ScriptedMessages::expectshow(std::string text, Title title, Icon icon) {
    script.expect({std::move(text), Kind::show, std::move(title), icon, Answer::cancel});
}

void ScriptedMessages::expectask(std::string text, bool answer, Title title, Icon icon) {
    script.expect({std::move(text), Kind::ask, std::move(title), icon, answer ? Answer::yes : Answer::no});
}

void ScriptedMessages::expectaskorcancel(std::string text, Answer answer, Title title, Icon icon) {
    script.expect({std::move(text), Kind::askorcancel, std::move(title), icon, answer});
}

void ScriptedMessages::show(const std::string& text, const std::string& title, MessageIcon icon) {
    take(text, Kind::show, title, icon);
}

bool ScriptedMessages::ask(const std::string& text, const std::string& title, MessageIcon icon) {
    return take(text, Kind::ask, title, icon) == Answer::yes;
}

Answer ScriptedMessages::askorcancel(const std::string& text, const std::string& title, MessageIcon icon) {
    return take(text, Kind::askorcancel, title, icon);
}

Answer ScriptedMessages::take(const std::string& text, Kind kind, const std::string& title, MessageIcon icon) {
    const std::optional<Expected> expected = script.take(text);
    if (!expected) return Answer::cancel;
    EXPECT_EQ(text, expected->name);
    EXPECT_EQ(static_cast<int>(kind), static_cast<int>(expected->kind)) << text;
    EXPECT_EQ(title, expected->title.value_or(title)) << text;
    EXPECT_EQ(icon, expected->icon.value_or(icon)) << text;
    return expected->answer;
}

void ScriptedFileDialogs::expectopen(Text answer, Text title) {
    script.expect({"open", std::move(answer), std::move(title)});
}

void ScriptedFileDialogs::expectsave(Text answer, Text title) {
    script.expect({"save", std::move(answer), std::move(title)});
}

ScriptedFileDialogs::Text ScriptedFileDialogs::open(const FileRequest& request) {
    return take("open", request);
}

ScriptedFileDialogs::Text ScriptedFileDialogs::save(const FileRequest& request) {
    return take("save", request);
}

ScriptedFileDialogs::Text ScriptedFileDialogs::take(const std::string& kind, const FileRequest& request) {
    requests.push_back(request);
    const std::optional<Expected> expected = script.take(kind + " " + request.title);
    if (!expected) return std::nullopt;
    EXPECT_EQ(kind, expected->name);
    EXPECT_EQ(request.title, expected->title.value_or(request.title));
    return expected->answer;
}

void ScriptedWindows::expect(std::string name, std::function<void(ModalWindow&)> act) {
    script.expect({std::move(name), std::move(act)});
}

void ScriptedWindows::showmodal(ModalWindow& window) {
    const std::optional<Expected> expected = script.take(window.windowname());
    if (!expected) return;
    EXPECT_EQ(window.windowname(), expected->name);
    if (window.windowname() == expected->name && expected->act) expected->act(window);
}

}  // namespace tarvane
