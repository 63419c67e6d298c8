#include "engine/tidespan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include "engine/nearheights.h"
#include "engine/prediction.h"

namespace tarvane {
namespace {

constexpr double row = 1.0 / 6;              // hours between the samples in which turns are sought
constexpr double minute = 1.0 / 60;          // and where two may lie closer
constexpr double turnaccuracy = 0.2 / 3600;  // hours
constexpr std::size_t rowsofday = 147;       // one ahead of 00:00 and one behind 24:00
constexpr std::size_t sumsofday = rowsofday - 2;

bool isfinite(const HeightInputs& inputs) {
    return std::isfinite(heightformula(inputs, 24).height) && std::isfinite(heightformula(inputs, 36).height);
}

}  // namespace

TideSpan::TideSpan(const HarmonicRecord& port, Date first, int days) : first_(first) {
    inputs_.reserve(static_cast<std::size_t>(days));
    sums_.resize(static_cast<std::size_t>(days) * sumsofday);
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

/// Brent's method without derivatives: parabolas, and golden sections where those don't close in, as where the form
/// wraps an angle and the height steps by a tenth of a millimetre. The flatness of a turn bounds it at about a tenth of
/// a second.
double TideSpan::turnwithin(std::size_t day, double from, double to, bool high) const {
    struct Trial {
        double at = 0, depth = 0;
    };
    const auto trialat = [&](double at) { return Trial{at, (high ? -1 : 1) * heighton(day, at)}; };
    constexpr double tolerance = turnaccuracy / 2;
    const double golden = (3 - std::sqrt(5.0)) / 2;
    Trial best = trialat((from + to) / 2), second = best, third = best;
    double step = 0, before = 0;
    while (std::max(best.at - from, to - best.at) > 2 * tolerance) {
        const double r = (best.at - second.at) * (best.depth - third.depth);
        const double q = (best.at - third.at) * (best.depth - second.depth);
        const double vertex = ((best.at - second.at) * r - (best.at - third.at) * q) / (2 * (q - r));
        const bool closing = std::abs(vertex) < std::abs(before) / 2;
        before = step;
        step = vertex;
        const double middle = (from + to) / 2, at = best.at + vertex;
        if (!closing || at <= from || at >= to) {
            before = best.at < middle ? to - best.at : from - best.at;
            step = golden * before;
        } else if (std::min(at - from, to - at) < 2 * tolerance) {
            step = std::copysign(tolerance, middle - best.at);
        }
        if (std::abs(step) < tolerance) step = std::copysign(tolerance, step);
        const Trial next = trialat(best.at + step);
        if (next.depth <= best.depth) {
            (next.at < best.at ? to : from) = best.at;
            third = std::exchange(second, std::exchange(best, next));
        } else {
            (next.at < best.at ? from : to) = next.at;
            if (next.depth <= second.depth || second.at == best.at) {
                third = std::exchange(second, next);
            } else if (next.depth <= third.depth || third.at == best.at || third.at == second.at) {
                third = next;
            }
        }
    }
    return best.at;
}

/// Heights at even steps, and how far the difference of two may be out.
struct TideSpan::Samples {
    double from = 0, step = 0;
    std::vector<double> heights{};
    double doubt = 0;

    double time(std::size_t i) const { return from + step * static_cast<double>(i); }
};

/// From a sample to the next.
double TideSpan::riseafter(std::size_t day, const Samples& samples, std::size_t i) const {
    const double rise = samples.heights[i + 1] - samples.heights[i];
    if (std::abs(rise) > samples.doubt) return rise;
    return heighton(day, samples.time(i + 1)) - heighton(day, samples.time(i));
}

/// Turns among samples. Between two rows of one direction a pair of turns may hide where the tide almost stands: there
/// the search goes by minutes.
void TideSpan::findturns(std::size_t day, const Samples& samples, bool finer, std::vector<double>& turns) const {
    const std::size_t count = samples.heights.size();
    double before = riseafter(day, samples, 0), after = riseafter(day, samples, 1);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double behind = i + 2 < count ? riseafter(day, samples, i + 1) : 0;
        if ((before > 0 && after <= 0) || (before < 0 && after >= 0)) {
            // Of equal heights on end the turn is at the first.
            turns.push_back(turnwithin(day, samples.time(i - 1), samples.time(i + 1), before > 0));
        } else if (finer && before * after > 0 && behind * after > 0 && std::abs(after) < std::abs(before) &&
                   std::abs(after) < std::abs(behind) && 4 * std::abs(after) < std::abs(before) + std::abs(behind)) {
            Samples close{samples.time(i - 1), minute};
            for (double at = close.from; at < samples.time(i + 2) + minute / 2; at += minute)
                close.heights.push_back(heighton(day, at));
            findturns(day, close, false, turns);
        }
        before = after;
        after = behind;
    }
}

/// A day's rows, near enough to tell its turns where its constants allow that.
TideSpan::Samples TideSpan::rowsof(std::size_t day) const {
    const HeightInputs& inputs = *inputs_[day];
    Samples rows{24.0 * static_cast<double>(day) - row, row, std::vector<double>(rowsofday)};
    std::array<double, rowsofday> times{};
    for (std::size_t i = 0; i < times.size(); ++i)
        times[i] = 24 + row * (static_cast<double>(i) - 1);
    if (keepsnear(inputs)) {
        rows.doubt = nearheights(inputs, times, rows.heights);
        for (double& height : rows.heights)
            height += inputs.z0level;
        return rows;
    }
    std::array<HeightParts, rowsofday> samples;
    sampleheights(inputs, times[0], row, samples);
    for (std::size_t i = 0; i < samples.size(); ++i)
        rows.heights[i] = samples[i].height;
    return rows;
}

void TideSpan::sumup(std::size_t day, const Samples& rows) {
    const std::span<Sums> sums(&sums_[day * sumsofday], sumsofday);
    for (std::size_t i = 1; i < sums.size(); ++i) {
        const double from = rows.heights[i], to = rows.heights[i + 1];
        sums[i] = {sums[i - 1].heights + row * (from + to) / 2,
                   sums[i - 1].squares + row * (from * from + to * to) / 2};
    }
}

/// `hours` of the day, 0 to 24.
TideSpan::Sums TideSpan::sumsat(std::size_t day, double hours) const {
    const double rows = hours / row;
    const std::size_t before = std::min(static_cast<std::size_t>(rows), sumsofday - 2);
    const double part = rows - static_cast<double>(before);
    const Sums &from = sums_[day * sumsofday + before], &to = sums_[day * sumsofday + before + 1];
    return {std::lerp(from.heights, to.heights, part), std::lerp(from.squares, to.squares, part)};
}

std::optional<double> TideSpan::spreadrange(double from, double to) const {
    if (!(from >= 0 && from < to && to <= hours())) return std::nullopt;
    Sums between;
    for (std::size_t day = static_cast<std::size_t>(from / 24); 24.0 * static_cast<double>(day) < to; ++day) {
        if (!inputs_[day]) return std::nullopt;
        const double start = 24.0 * static_cast<double>(day);
        const Sums before = sumsat(day, std::max(from - start, 0.0)), behind = sumsat(day, std::min(to - start, 24.0));
        between.heights += behind.heights - before.heights;
        between.squares += behind.squares - before.squares;
    }
    const double mean = between.heights / (to - from), square = between.squares / (to - from);
    const double range = 2 * std::sqrt(2 * std::max(0.0, square - mean * mean));
    return std::isfinite(square) ? std::optional(range) : std::nullopt;
}

void TideSpan::splitday(std::size_t day) {
    const double start = 24.0 * static_cast<double>(day), end = start + 24;
    std::vector<double> turns{start};
    const Samples rows = rowsof(day);
    sumup(day, rows);
    findturns(day, rows, true, turns);
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
