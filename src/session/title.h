// What the samples around a moment tell, and the title line made of it. Must not know any control.
#pragma once

#include <cstddef>
#include <optional>

#include "session/session.h"

namespace tarvane {

/// What the samples around row i tell.
struct Tendency {
    TimedValue near;
    const char* word = "Rising";
    std::optional<double> rate;  ///< metres per hour; nothing without a time difference
};

Tendency tendencyat(const Prediction& prediction, std::size_t i);

/// The title line: height, tendency and rate at today's clock time of the day on show, whichever day that is. It stays
/// as it was when there is no time difference to reckon a rate with.
void rewritetitle(Session& session, const Clock& clock);

}  // namespace tarvane
