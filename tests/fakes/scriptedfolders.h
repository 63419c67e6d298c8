// Folders inside a temporary one of the test's own; making and removing is real there. Must not reach
// outside it unless a test sets a path that does.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>

#include "fakes/temporaryfolder.h"
#include "platform/folders.h"

namespace tarvane {

class ScriptedFolders : public Folders {
  public:
    fakes::TemporaryFolder root;
    std::string programfolder = root / "program";
    std::optional<std::string> documentsfolder = root / "documents";
    std::string appdatafolder = root / "appdata";
    std::set<std::string> refused;  ///< paths that can't be made, removed or written in

    ScriptedFolders();

    std::string program() const override { return programfolder; }
    std::optional<std::string> documents() const override { return documentsfolder; }
    std::string localappdata() const override { return appdatafolder; }

    bool keepschanges() const override { return !refused.contains(programfolder); }
    bool make(const std::string& path) override {
        return !refused.contains(path) && (std::filesystem::create_directories(path) || std::filesystem::exists(path));
    }
    bool remove(const std::string& path) override { return !refused.contains(path) && std::filesystem::remove(path); }
};

}  // namespace tarvane
