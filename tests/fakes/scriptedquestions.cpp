#include <gtest/gtest.h>

#include "fakes/scriptedfiledialogs.h"
#include "fakes/scriptedmessages.h"
#include "fakes/scriptedwindows.h"

namespace tarvane {

void failtest(const std::string& reason) {
    ADD_FAILURE() << reason;
}

void ScriptedMessages::expectshow(std::string text, Title title, Icon icon) {
    script.expect({std::move(text), false, std::move(title), icon, false});
}

void ScriptedMessages::expectask(std::string text, bool answer, Title title, Icon icon) {
    script.expect({std::move(text), true, std::move(title), icon, answer});
}

void ScriptedMessages::show(const std::string& text, const std::string& title, MessageIcon icon) {
    take(text, false, title, icon);
}

bool ScriptedMessages::ask(const std::string& text, const std::string& title, MessageIcon icon) {
    return take(text, true, title, icon);
}

bool ScriptedMessages::take(const std::string& text, bool question, const std::string& title, MessageIcon icon) {
    const std::optional<Expected> expected = script.take(text);
    if (!expected) return false;
    EXPECT_EQ(text, expected->name);
    EXPECT_EQ(question, expected->question) << text;
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
