// The constituents view: turning it on and off. The drawing stands with the tide curve, the readout with the readouts.
#pragma once

#include "session/session.h"

namespace tarvane {

/// `mnuLayersShow`: turns the curve into its constituents or back, and predicts and draws the day on show anew.
void togglelayers(MainContext& context);

/// A click on one of the check boxes: draws the constituents that are ticked now.
void ticklayers(MainContext& context, const LayerChoice& ticked);

/// The form of date that the view's date line takes: parts in the locale's order, weekday behind.
std::string datelineinorder(const MainContext& context, Date date);

}  // namespace tarvane
