// Dates and moments as tables for other programs carry them, ISO 8601. Must not ask the system anything.
#pragma once

#include <chrono>
#include <string>

#include "dates/calendar.h"

namespace tarvane {

/// yyyy-mm-dd.
std::string isodate(Date date);

/// A date and clock time with what they are ahead of universal time: "2026-07-14T05:40+01:00".
std::string isomoment(Date date, const std::string& clock, std::chrono::minutes ahead);

}  // namespace tarvane
