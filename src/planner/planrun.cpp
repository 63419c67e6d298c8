#include "planner/planrun.h"

#include <algorithm>
#include <cmath>

namespace tarvane {
namespace {

using std::chrono::minutes;

/// The second lies right behind the first.
PlannedWindow joined(const PlannedWindow& first, const PlannedWindow& second) {
    PlannedWindow both = first;
    both.closes = second.closes;
    Window& window = both.window;
    window.closes = window.opens + (second.closes - first.opens) / minutes(1);
    window.greatestheight = std::max(window.greatestheight, second.window.greatestheight);
    window.leastmargin = std::min(window.leastmargin, second.window.leastmargin);
    window.daylight += second.window.daylight;
    window.daylightminutes = std::lround(60 * window.daylight);
    window.cutatend = second.window.cutatend;
    window.after = second.window.after;
    return both;
}

}  // namespace

std::vector<PlanOf> plansonend(const PlanOf& of, int most) {
    std::vector<PlanOf> plans;
    for (int done = 0; done < of.days; done += most) {
        plans.push_back(of);
        plans.back().first = of.first + std::chrono::days(done);
        plans.back().days = std::min(most, of.days - done);
    }
    return plans;
}

/// A window that is cut at the edge between two plans goes on behind it; where it doesn't the water turned within that
/// minute, if there is a prediction on both sides.
void WindowRun::join(const Plan& plan, std::vector<PlannedWindow>& windows) {
    const bool cut = !windows.empty() && windows.front().window.cutatstart && windows.front().opens == plan.begins();
    if (open_ && cut && windows.front().opens - open_->closes <= minutes(1)) {
        windows.front() = joined(*open_, windows.front());
    } else {
        if (cut && predicted_) {
            windows.front().window.cutatstart = false;
            windows.front().window.before = {};
        }
        if (open_ && plan.height(plan.begins())) {
            open_->window.cutatend = false;
            open_->window.after = {};
        }
        if (open_) windows.insert(windows.begin(), *open_);
    }
    open_.reset();
}

void WindowRun::takeoverall(const Plan& plan, const PlannedAccess& access) {
    overall_.always = access.always && (!begun_ || overall_.always);
    overall_.never = access.never && (!begun_ || overall_.never);
    if (access.greatestheight) {
        overall_.greatestheight =
            std::max(overall_.greatestheight.value_or(*access.greatestheight), *access.greatestheight);
        overall_.leastheight = std::min(overall_.leastheight.value_or(*access.leastheight), *access.leastheight);
    }
    if (whynot_.empty()) whynot_ = plan.whynot();
}

std::vector<PlannedWindow> WindowRun::add(const Plan& plan, const PlannedAccess& access) {
    std::vector<PlannedWindow> windows = access.windows;
    if (begun_) join(plan, windows);
    takeoverall(plan, access);
    begun_ = true;
    predicted_ = plan.height(plan.ends() - minutes(1)).has_value();
    if (!windows.empty() && windows.back().window.cutatend && plan.ends() - windows.back().closes <= minutes(1)) {
        open_ = windows.back();
        windows.pop_back();
    }
    std::erase_if(windows, [&](const PlannedWindow& each) { return !wished(clock_, each, wishes_); });
    return windows;
}

std::vector<PlannedWindow> WindowRun::finish() {
    if (!open_ || !wished(clock_, *open_, wishes_)) return {};
    return {*open_};
}

}  // namespace tarvane
