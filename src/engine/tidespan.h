// The tide of one port over days on end, as heights by the hour and as the runs in which it only rises or only falls.
// Each day of the port's zone time has its own constants, as the day's prediction has them, so that the height may step
// at midnight; a step is never a tide. Must not know clocks, depths or draughts.
#pragma once

#include <optional>
#include <vector>

#include "dates/calendar.h"
#include "engine/height.h"

namespace tarvane {

/// A stretch in which the tide only rises or only falls; the next begins where it ends, or after a step at midnight.
/// Times are hours of zone time from 00:00 of the span's first day, heights metres above chart datum.
struct TideRun {
    double from = 0, to = 0;
    double first = 0, last = 0;  ///< the heights at its ends
    std::size_t day = 0;         ///< of the span, from 0
};

class TideSpan {
  public:
    /// `days` from `first` on, 1 to 400, both in the port's zone time.
    TideSpan(const HarmonicRecord& port, Date first, int days);

    Date firstday() const { return first_; }
    int days() const { return static_cast<int>(inputs_.size()); }
    double hours() const { return 24.0 * days(); }

    /// The height at `hours`; nothing on a day without a prediction. The span's end is the last moment of its last day.
    std::optional<double> height(double hours) const;

    /// Metres an hour, from the heights 30 s before and behind, both by the constants of that moment's day.
    std::optional<double> rate(double hours) const;

    /// In order of time; days without a prediction are left out.
    const std::vector<TideRun>& runs() const { return runs_; }

    /// When the tide stands at `level` within a run that passes it, to a second and better.
    double passing(const TideRun& run, double level) const;

    /// The range of a cosine that spreads its heights as those between two moments are spread, within a thousandth;
    /// nothing outside the span, about a day without a prediction and where they are out of all measure.
    std::optional<double> spreadrange(double from, double to) const;

    /// Whether the heights by a day's constants, also beyond its ends, have a high or a low water between two moments.
    bool turnsbeyond(std::size_t day, double from, double to, bool high) const;

    /// Why some day, or the whole port, has no prediction; empty when all have.
    const char* whynot() const { return whynot_; }

  private:
    struct Samples;

    /// From a day's start on, of the heights and of their squares, times hours.
    struct Sums {
        double heights = 0, squares = 0;
    };

    double heighton(std::size_t day, double hours) const;
    void splitday(std::size_t day);
    Samples rowsof(std::size_t day) const;
    void sumup(std::size_t day, const Samples& rows);
    Sums sumsat(std::size_t day, double hours) const;
    double riseafter(std::size_t day, const Samples& samples, std::size_t i) const;
    void findturns(std::size_t day, const Samples& samples, bool finer, std::vector<double>& turns) const;
    double turnwithin(std::size_t day, double from, double to, bool high) const;

    Date first_;
    std::vector<std::optional<HeightInputs>> inputs_;
    std::vector<TideRun> runs_;
    std::vector<Sums> sums_;  ///< at each ten minutes of each day, both ends included
    const char* whynot_ = "";
};

}  // namespace tarvane
