// The clock that a plan is told by: the port's own, universal time, the port's zone time or this computer's. Moments
// are universal; days begin at the clock's midnight and have 23 or 25 hours where it is changed. Must not know tides.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "dates/calendar.h"
#include "platform/zones.h"

namespace tarvane {

using Moment = std::chrono::sys_seconds;

enum class ClockChoice { port, ut, zone, computer };

/// What a clock shows at a moment.
struct ClockTime {
    Date date{};
    int minute = 0;                ///< of the day as shown, 0 to 1439
    std::chrono::minutes ahead{};  ///< of universal time
    std::string name;              ///< "BST", "UT", "UT+1"

    int hour() const { return minute / 60; }
    int minuteofhour() const { return minute % 60; }
};

class PortClock {
  public:
    /// `zonehours` are what is to be added to the port's zone time for universal time; `iana` names its zone, empty
    /// when it isn't known: the port's clock then goes by its zone letter and the program's own summer rule.
    PortClock(ClockChoice choice, std::int16_t zonehours, const std::string& iana, const Zones& zones);

    ClockTime at(Moment moment) const;

    /// The moment at which a day begins on this clock; where midnight is left out, the first moment behind it.
    Moment startof(Date date) const;

    /// "port's clock (Europe/London)", "universal time", "zone time (UT+1)", "this computer's clock (Europe/Berlin)";
    /// says so when the rule is the program's own.
    const std::string& description() const { return description_; }

    /// True when the port's clock was asked for and only the program's own rule is known.
    bool byrule() const { return byrule_; }

  private:
    std::chrono::seconds aheadat(Moment moment, std::string* name) const;

    std::chrono::seconds zoneahead_;
    std::string iana_;
    const Zones& zones_;
    bool byrule_ = false;
    bool fixed_ = false;
    std::chrono::seconds fixedahead_{};
    std::string fixedname_;
    std::string description_;
    mutable std::optional<ZoneOffset> known_;  ///< of the last moment asked for
};

/// "UT", "UT+1", "UT-3:30"
std::string utname(std::chrono::seconds ahead);

/// "BST"; "UT-4" where the zone has no letters for what its clocks show.
std::string zonename(const ZoneOffset& offset);

/// "05:40"
std::string clocktext(const ClockTime& time);

/// "2026-07-14T05:40+01:00"
std::string isomoment(const ClockTime& time);

}  // namespace tarvane
