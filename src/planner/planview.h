// What the planner holds: the port and the days in hand, the plan that follows from them, the question and its answer,
// the part that the picture shows. Must not know any control.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "planner/plan.h"
#include "planner/planpicture.h"
#include "planner/planquestion.h"
#include "planner/plansettings.h"
#include "portdata/portknown.h"
#include "session/session.h"

namespace tarvane {

struct PlanView {
    PlanSettings settings;
    PlanSettings kept;  ///< as they were read or written last
    std::string area;   ///< path of the sea area's file
    std::int16_t number = 0;
    HarmonicRecord port;
    std::string portname;
    std::vector<std::string> ports;  ///< names of the area's ports, in file order
    PortKnown known;
    Date first{};
    Date today{};                   ///< as it was when the clock was last looked at
    std::array<float, 3> stored{};  ///< draught, clearance and depth of the classic window
    PlanQuestion question;
    bool bottomtyped = false;    ///< since the port came up
    QuestionRead read;           ///< of the last question that could be meant; refused where there was none yet
    std::string refusal;         ///< why the one that stands in the fields can't; empty when it can
    std::shared_ptr<Plan> plan;  ///< none without a port
    std::string whynot;          ///< why there is none
    PlannedAccess access;
    Moment from{}, to{};             ///< the part shown
    std::optional<Moment> cursor{};  ///< where the user looks
};

/// At the session's port and its day on show.
PlanView openplanview(const MainContext& context);

/// Goes over to the session's port where that is another by now, or its constants or the area's list are; days that
/// began today begin today there. True when anything changed.
bool followport(const MainContext& context, PlanView& view);

/// The days and the clock. A span is 1 to 31 days, of years 1 to 9999: no days behind them are shown. All of the plan
/// is shown then.
void showdays(const MainContext& context, PlanView& view, Date first, int days);
void showclock(const MainContext& context, PlanView& view, ClockChoice clock);

/// On or back by days. Of a part that was shown the same hours are shown again, as many days on.
void stepdays(const MainContext& context, PlanView& view, int days);

/// The day of the clock in force on which it is now.
Date todayof(const MainContext& context, const PlanView& view);

/// To be asked from time to time: days that began today begin today again once midnight has passed on the clock in
/// force. True when they were changed.
bool followmidnight(const MainContext& context, PlanView& view);

/// The question as it stands in the fields; one that can't be meant changes nothing but the refusal.
void askquestion(const MainContext& context, PlanView& view, const PlanQuestion& question);

/// The wishes of the settings were changed, or the question is asked no more.
void answeranew(PlanView& view);

/// Writes what has changed of the settings. False when it can't be; why is told in the answer line.
bool keepsettings(MainContext& context, PlanView& view);

/// The same port, clock and question over the whole year that the first day lies in: for what is saved, not shown.
PlanView yearview(const MainContext& context, const PlanView& view);

/// Shows less or more of the plan about a moment that keeps its place: 2 doubles the time shown. At least 3 hours.
void zoomplan(PlanView& view, double factor, Moment about);

/// Moves the part shown, within the plan.
void moveplan(PlanView& view, std::chrono::seconds by);

/// Shows one day of the plan, or all of it.
void showday(PlanView& view, Date date);
void showwhole(PlanView& view);

/// Puts the cursor at a moment of the plan, or the nearest; the part shown follows, with a far moment in its middle.
void putcursor(PlanView& view, Moment at);

/// What is asked of the tide; nothing when the question is not asked, or none could be meant yet.
std::optional<Passage> passageof(const PlanView& view);

/// "Cherbourg, 18 to 24 July 2026, port's clock (Europe/Paris)"
std::string plantitle(const PlanView& view, const Locale& locale);

/// The answer to "When can I go?" from `now` on, or why the fields can't be meant.
std::string answertext(const PlanView& view, const Locale& locale, std::optional<Moment> now = {});

/// What the clock is by, what heights are above and what isn't counted.
std::string planfoot(const PlanView& view);

}  // namespace tarvane
