// The one sequence that recomputes and redraws the day on show, and the small steps that commands share. Must not know
// any control.
#pragma once

#include <cstdint>

#include "session/session.h"

namespace tarvane {

/// Recomputes and redraws the day on show, and sets the correction lines and the title.
void refreshday(MainContext& context);

/// What stands in its middle: predicts the day on show, draws it with its marker, refreshes the sun times and turns
/// persistent drawing off. Returns the summer shift.
std::int16_t redrawday(MainContext& context);

/// The first prediction of the sequence alone: summer shift, day, turning points and day table. Returns the shift.
std::int16_t predictdayonshow(Session& session);

/// Why there is no prediction when the sea area's file is gone.
inline constexpr const char* noareafile = "The sea area's file can't be found";

/// And when the file holds fewer ports than the number of the current one.
inline constexpr const char* nosuchport = "The sea area has no port of this number";

/// Sun times of the date on show at the current port into the session.
void refreshsun(Session& session, std::int16_t shift);

/// Makes the port of `settings.currentport` current: its name, place and zone. The name is trimmed or left as read.
void takecurrentport(Session& session, bool trimname);

/// After a change the area on show may lie in the user's own folder: the session goes by that one from now on.
void followarea(Session& session);

/// The port line for a name, "Port    : " and the name.
std::string portboxof(const std::string& name);

/// The current port's name into the port line.
void setportbox(Session& session);

/// Two lines: on accuracy and on time correction, in the order of the dialogs (accuracy first).
std::string accuracyfirst(const std::string& correction);

/// Two lines in the order of the main window (correction first).
std::string correctionfirst(const std::string& correction);

/// Clock time now as hours plus minutes over 60.
double clockhours(const Clock& clock);

/// Enables the menus of ports, calculation and configuration.
void enabletopmenus(Session& session);

/// Empties and hides the list of the month's tides.
void clearmonthlist(Session& session);

}  // namespace tarvane
