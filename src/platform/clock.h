// The wall clock in the machine's local time. Nothing else reads the time.
#pragma once

#include <chrono>

namespace tarvane {

struct ClockReading {
    std::chrono::sys_days today;  ///< the local calendar date
    int hour = 0;                 ///< 0 to 23
    int minute = 0;               ///< 0 to 59
    int second = 0;               ///< 0 to 59
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual ClockReading now() const = 0;
};

}  // namespace tarvane
