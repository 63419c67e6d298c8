// Where the clocks at a port read otherwise than the times on show, which go by whole hours and the program's own rule
// of summer time. Must not change what is shown.
#pragma once

#include <string>

#include "dates/portclock.h"
#include "session/session.h"

namespace tarvane {

/// Of times on a day that are `shownahead` of universal time, at a place of an IANA zone: "clocks there read one hour
/// more (CDT)", with "until 02:00" or "from 02:00" of the times on show when it is so for a part of the day; empty when
/// they agree or the zone isn't known.
std::string otherclocks(Date day, std::chrono::seconds shownahead, const std::string& iana, const Zones& zones);

/// What the table beside an area tells of a prediction's port; `area` is the path of the area's file.
PlaceOf placeof(const MainContext& context, const Prediction& prediction, const std::string& area);

}  // namespace tarvane
