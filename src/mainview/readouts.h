// What keeps the main window alive between commands: the readout that follows the mouse, and the first timer's ticks. A
// mouse move touches the passing layer alone.
#pragma once

#include "session/session.h"

namespace tarvane {

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
