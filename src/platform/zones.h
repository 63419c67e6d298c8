// What the clocks of a place show, by the rules of its time zone. Nothing else reads those rules.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace tarvane {

/// How far a zone's clocks are ahead of universal time, and between which moments they are.
struct ZoneOffset {
    std::chrono::seconds ahead{};
    std::string abbreviation;  ///< "BST"; "+03" where the zone has no letters
    std::chrono::sys_seconds from{}, until{};
};

class Zones {
  public:
    virtual ~Zones() = default;

    /// For an IANA zone, "Europe/London"; nothing for a name that isn't known.
    virtual std::optional<ZoneOffset> offsetat(const std::string& zone, std::chrono::sys_seconds moment) const = 0;

    /// The name of the zone that this computer is set to; empty when it can't be told.
    virtual std::string computerszone() const = 0;
};

}  // namespace tarvane
