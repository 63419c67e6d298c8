// Edits of a trial beyond ports, depths and heights: settings, tidal diamonds, exports and printed pages. Each is false
// when it failed or left something else than was foretold.
#pragma once

#include "killtrial/foretelling.h"
#include "portdata/areaedits.h"

namespace tarvane::killtrial {

bool changesettings(Foretelling& trial);
bool changediamonds(Foretelling& trial, AreaBackups& backups);
bool exporttable(Foretelling& trial);

/// A page into a new PDF; needs an application of the toolkit.
bool printpage(Foretelling& trial);

}  // namespace tarvane::killtrial
