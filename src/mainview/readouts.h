// What keeps the main window alive between commands: the title line with the present height, the readout that follows
// the mouse, and the timers' ticks. A mouse move touches the passing layer alone.
#pragma once

#include "mainview/session.h"

namespace tarvane {

/// The title line: height, tendency and rate at today's clock time of the day on show, whichever day that is. It stays
/// as it was when there is no time difference to reckon a rate with.
void rewritetitle(Session& session, const Clock& clock);

/// One tick of the 300 ms timer: at the second the curve is drawn once more, the window then being on the screen.
struct FirstDrawing {
    int ticks = 0;
};
/// True if the tick drew.
bool timer1tick(FirstDrawing& first, Session& session, MainSurfaces& surfaces);

/// The pointer at x hours over the picture. False if the readout is frozen or has nothing to tell.
bool picturemousemove(Session& session, DrawSurface& picture, double x);

/// A mouse button pressed on the picture: freezes or unfreezes the readout.
void picturemousedown(Session& session);

/// The values beside the constituents at a row.
LayerReadout layerreadout(const Prediction& prediction, std::size_t row);

}  // namespace tarvane
