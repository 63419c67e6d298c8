// Days beyond a plan's: plans on end, of a year at most, and the windows across them. Must not keep the plans.
#pragma once

#include <string>
#include <vector>

#include "planner/plan.h"

namespace tarvane {

/// What is planned of `of`, whose days may be any number, in order, no more than `most` days each.
std::vector<PlanOf> plansonend(const PlanOf& of, int most = 366);

/// Windows of plans on end as if these were one: a window over the midnight between two is joined before any wish is
/// asked.
class WindowRun {
  public:
    /// `clock` is the plans' and outlives this.
    WindowRun(const PortClock& clock, const WindowWishes& wishes) : clock_(clock), wishes_(wishes) {}

    /// Takes the next plan and its windows, which were asked for without wishes. Returned: those that are complete now
    /// and wished.
    std::vector<PlannedWindow> add(const Plan& plan, const PlannedAccess& access);

    /// The last one, when it is wished.
    std::vector<PlannedWindow> finish();

    /// Always, never and the tide's heights over all plans, and the windows of nowhere; `whynot` as a plan has it.
    const PlannedAccess& overall() const { return overall_; }
    const std::string& whynot() const { return whynot_; }

  private:
    void join(const Plan& plan, std::vector<PlannedWindow>& windows);
    void takeoverall(const Plan& plan, const PlannedAccess& access);

    const PortClock& clock_;
    WindowWishes wishes_;
    std::optional<PlannedWindow> open_;  ///< reaches to the end of the last plan
    bool begun_ = false, predicted_ = false;
    PlannedAccess overall_;
    std::string whynot_;
};

}  // namespace tarvane
