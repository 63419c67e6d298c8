// A clock that stands where a test puts it: noon of 22 November 2026 until told otherwise. Must not read the time.
#pragma once

#include <chrono>

#include "platform/clock.h"

namespace tarvane {

class ScriptedClock : public Clock {
  public:
    ClockReading reading{std::chrono::year{2026} / 11 / 22, 12, 0, 0};

    void set(int year, unsigned month, unsigned day, int hour = 12, int minute = 0, int second = 0) {
        reading = {std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day), hour, minute, second};
    }

    ClockReading now() const override { return reading; }
};

}  // namespace tarvane
