// What files can be brought in from: the machine's own tree and the media that stand in it. Must not look into them.
#pragma once

#include <string>
#include <vector>

namespace tarvane {

struct Drive {
    std::string path;   ///< where it is mounted, "/" or without a trailing separator
    std::string label;  ///< the medium's own name; empty for none
    bool operator==(const Drive&) const = default;
};

class Drives {
  public:
    virtual ~Drives() = default;

    /// Those that are there now: "/" first, then removable media by their paths.
    virtual std::vector<Drive> drives() const = 0;
};

}  // namespace tarvane
