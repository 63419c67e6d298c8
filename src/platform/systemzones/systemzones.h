// The system's zone data, through a library that reads it.
#pragma once

#include "platform/zones.h"

namespace tarvane {

class SystemZones : public Zones {
  public:
    std::optional<ZoneOffset> offsetat(const std::string& zone, std::chrono::sys_seconds moment) const override;
    std::string computerszone() const override;
};

}  // namespace tarvane
