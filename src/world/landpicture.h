// Land and its coast as far as a map shows them. Must not paint anything else.
#pragma once

#include "paint/colours.h"
#include "world/coast.h"
#include "world/mapview.h"

namespace tarvane {

void paintland(Canvas& canvas, const Coast& coast, const MapView& view, const Colours& look);

}  // namespace tarvane
