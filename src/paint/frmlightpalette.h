// The toolkit's palette of the colours of a lighting. Must not choose one for a window that doesn't ask.
#pragma once

#include <QLineEdit>
#include <QPalette>

#include "paint/colours.h"

namespace tarvane {

QPalette paletteof(const Colours& colours);

/// Of a window that follows the desktop: red at night, else light or dark as the desktop is.
Lighting lightingof(bool night);

/// Gives the mark in a box that empties it the colour of its text: the style's own is light by night.
void lightclearmark(QLineEdit& box, const Colours& colours);

}  // namespace tarvane
