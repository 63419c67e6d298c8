#include "engine/daywaters.h"

#include <cmath>
#include <memory>
#include <span>

#include "engine/nearheights.h"

namespace tarvane {
namespace {

constexpr double rowstep = 1.0 / 6;
constexpr std::size_t rows = 146;  // the last water can stand on row 145, and is told by the row behind it
using Rows = std::array<double, rows + 1>;

/// The times of the samples in hours from 00:00 of the day before, summed up as the prediction sums them.
Rows timesfrom(std::size_t first) {
    double t = 0;
    for (std::size_t j = 1; j < first; ++j)
        t += rowstep;
    Rows times{};
    for (std::size_t row = 1; row <= rows; ++row, t += rowstep)
        times[row] = t;
    return times;
}

const Rows& timesof(bool summer) {
    static const Rows standardtimes = timesfrom(145), summertimes = timesfrom(139);
    return summer ? summertimes : standardtimes;
}

DayWaters asprediction(const PredictedPort& port, const TideDay& day) {
    const auto prediction = std::make_unique<Prediction>();
    predictday(port, day, *prediction);
    findturningpoints(*prediction);
    DayWaters result;
    result.defined = prediction->defined;
    result.whynot = prediction->whynot;
    result.count = prediction->turningcount;
    for (int i = 1; i <= result.count; ++i) {
        const TimedValue& point = prediction->turningpoints[static_cast<std::size_t>(i)];
        const int row = static_cast<int>(std::lround(point.time * 6)) + 1;
        result.waters[static_cast<std::size_t>(i - 1)] = {row, point.height, ishighwater(*prediction, i)};
    }
    return result;
}

/// Whether the tide rises from a row to the next, 1, falls, -1, or neither.
int risefrom(const HeightInputs& inputs, const Rows& times, const Rows& heights, double doubt, std::size_t row) {
    double rise = heights[row + 1] - heights[row];
    if (!(std::abs(rise) > doubt))
        rise = heightformula(inputs, times[row + 1]).height - heightformula(inputs, times[row]).height;
    return rise > 0 ? 1 : rise < 0 ? -1 : 0;
}

}  // namespace

std::optional<OrbitalSpan> spanofday(const TideDay& day) {
    return orbitalspan(day.tideyear, day.dayofyear - 1);
}

DayWaters daywaters(const PredictedPort& port, const TideDay& day, const std::optional<OrbitalSpan>& span) {
    DayWaters result;
    if (!span) {
        result.defined = false;
        result.whynot = noconstants;
        return result;
    }
    const HeightInputs inputs = heightinputs(port.record, day.tidemonth, *span, port.userdepth, port.currentoutput);
    if (!keepsnear(inputs)) return asprediction(port, day);
    const Rows& times = timesof(day.summer == -1);
    Rows heights;
    const double doubt = nearheights(inputs, std::span(times).subspan(1), std::span(heights).subspan(1));
    int before = risefrom(inputs, times, heights, doubt, 1);
    const auto most = static_cast<int>(result.waters.size());
    for (std::size_t row = 2; row < rows && result.count < most; ++row) {
        const int behind = risefrom(inputs, times, heights, doubt, row);
        if (before * behind == -1)
            result.waters[static_cast<std::size_t>(result.count++)] = {
                static_cast<int>(row), heightformula(inputs, times[row]).height, before == 1};
        before = behind;
    }
    return result;
}

}  // namespace tarvane
