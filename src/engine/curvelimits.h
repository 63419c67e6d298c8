// The drawn series of a day's curve, its scale and the notes that go with it: what the screen, the printer and a
// picture of the curve have in common. Must not draw.
#pragma once

#include <array>
#include <string>

#include "engine/prediction.h"
#include "portdata/configuration.h"

namespace tarvane {

/// The y values of the top and the bottom edge, metres.
struct CurveLimits {
    double curvetop = 1;
    double curvebottom = 0;
};

/// What was last drawn, as the readouts, the printout and the saved texts take it.
struct CurveOnShow {
    std::array<TimedValue, 501> curvesamplescopy{};
    double curvetop = 1;
    double curvebottom = 0;
    std::string curvenote;
    std::string whynot;     ///< why nothing was drawn; empty where the samples are a curve
    double springslag = 0;  ///< hours from the S2 to the M2 maximum; the last value stands when no pair is found
};

/// The two series that the display option asks for, and the note for the rate line.
struct CurveSeries {
    std::array<TimedValue, 501> curve1{};  ///< solid
    std::array<TimedValue, 501> curve2{};  ///< dotted, for the vessel
    std::string curvenote;
    bool drawn = false;   ///< false for an option other than 1, 2, 3: the curve stays empty
    bool dotted = false;  ///< option 3
};

CurveSeries curveseries(const std::array<TimedValue, 501>& samples, int samplecount, const Settings& settings);

/// Limits over rows 1 to samplecount - 1: the whole metre above the greatest height of curve 1 (never below 1), and the
/// least of the samples widened to a whole metre down to -4 in the bands of the method (never above 0). Infinities and
/// what is no number are passed over.
CurveLimits curvelimits(const CurveSeries& series, const std::array<TimedValue, 501>& samples, int samplecount);

}  // namespace tarvane
