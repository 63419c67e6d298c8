// A folder of a test's own, gone with it.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarvane::fakes {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tarvaneXXXXXX").string();
        if (mkdtemp(name.data())) folder = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return folder; }
    std::string operator/(const std::string& name) const { return folder + "/" + name; }

  private:
    std::string folder;
};

}  // namespace tarvane::fakes
