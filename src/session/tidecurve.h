// The pictures of the main window: the tide curve, the constituents view, the sun lines, the red marker and the springs
// and neaps bar. They draw what stands in the session and must not predict.
#pragma once

#include "session/session.h"

namespace tarvane {

/// Draws the day into the picture, its hour labels on the window and the bar; in the constituents view the
/// constituents. Sets the curve on show and leaves persistent drawing off.
void drawtidecurve(Session& session, MainSurfaces& surfaces);

/// The dashed lines at sunrise and sunset, with their names.
void drawsunlines(Session& session, DrawSurface& picture);

/// The red line at `timenow`, and the readout of that moment.
void drawtimemarker(Session& session, DrawSurface& picture);

/// The red line where it was last drawn, as a picture of another size needs it.
void drawmarkerline(const Session& session, DrawSurface& picture);

/// The row of a time in decimal hours: to the nearest ten minutes, halves to even, from 1 for 00:00 and inside the
/// samples. What is no number gives 1.
std::size_t sampleindex(double hours, int samplecount);

}  // namespace tarvane
