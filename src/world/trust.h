// How far a port's tides are to be trusted, and the mark that tells it beside a name: told by its shape alone, so that
// no eye needs its colour. Must not read files.
#pragma once

#include <optional>

#include "paint/colours.h"
#include "portdata/aboutwords.h"

namespace tarvane {

/// By the grades of what ships; a port that the user entered or changed is his own; unknown where no table tells of it.
enum class Trust { close, fair, rough, own, unknown };

Trust trustof(const std::optional<PortAbout>& about, bool own);
Trust trustof(const PortKnown& known);

/// "close", "fair", "rough", "entered by you" or "not known".
const char* trustword(Trust trust);

/// A disc for close, one filled to its half for fair, a ring for rough, a diamond for the user's own, a dash for what
/// isn't known.
void painttrust(Canvas& canvas, Place middle, double radius, Trust trust, const Colours& colours);

/// A circle's line.
void paintring(Canvas& canvas, Place middle, double radius, const LineLook& look);

}  // namespace tarvane
