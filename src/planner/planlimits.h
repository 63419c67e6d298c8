// Between which values the planner's questions are taken, in its window, its settings and at the terminal alike. Must
// not know who asks.
#pragma once

namespace tarvane {

struct PlanLimit {
    double least, most;

    bool holds(double value) const { return value >= least && value <= most; }
};

/// The days that a plan on the screen spans at most; the least is one.
inline constexpr int mostplandays = 31;

/// Metres, and minutes of a window.
namespace planlimits {
inline constexpr PlanLimit draught{0, 50};
inline constexpr PlanLimit clearance{0, 50};
inline constexpr PlanLimit bottom{-50, 1000};
inline constexpr PlanLimit bridge{0, 200};
inline constexpr PlanLimit airdraught{0, 200};
inline constexpr PlanLimit bridgelevel{-50, 50};
inline constexpr PlanLimit ceiling{-50, 100};  ///< a bridge above its level, less the mast
inline constexpr PlanLimit leastminutes{0, 7 * 24 * 60};
inline constexpr PlanLimit days{1, mostplandays};
}  // namespace planlimits

}  // namespace tarvane
