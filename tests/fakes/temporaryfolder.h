// A folder of a test's own, gone with it. In memory where the machine allows; must not be anywhere that a user keeps
// files.
#pragma once

#include <string>

namespace tarvane::fakes {

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

}  // namespace tarvane::fakes
