// Waters and windows of a plan as a calendar that other programs take in, RFC 5545. An event keeps its identifier
// whenever it is written anew, from other constants too, so that taken in again it replaces itself: the identifier is
// made of the area, the port and the tide's name. Must not write files or ask for the time.
#pragma once

#include <string>
#include <vector>

#include "planner/planfiles.h"

namespace tarvane {

/// What stands before the events and behind them. A calendar needs one event at least.
std::string calendarstart();
std::string calendarend();

/// Events in universal time; `stamp` is the moment of writing. A window is to be a named one. A water lasts a minute
/// and makes nobody busy.
std::string waterevent(const PlanPort& port, const HarmonicRecord& record, const PortClock& clock,
                       const PlannedWater& water, Moment stamp);
std::string windowevent(const PlanPort& port, const HarmonicRecord& record, const PortClock& clock,
                        const PlannedWindow& window, const Passage& passage, Moment stamp);

/// Whole calendars, empty where there is no event.
std::string waterscalendar(const Plan& plan, const PlanPort& port, Moment stamp);
std::string windowscalendar(const Plan& plan, const PlannedAccess& access, const Passage& passage, const PlanPort& port,
                            Moment stamp);

/// A line of a calendar, folded after 75 bytes at most and never within a character, its end included.
std::string calendarline(const std::string& line);

/// A text as a property holds it: its commas, semicolons, backslashes and line ends escaped, other control characters
/// made "?".
std::string calendartext(const std::string& text);

}  // namespace tarvane
