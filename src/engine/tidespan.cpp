#include "engine/tidespan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "engine/prediction.h"

namespace tarvane {
namespace {

constexpr double row = 1.0 / 6;              // hours between the samples in which turns are sought
constexpr double minute = 1.0 / 60;          // and where two may lie closer
constexpr double turnaccuracy = 0.2 / 3600;  // hours
constexpr std::size_t rowsofday = 147;       // one ahead of 00:00 and one behind 24:00

bool isfinite(const HeightInputs& inputs) {
    return std::isfinite(heightformula(inputs, 24).height) && std::isfinite(heightformula(inputs, 36).height);
}

}  // namespace

TideSpan::TideSpan(const HarmonicRecord& port, Date first, int days) : first_(first) {
    inputs_.reserve(static_cast<std::size_t>(days));
    runs_.reserve(static_cast<std::size_t>(days) * 6);
    for (int i = 0; i < days; ++i) {
        const Date date = first + std::chrono::days(i);
        // A day's heights are counted from 00:00 of the day before it, as those of the day's table.
        inputs_.push_back(heightinputs(port, monthof(date), yearof(date), dayofyear(date) - 1));
        if (!inputs_.back()) {
            whynot_ = noconstants;
        } else if (!isfinite(*inputs_.back())) {
            inputs_.back().reset();
            whynot_ = brokenrecord;
        } else {
            splitday(inputs_.size() - 1);
        }
    }
}

double TideSpan::heighton(std::size_t day, double hours) const {
    return heightformula(*inputs_[day], hours - 24.0 * static_cast<double>(day) + 24).height;
}

std::optional<double> TideSpan::height(double hours) const {
    if (hours < 0 || hours > this->hours() || inputs_.empty()) return std::nullopt;
    const std::size_t day = std::min(static_cast<std::size_t>(hours / 24), inputs_.size() - 1);
    if (!inputs_[day]) return std::nullopt;
    return heighton(day, hours);
}

std::optional<double> TideSpan::rate(double hours) const {
    if (!height(hours)) return std::nullopt;
    constexpr double aside = minute / 2;
    const std::size_t day = std::min(static_cast<std::size_t>(hours / 24), inputs_.size() - 1);
    return (heighton(day, hours + aside) - heighton(day, hours - aside)) / (2 * aside);
}

/// Golden sections, whose accuracy the flatness of a turn bounds at about a tenth of a second.
double TideSpan::turnwithin(std::size_t day, double from, double to, bool high) const {
    const double ratio = (std::sqrt(5.0) - 1) / 2;
    const double sign = high ? -1 : 1;
    double left = to - ratio * (to - from), right = from + ratio * (to - from);
    double atleft = sign * heighton(day, left), atright = sign * heighton(day, right);
    while (to - from > turnaccuracy) {
        if (atleft < atright) {
            to = std::exchange(right, left);
            atright = atleft;
            left = to - ratio * (to - from);
            atleft = sign * heighton(day, left);
        } else {
            from = std::exchange(left, right);
            atleft = atright;
            right = from + ratio * (to - from);
            atright = sign * heighton(day, right);
        }
    }
    return (from + to) / 2;
}

/// Turns among heights `step` apart from `from` on. Between two rows of one direction a pair of turns may hide where
/// the tide almost stands: there the search goes by minutes.
void TideSpan::findturns(std::size_t day, double from, double step, const std::vector<double>& heights, bool finer,
                         std::vector<double>& turns) const {
    const auto time = [&](std::size_t i) { return from + step * static_cast<double>(i); };
    const auto rise = [&](std::size_t i) { return heights[i + 1] - heights[i]; };
    for (std::size_t i = 1; i + 1 < heights.size(); ++i) {
        const double before = rise(i - 1), after = rise(i);
        if ((before > 0 && after <= 0) || (before < 0 && after >= 0)) {
            // Of equal heights on end the turn is at the first.
            turns.push_back(turnwithin(day, time(i - 1), time(i + 1), before > 0));
        } else if (finer && i + 2 < heights.size() && before * after > 0 && rise(i + 1) * after > 0 &&
                   std::abs(after) < std::abs(before) && std::abs(after) < std::abs(rise(i + 1)) &&
                   4 * std::abs(after) < std::abs(before) + std::abs(rise(i + 1))) {
            std::vector<double> close;
            for (double at = time(i - 1); at < time(i + 2) + minute / 2; at += minute)
                close.push_back(heighton(day, at));
            findturns(day, time(i - 1), minute, close, false, turns);
        }
    }
}

void TideSpan::splitday(std::size_t day) {
    std::array<HeightParts, rowsofday> samples;
    sampleheights(*inputs_[day], 24 - row, row, samples);
    std::vector<double> heights;
    heights.reserve(samples.size());
    for (const HeightParts& sample : samples)
        heights.push_back(sample.height);
    const double start = 24.0 * static_cast<double>(day), end = start + 24;
    std::vector<double> turns{start};
    findturns(day, start - row, row, heights, true, turns);
    std::sort(turns.begin() + 1, turns.end());
    std::erase_if(turns, [&](double turn) { return turn < start || turn >= end; });
    turns.push_back(end);
    for (std::size_t i = 0; i + 1 < turns.size(); ++i)
        if (turns[i] < turns[i + 1])
            runs_.push_back({turns[i], turns[i + 1], heighton(day, turns[i]), heighton(day, turns[i + 1]), day});
}

bool TideSpan::turnsbeyond(std::size_t day, double from, double to, bool high) const {
    const double sign = high ? 1 : -1;
    double before = sign * heighton(day, from - row), middle = sign * heighton(day, from);
    for (double at = from; at < to; at += row) {
        const double after = sign * heighton(day, at + row);
        if (before < middle && middle >= after) return true;
        before = middle;
        middle = after;
    }
    return false;
}

double TideSpan::passing(const TideRun& run, double level) const {
    double below = run.first < run.last ? run.from : run.to, above = run.first < run.last ? run.to : run.from;
    while (std::abs(above - below) > turnaccuracy) {
        const double middle = (below + above) / 2;
        (heighton(run.day, middle) < level ? below : above) = middle;
    }
    return (below + above) / 2;
}

}  // namespace tarvane
