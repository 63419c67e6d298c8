// File dialogs answered from a queue: an unforeseen dialog, one of the wrong kind, or one that never comes fails the
// test. Must not look at the disk.
#pragma once

#include <vector>

#include "fakes/script.h"
#include "platform/filedialogs.h"

namespace tarvane {

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
        Text answer;
        Text title;
    };

    Text take(const std::string& kind, const FileRequest& request) {
        requests.push_back(request);
        const std::optional<Expected> expected = script.take(kind + " " + request.title);
        if (!expected) return std::nullopt;
        EXPECT_EQ(kind, expected->name);
        EXPECT_EQ(request.title, expected->title.value_or(request.title));
        return expected->answer;
    }

    Script<Expected> script{"a file dialog"};
};

}  // namespace tarvane
