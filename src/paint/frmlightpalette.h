// The toolkit's palette of the colours of a lighting. Must not choose one for a window that doesn't ask.
#pragma once

#include <QPalette>

#include "paint/colours.h"

namespace tarvane {

QPalette paletteof(const Colours& colours);

/// Of a window that follows the desktop: red at night, else light or dark as the desktop is.
Lighting lightingof(bool night);

}  // namespace tarvane
