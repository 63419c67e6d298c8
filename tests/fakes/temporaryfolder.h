// A folder of a test's own, gone with it. In memory where the machine allows; must not be anywhere that a user keeps
// files. And what stands in files, whole.
#pragma once

#include <sys/resource.h>

#include <csignal>
#include <string>

namespace tarvane {

/// The bytes of a file; none when it can't be read.
std::string filetext(const std::string& path);

/// Makes the file, or replaces it, in place.
void putfile(const std::string& path, const std::string& text);

/// Runs the writing while no file may grow past so many bytes, and tells what it told.
template <typename Write>
auto onadiskof(rlim_t bytes, Write write) {
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto told = write();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
    return told;
}

namespace fakes {

class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return folder; }
    std::string operator/(const std::string& name) const { return folder + "/" + name; }

  private:
    std::string folder;
};

}  // namespace fakes
}  // namespace tarvane
