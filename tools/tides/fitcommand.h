// `tides fit`: constants for a place between two ports, fitted to heights read there, as the workshop does it. Must not
// write a file.
#pragma once

#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "engine/heightfit.h"
#include "tides/environment.h"
#include "tides/fitoptions.h"
#include "tides/readingscsv.h"

namespace tarvane {

/// All that the forms of a result are written from.
struct FittedPlace {
    std::string areaname;
    std::array<std::int16_t, 2> numbers{};  ///< of the two ports
    std::array<std::string, 2> names;
    std::string name;  ///< of the place; empty when not given
    std::optional<Position> position;
    DayOfReadings day;
    HarmonicRecord record;  ///< the place with the constants found
    HeightFit fit;
    std::string acrossnorth;  ///< phases of which a plain mean was taken that points the other way; empty for none
};

/// Runs the command on the arguments behind "fit". Returned: the exit status, 0; or 2 with one line on `err` and
/// nothing on `out` (but what a full disk cut off). A doubtful mean is told on `err`.
int runfit(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
           std::ostream& err);

/// The result for a sailor, as one row of a table of ports, and with all its figures.
void fitastext(const FittedPlace& place, std::ostream& out);
void fitascsv(const FittedPlace& place, std::ostream& out);
void fitasjson(const FittedPlace& place, std::ostream& out);

}  // namespace tarvane
