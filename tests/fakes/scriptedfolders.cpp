#include "fakes/scriptedfolders.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace tarvane {

std::string filetext(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

void putfile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

namespace fakes {

TemporaryFolder::TemporaryFolder() {
    // In memory where the system has such a folder: the program flushes each file that it replaces to the disk.
    const bool inmemory = access("/dev/shm", W_OK) == 0;
    std::string name =
        (inmemory ? "/dev/shm" : std::filesystem::temp_directory_path()) / std::filesystem::path("tarvaneXXXXXX");
    if (mkdtemp(name.data())) folder = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

}  // namespace fakes

ScriptedFolders::ScriptedFolders() {
    for (const std::string& path : {programfolder, *documentsfolder, appdatafolder})
        std::filesystem::create_directories(path);
}

}  // namespace tarvane
