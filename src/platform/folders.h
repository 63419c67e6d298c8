// The system's folders, and the making of one. Paths are UTF-8 without a trailing separator.
#pragma once

#include <optional>
#include <string>

namespace tarvane {

class Folders {
  public:
    virtual ~Folders() = default;
    virtual std::string program() const = 0;                   ///< the folder of the executable
    virtual std::optional<std::string> documents() const = 0;  ///< the user's documents; nothing if the system has none
    virtual std::string localappdata() const = 0;              ///< the user's local application data
    virtual bool canwrite(const std::string& path) const = 0;  ///< files can be made in a folder that is there
    virtual bool make(
        const std::string& path) = 0;  ///< makes one folder with its parents; true if it is there afterwards
    virtual bool remove(const std::string& path) = 0;  ///< deletes one file; false if it wasn't there or couldn't be
};

}  // namespace tarvane
