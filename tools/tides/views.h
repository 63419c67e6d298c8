// The views that `tides` can show, each in its own file with its columns, its rows and its text, and what they share:
// the ports in hand and a day of one. A new view is a new file and its line in the table. Must not parse arguments or
// decide what a fault is.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "dates/isomoments.h"
#include "engine/prediction.h"
#include "planner/plan.h"
#include "portdata/configuration.h"
#include "portdata/portknown.h"
#include "sunmoon/suntimes.h"
#include "tides/absences.h"
#include "tides/rows.h"

namespace tarvane {

struct PortInHand {
    std::string name;
    std::string subject;   ///< as a line about it names it: "Dover, port 15", with its area where there are several
    PredictedPort port;    ///< its records as they were read, once
    PortKnown known = {};  ///< nothing where nobody will read it
};

/// "Dover, port 15".
std::string portsubject(const std::string& name, std::int16_t number);

/// What is asked of the planner's views.
struct PlanAsked {
    ClockChoice clock = ClockChoice::port;
    std::optional<Date> date;  ///< the day that the clock shows at each port when left out
    Moment now;
    const Zones* zones = nullptr;
    AreaKnown known;  ///< of the area: which zones the ports keep, and who made them
    Passage passage;
    WindowWishes wishes;
};

/// All that a view works on.
struct ViewContext {
    Settings settings;
    std::vector<PortInHand> ports;  ///< those asked for, or all of the area's for the list
    std::string areaname;
    bool several = false;   ///< it is one of several areas, each with its own context
    bool opens = true;      ///< nothing has been shown before it
    bool concludes = true;  ///< nothing is shown behind it
    Date dateonshow{};      ///< the date asked for
    Date first{};           ///< it, or the first of its month
    int days = 1;
    PlanAsked plan;
};

class CalendarWriter;

struct View {
    const char* option;  ///< empty for the high and low waters
    const char* help;    ///< what it shows
    bool needsarea;      ///< it reads a sea area file
    bool needsport;      ///< it is about the ports asked for
    bool wholemonth;     ///< its days are those of the month, however many are asked for
    std::vector<Column> (*columns)();
    void (*rows)(const ViewContext&, RowWriter&, Absences&);
    void (*text)(const ViewContext&, std::ostream&);
    bool planned = false;        ///< by the planner: on a clock of the port's, to the minute
    bool hasboat = false;        ///< it is about a boat's passage
    bool presentmoment = false;  ///< it is about no day
    void (*calendar)(const ViewContext&, CalendarWriter&, Absences&) = nullptr;
};

extern const View watersview, samplesview, monthview, sunview, orbitalview, listview, planwatersview, accessview,
    nowview, aboutview;

/// Every view that an option asks for; the first is the one shown when none is asked for.
std::span<const View* const> views();

/// Predicts a day of a port under the context's summer choice, turning points included.
void predictport(const ViewContext& context, const PortInHand& port, Date date, Prediction& prediction);

/// Notes that a port has no prediction for a day; does nothing when it has one.
void noteabsence(Absences& absences, const PortInHand& port, const Prediction& prediction, Date date);

/// The sun of a day at a port under the context's summer choice.
SunHours sunofport(const ViewContext& context, const PortInHand& port, Date date);

/// Hours that clock times of a day at a port are ahead of universal time; `shift` is the day's, -1 or 0.
int hoursahead(const PortInHand& port, std::int16_t shift);

/// The charted depth that the port's heights include, metres.
float includeddepth(const PortInHand& port);

/// The date of an hour of a day's prediction: 24:00 is the next day's.
Date dateofhour(Date day, double hour);

/// Calls `act` for every day in turn.
template <typename Act>
void eachday(const ViewContext& context, Act act) {
    for (int day = 0; day < context.days; ++day)
        act(context.first + std::chrono::days(day));
}

}  // namespace tarvane
