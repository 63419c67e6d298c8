// File dialogs answered from a queue: an unforeseen dialog, one of the wrong kind, or one that never comes fails the
// test. Must not look at the disk.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "fakes/script.h"
#include "platform/filedialogs.h"

namespace tarvane {

class ScriptedFileDialogs : public FileDialogs {
  public:
    using Text = std::optional<std::string>;

    std::vector<FileRequest> requests;  ///< every request that came, in order

    /// The path chosen; nothing for Cancel. The title is compared only where given.
    void expectopen(Text answer, Text title = {});
    void expectsave(Text answer, Text title = {});

    Text open(const FileRequest& request) override;
    Text save(const FileRequest& request) override;

  private:
    struct Expected {
        std::string name;
        Text answer;
        Text title;
    };

    Text take(const std::string& kind, const FileRequest& request);

    Script<Expected> script{"a file dialog"};
};

}  // namespace tarvane
