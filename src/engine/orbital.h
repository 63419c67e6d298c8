// Orbital constants of a day: the four constituent groups folded into one angle and one factor each. They depend on the
// date only. Method: the Admiralty simplified harmonic form. Must not read files or know any port.
#pragma once

#include <cstdint>
#include <optional>

namespace tarvane {

/// A day's angles at 00:00, whole degrees 0 to 360, and amplitude factors, for the groups of M2, S2, K1 and O1.
struct AnglesAndFactors {
    std::int16_t ma = 0;
    double mf = 0;
    std::int16_t sa = 0;
    double sf = 0;
    std::int16_t ka = 0;
    double kf = 0;
    std::int16_t oa = 0;
    double of = 0;
};

/// How the angles turn (degrees per hour) and the factors change (per hour) from one day's 00:00 to the next.
struct SpeedsAndRates {
    double dam = 0, das = 0, dak = 0, dao = 0;
    double dfm = 0, dfs = 0, dfk = 0, dfo = 0;
};

/// What the heights of any port stand on from a day's 00:00: its constants and those of the day after it.
struct OrbitalSpan {
    AnglesAndFactors day;
    AnglesAndFactors next;
    SpeedsAndRates rates;
};

/// Angle into 0 to 360 inclusive: 360 itself gives 0, yet a value that comes down to 360 by subtraction stays 360.
/// Infinities and NaN come back as they are.
double wrap360(double x);

/// Degrees to radians with this engine's own pi.
double degtorad(double x);

/// Angle in degrees, 0 to 360, of a sine part a and a cosine part b, worked out piecewise.
double polarangle(double a, double b);

/// Radius and angle (degrees, as `polarangle`) of a sine part a and a cosine part b.
void polarform(double a, double b, double& radius, double& angle);

/// Sine and cosine parts of an angle in degrees and a radius; for an angle outside 0 to 360 the outputs stay untouched.
void vectorparts(double angle, double radius, double& sinepart, double& cosinepart);

/// The constants of a day. `daynumber` is the day of `year` from 1; 0 and days past the year's end extend from its row.
/// Nothing where the constants divide by zero (1 January 1990).
std::optional<AnglesAndFactors> orbitalconstants(int year, int daynumber);

/// The same for a day and the day after it. Nothing where either has none.
std::optional<OrbitalSpan> orbitalspan(int year, int daynumber);

/// Speeds and rates between the constants of a day and of the day after it.
SpeedsAndRates speedsandrates(const AnglesAndFactors& day, const AnglesAndFactors& next);

}  // namespace tarvane
