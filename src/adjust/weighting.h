// A place's own position and zone as they are typed, and its constants weighed by the distances from the two ports.
// Must not know any control.
#pragma once

#include <string>

#include "adjust/workspace.h"

namespace tarvane {

/// The texts of the place as typed: coordinates in the edit form ("50.45.00N", "001.30.00W"), the zone in hours.
struct PlaceTexts {
    std::string name, latitude, longitude, zone;
};

/// What the boxes open with: what was given before, else nothing but the zone that the two ports share.
PlaceTexts placetexts(const AdjustWorkspace& workspace);

/// How the texts are understood: " 50.45N   1.30W, 12 km from Alder Quay (weight 0.71), ...", or what is missing.
struct PlaceUnderstood {
    bool good = false;       ///< a place that can be kept
    bool weighable = false;  ///< and two ports to weigh it between
    GivenPlace place;
    std::string words;
};
PlaceUnderstood understandplace(const AdjustWorkspace& workspace, const PlaceTexts& texts);

/// Fills the boxes with the constants at the place and remembers it for saving. The boxes before can be taken back.
void weighbydistance(AdjustWorkspace& workspace, const GivenPlace& place);

/// The mean of the two ports' phases on the circle, degrees with two decimals at most.
std::string circlemeantext(const AdjustWorkspace& workspace, const ConstantRow& row);

/// The phases that lie across north take their mean on the circle; which is told. Those before can be taken back.
std::string takecirclemeans(AdjustWorkspace& workspace);

/// The same for one row's box alone.
void takecirclemean(AdjustWorkspace& workspace, std::size_t row);

}  // namespace tarvane
