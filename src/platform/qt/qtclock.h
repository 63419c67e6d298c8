// The machine's clock in local time.
#pragma once

#include "platform/clock.h"

namespace tarvane {

class QtClock : public Clock {
  public:
    ClockReading now() const override;
};

}  // namespace tarvane
