// The common file dialog: open and save.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarvane {

struct FileRequest {
    std::string title;
    std::string folder;                 ///< the folder shown first
    std::string filename;               ///< the name proposed, may be empty
    std::string filter;                 ///< as "Tables (*.txt)|*.txt", description and pattern in pairs
    bool askoverwrite = false;          ///< save only: ask before a file that stands is chosen
    std::vector<std::string> places{};  ///< folders that are one click away, at the top of those always offered
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    /// The chosen path; nothing when the user cancelled.
    virtual std::optional<std::string> open(const FileRequest& request) = 0;
    virtual std::optional<std::string> save(const FileRequest& request) = 0;
};

}  // namespace tarvane
