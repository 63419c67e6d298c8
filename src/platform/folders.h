// The system's folders, and the making of one. Paths are UTF-8 without a trailing separator.
#pragma once

#include <optional>
#include <string>

namespace tarvane {

class Folders {
  public:
    virtual ~Folders() = default;
    virtual std::string program() const = 0;                   ///< the folder of the program's own data
    virtual bool keepschanges() const = 0;                     ///< what the user changes of them may be kept there too
    virtual std::optional<std::string> documents() const = 0;  ///< the user's documents; nothing if the system has none
    virtual std::string localappdata() const = 0;              ///< the user's local application data
    virtual bool make(
        const std::string& path) = 0;  ///< makes one folder with its parents; true if it is there afterwards
    virtual bool remove(const std::string& path) = 0;  ///< deletes one file; false if it wasn't there or couldn't be
};

}  // namespace tarvane
