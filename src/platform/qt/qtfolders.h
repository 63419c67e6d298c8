// The user's folders as the desktop has them.
#pragma once

#include "platform/folders.h"

namespace tarvane {

class QtFolders : public Folders {
  public:
    std::string program() const override;
    bool keepschanges() const override;
    std::optional<std::string> documents() const override;
    std::string localappdata() const override;
    bool make(const std::string& path) override;
    bool remove(const std::string& path) override;
};

}  // namespace tarvane
