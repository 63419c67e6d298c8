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
        // In memory where the system has such a folder: the program flushes each file that it replaces to the disk.
        const bool inmemory = access("/dev/shm", W_OK) == 0;
        std::string name =
            (inmemory ? "/dev/shm" : std::filesystem::temp_directory_path()) / std::filesystem::path("tarvaneXXXXXX");
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
