// The machine's clock.
#pragma once

#include "platform/clock.h"

namespace tarvane {

class QtClock : public Clock {
  public:
    ClockReading now() const override;
    std::chrono::sys_seconds moment() const override;
};

}  // namespace tarvane
