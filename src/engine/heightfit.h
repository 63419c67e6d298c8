// The few numbers that one day's readings at a place can carry: a change of mean level, one factor on all amplitudes
// and one shift in time, found by least squares against the same height formula that draws the curve. Must not read
// files.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "engine/height.h"

namespace tarvane {

/// A height read on the spot: decimal hours of the day in the zone time of the constants, and metres above their datum.
struct Reading {
    double time = 0;
    double height = 0;
};

/// The three numbers of a fit.
struct FitChange {
    double level = 0;   ///< metres added to the mean level
    double factor = 1;  ///< on the tide's whole height about that level
    double shift = 0;   ///< hours by which the tide comes later
};

/// How far a curve lies from the readings.
struct FitMisses {
    double rms = 0;       ///< metres, over the readings kept
    double greatest = 0;  ///< metres, reading less curve, signed
    double time = 0;      ///< hours, of the greatest
};

struct HeightFit {
    std::string refusal;  ///< why nothing was fitted, a sentence; empty when it was
    FitChange change;
    FitChange uncertainty;  ///< standard errors of the three, from the normal equations
    FitMisses before, after;
    std::vector<std::size_t> rejected;  ///< places of the readings left out as wild
    HarmonicConstants constants;        ///< the constants changed so
};

/// Constants of a tide that is `change.level` higher, `change.factor` times as great and `change.shift` hours later,
/// their speeds being those of `rates`. Every amplitude takes the factor a, and every phase lag g the shift by its own
/// speed. The shallow-water terms are F4 = H(M4)/H(M2)^2, f4 = g(M4) - 2g(M2), F6 = H(M6)/H(M2)^3, f6 = g(M6) - 3g(M2):
/// with all heights times a F4 becomes F4/a and F6 becomes F6/a^2, and since M4 and M6 turn at two and three times the
/// speed of M2, f4 and f6 stay.
HarmonicConstants changedconstants(const HarmonicConstants& constants, const SpeedsAndRates& rates,
                                   const FitChange& change);

/// Fits the three numbers to readings of day `dayofyear` of `year`. Robust: Gauss-Newton with Tukey's biweight on the
/// residuals, scaled by their median (Holland and Welsch 1977), then plain least squares without the readings that lie
/// further than four of these scales, and at least 0.15 m, off. Refused, with the reason: fewer than ten readings,
/// readings that are no numbers or outside 0 to 24 hours, that span less than half a tide (6.2 hours) or differ by less
/// than 0.1 m, constants without a tide, a day without orbital constants, and readings that no such change brings near
/// the curve (misses over 0.4 of the readings' own spread).
HeightFit fitheights(const HarmonicConstants& constants, int year, int dayofyear, std::span<const Reading> readings);

}  // namespace tarvane
