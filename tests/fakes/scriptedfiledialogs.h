// File dialogs answered from a queue: an unforeseen dialog, one of the wrong kind, or one that never comes fails the
// test. Must not look at the disk.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/filedialogs.h"

namespace tarvane {

class ScriptedFileDialogs : public FileDialogs {
  public:
    std::vector<FileRequest> requests;  ///< every request that came, in order

    ScriptedFileDialogs() = default;
    ScriptedFileDialogs(const ScriptedFileDialogs&) = delete;
    ScriptedFileDialogs& operator=(const ScriptedFileDialogs&) = delete;
    ~ScriptedFileDialogs() override {
        for (const Expected& left : queue)
            ADD_FAILURE() << "a file dialog never came: " << kind(left.saving);
    }

    /// The path chosen; nothing for Cancel. The title is compared only where given.
    void expectopen(std::optional<std::string> answer, std::optional<std::string> title = {}) {
        queue.push_back({false, std::move(answer), std::move(title)});
    }
    void expectsave(std::optional<std::string> answer, std::optional<std::string> title = {}) {
        queue.push_back({true, std::move(answer), std::move(title)});
    }

    std::optional<std::string> open(const FileRequest& request) override { return take(false, request); }
    std::optional<std::string> save(const FileRequest& request) override { return take(true, request); }

  private:
    struct Expected {
        bool saving = false;
        std::optional<std::string> answer;
        std::optional<std::string> title;
    };

    static const char* kind(bool saving) { return saving ? "save" : "open"; }

    std::optional<std::string> take(bool saving, const FileRequest& request) {
        requests.push_back(request);
        if (queue.empty()) {
            ADD_FAILURE() << "an unforeseen file dialog: " << kind(saving) << " " << request.title;
            return std::nullopt;
        }
        const Expected expected = queue.front();
        queue.pop_front();
        EXPECT_STREQ(kind(saving), kind(expected.saving));
        EXPECT_EQ(request.title, expected.title.value_or(request.title));
        return expected.answer;
    }

    std::deque<Expected> queue;
};

}  // namespace tarvane
