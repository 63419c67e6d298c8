// The one-step commands of the main window: next and previous day, next and previous port.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `Nextday` and `Previousday`. Neither updates `tideday`, and the step back leaves `tidemonth` as well.
void nextday(MainContext& context);
void previousday(MainContext& context);

/// `mnuNextPort` and `mnuPrevPort`: the configuration keeps the port that is left. At either end of the area the port
/// stays. Returns false, nothing having been read, when the area holds no port to step to.
bool nextport(MainContext& context);
bool previousport(MainContext& context);

}  // namespace tarvane
