// What every edit of a trial shares: chance, the log in which its outcome is told ahead of it, and the look at what
// came of it. Must not know any file's form.
#pragma once

#include <functional>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "killtrial/states.h"

namespace tarvane::killtrial {

std::string textof(std::span<const std::byte> bytes);

class Foretelling {
  public:
    Foretelling(const std::string& folder, unsigned seed);
    ~Foretelling();
    Foretelling(const Foretelling&) = delete;
    Foretelling& operator=(const Foretelling&) = delete;

    const std::string& folder() const { return folder_; }
    std::string path(const std::string& name) const { return folder_ + "/" + name; }

    /// A number from 0 to `end` - 1.
    std::size_t below(std::size_t end);

    /// The change of a file to the bytes `after`.
    Change changed(const std::string& name, const std::string& after) const;

    /// Foretells the changes, in the order of their writing, makes them by `act` and looks at what came of them. False
    /// when they failed or came out otherwise.
    bool perform(const std::vector<Change>& changes, const std::function<bool()>& act);

  private:
    bool say(const std::string& line) const;

    std::string folder_;
    std::mt19937 generator_;
    int log_;
};

}  // namespace tarvane::killtrial
