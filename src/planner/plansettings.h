// What the planner remembers between runs, in a file of its own beside the configuration. Must not touch that one.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "dates/portclock.h"
#include "files/wholefiles.h"
#include "planner/access.h"
#include "planner/planlimits.h"
#include "platform/drawings.h"
#include "portdata/configuration.h"
#include "portdata/keptfile.h"

namespace tarvane {

/// A bridge over the way to a port, metres.
struct Bridge {
    double height = 0;  ///< above its level
    double level = 0;   ///< above chart datum

    bool operator==(const Bridge&) const = default;
};

struct PlanSettings {
    bool openatstart = false;
    bool night = false;  ///< red on black
    int days = 7;        ///< 1 to the most
    ClockChoice clock = ClockChoice::port;
    std::optional<Paper> paper;  ///< without one the locale's

    bool asked = true;  ///< "When can I go?" is answered
    bool twilight = false;
    Daylight daylight = Daylight::none;
    int leastminutes = 0;
    Weekdays weekdays = everyweekday;
    /// Metres; those that were typed in the planner.
    std::optional<double> draught, clearance, airdraught;
    /// By port, "UK.hc/Cherbourg".
    std::map<std::string, double> bottoms;
    std::map<std::string, Bridge> bridges;

    KeptState state;  ///< of the file
};

/// Where they are kept.
std::string plansettingspath(const ProgramFolders& folders);

/// Those of a first start for a file that isn't there or isn't one of these; a value that is out of its range or of
/// another kind is left at that of a first start.
PlanSettings readplansettings(const std::string& path);

/// Writes what is other in `now` than it was in `before`; all else stays as it stands there, where another run of the
/// program may have changed it. A copy is kept of a file that isn't understood whole.
WriteOutcome changeplansettings(const std::string& path, const PlanSettings& before, const PlanSettings& now);

/// What the user has to be told of the file, a sentence, once; empty when that is nothing.
std::string tellplansettings(const std::string& path);

}  // namespace tarvane
