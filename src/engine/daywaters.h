// The high and low waters of a day, for whoever wants those alone, of many days and ports: what predictday and
// findturningpoints give, digit by digit, in a sixth of the time. Must not give another water than they do.
#pragma once

#include <array>
#include <optional>

#include "engine/height.h"
#include "engine/prediction.h"

namespace tarvane {

/// A turning point of the ten-minute samples.
struct DayWater {
    int row = 0;        ///< of the samples, 2 to 145: (row - 1) / 6 hours
    double height = 0;  ///< metres
    bool high = false;

    double time() const { return static_cast<double>(row - 1) / 6; }
};

struct DayWaters {
    std::array<DayWater, 15> waters{};
    int count = 0;
    bool defined = true;
    const char* whynot = "";
};

/// The orbital constants that the prediction of a day stands on, the same for every port. Nothing where it has none.
std::optional<OrbitalSpan> spanofday(const TideDay& day);

/// The waters of a port's day; `span` is that of the day.
DayWaters daywaters(const PredictedPort& port, const TideDay& day, const std::optional<OrbitalSpan>& span);

}  // namespace tarvane
