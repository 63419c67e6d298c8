// The machine's clock, in its local time and as a moment. Nothing else reads the time.
#pragma once

#include <chrono>

namespace tarvane {

struct ClockReading {
    std::chrono::sys_days today;  ///< the local calendar date
    int hour = 0;                 ///< 0 to 23
    int minute = 0;               ///< 0 to 59
    int second = 0;               ///< 0 to 59
};

/// The moment at which a clock of universal time reads so.
inline std::chrono::sys_seconds readas(const ClockReading& reading) {
    return reading.today + std::chrono::hours(reading.hour) + std::chrono::minutes(reading.minute) +
           std::chrono::seconds(reading.second);
}

class Clock {
  public:
    virtual ~Clock() = default;
    virtual ClockReading now() const = 0;
    virtual std::chrono::sys_seconds moment() const = 0;  ///< universal time
};

}  // namespace tarvane
