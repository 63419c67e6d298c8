// A port's tides over some days of a clock: waters, heights at any moment, windows of passage, light and moon. What the
// planner's window, its pages and files and the terminal show is read off this. Must not show anything.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dates/portclock.h"
#include "engine/waters.h"
#include "planner/access.h"
#include "planner/daylight.h"

namespace tarvane {

/// Which tide a water is, whatever constants it is predicted from: the count of the mean moon's passages, as the port's
/// own lag has them, keeps its number where the water moves by minutes.
struct TideName {
    long tide = 0;
    bool high = false;
    int nth = 0;  ///< of the waters of a kind that share that number, from 0 on

    bool operator==(const TideName&) const = default;
};

/// A water at its minute.
struct PlannedWater {
    Moment moment;
    Water water;
    TideName name{};
};

/// A window between two minutes.
struct PlannedWindow {
    Moment opens, closes;
    Window window;
    std::optional<TideName> opening{};  ///< where it is named: the last water before it at which she doesn't pass
    int part = 0;                       ///< and which of several with one such water it is, from 0 on
};

struct PlannedAccess {
    std::vector<PlannedWindow> windows;
    bool always = false, never = false;
    std::optional<double> greatestheight, leastheight;  ///< of the tide in the plan
};

/// Whether a window is long enough, light enough, and some minute of it on one of the days of the week.
bool wished(const PortClock& clock, const PlannedWindow& window, const WindowWishes& wishes);

/// Springs or neaps by the port's own ranges.
struct SpringTide {
    Moment moment;  ///< of the high water of the greatest or the least range about it
    bool springs = false;
    double springshare = 0;  ///< range of the lunar day about it over the mean spring range, by all its heights
};

/// What is planned.
struct PlanOf {
    HarmonicRecord port;
    std::string iana;  ///< the zone that the port's clocks keep; empty when it isn't known
    Date first{};      ///< on the clock
    int days = 7;      ///< 1 to 366
    ClockChoice clock = ClockChoice::port;
};

/// False for a day that a clock leaves out, as one that crosses the date line has it.
bool hasday(const PortClock& clock, Date date);

/// Why there are no tides on such a day.
inline constexpr const char* nosuchday = "The clock leaves this day out, it does not exist there";

/// Height, tendency and rate at a moment, and what comes next.
struct TideNow {
    double height = 0;                              ///< metres above chart datum
    double rate = 0;                                ///< metres an hour
    std::optional<PlannedWater> nexthigh, nextlow;  ///< turns of the tide: none that a stand has by the way

    const std::optional<PlannedWater>& next() const {  ///< whichever comes first
        return nexthigh && (!nextlow || nexthigh->moment < nextlow->moment) ? nexthigh : nextlow;
    }
};

class Plan {
  public:
    Plan(const PlanOf& of, const Zones& zones);

    const PlanOf& planof() const { return of_; }
    const PortClock& clock() const { return clock_; }
    Moment begins() const { return begins_; }  ///< of its first day on the clock
    Moment ends() const { return ends_; }      ///< of the day behind its last, at once where its only day is left out

    /// Why there are no tides on some day of it; empty when there are on all.
    const char* whynot() const { return whynot_; }

    std::optional<double> height(Moment moment) const { return tides_.height(spanhours(moment)); }
    std::optional<double> rate(Moment moment) const { return tides_.rate(spanhours(moment)); }

    /// In order of time, each within the plan.
    const std::vector<PlannedWater>& waters() const { return waters_; }

    /// Windows by daylight from sunrise to sunset, or with civil twilight.
    PlannedAccess access(const Passage& passage, const WindowWishes& wishes, bool twilight) const;

    /// Sets which window of a passage it is, the same one in every plan that holds some of it; no opening where she has
    /// passed at all waters for a year.
    void nameopening(PlannedWindow& window, const Passage& passage) const;

    /// Light within the plan, as moments.
    std::vector<std::pair<Moment, Moment>> light(bool twilight) const;

    /// None of a port with mainly one tide a day.
    const std::vector<SpringTide>& springsandneaps() const;

    /// Nothing outside the plan or on a day without a prediction.
    std::optional<TideNow> now(Moment moment) const;

  private:
    bool lacksdays() const;
    std::vector<SpringTide> findspringsandneaps() const;
    std::optional<PlannedWater> openingbefore(Moment moment, const Passage& passage) const;
    int partof(const TideSpan& tides, Moment water, Moment opens, const Passage& passage) const;
    double spanhours(Moment moment) const;
    Moment momentof(double spanhours) const;

    PlanOf of_;
    PortClock clock_;
    Moment begins_, ends_;
    Moment origin_;  ///< of the span's hours
    TideSpan tides_;
    const char* whynot_ = "";
    Light light_;                       ///< in the span's hours
    std::vector<PlannedWater> around_;  ///< of the plan and some days on both sides
    std::vector<PlannedWater> waters_;
    mutable std::optional<std::vector<SpringTide>> springtides_;  ///< once they were asked for
};

}  // namespace tarvane
