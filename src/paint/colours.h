// The colours of painted pictures and the windows about them, by day, in the dark and at the chart table by night. Must
// not paint.
#pragma once

#include "platform/canvas.h"

namespace tarvane {

struct Colours {
    Rgb paper;     ///< behind the curve by day
    Rgb twilight;  ///< behind it in civil twilight
    Rgb night;
    Rgb band;   ///< behind the heads of the days, and the window
    Rgb field;  ///< behind what is typed and listed
    Rgb grid;
    Rgb text;
    Rgb faint;  ///< of lesser texts
    Rgb curve;
    Rgb passable;  ///< windows of passage: what fills and what hatches them
    Rgb hatch;
    Rgb needed;  ///< the level needed, its name and the windows' times
    Rgb seabed;
    Rgb now;
    Rgb cursor;
    Rgb sea;  ///< of maps
    Rgb land;
    Rgb shore;  ///< the line between them
};

enum class Lighting { day, dark, night };

const Colours& coloursof(Lighting light);

/// The contrast of two colours, 1 to 21, as the web's accessibility guidelines reckon it.
double contrast(Rgb first, Rgb second);

}  // namespace tarvane
