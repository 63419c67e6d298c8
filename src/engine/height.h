// The height of the tide at one moment, line by line of the Admiralty simplified harmonic form: `heightformula`, the
// body of a day's prediction, and `heightat`, the stand-alone routine. They differ on purpose and are not to be
// unified.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>

#include "engine/orbital.h"
#include "portdata/configuration.h"

namespace tarvane {

// kept: this form's own degrees to radians, which is not pi/180 and not that of degtorad
inline constexpr double formradians = 0.017453925199433;

/// The constants of a place as one prediction takes them: phases in degrees, amplitudes and levels in metres.
struct HarmonicConstants {
    double M2g = 0, M2Hm = 0, S2g = 0, S2Hm = 0, K1g = 0, K1Hm = 0, O1g = 0, O1Hm = 0;
    double SF4 = 0, LF4 = 0, SF6 = 0, LF6 = 0;
    double Z0 = 0;
    double DeltaZ0 = 0;  ///< the month's seasonal addition
};

/// A port's constants with the seasonal choice made: for tidemonth 1 to 12 the month's M2 amplitude and level addition;
/// for any other the annual amplitude and no addition.
HarmonicConstants seasonalconstants(const HarmonicRecord& port, int tidemonth);

/// The parts of one height, metres.
struct HeightParts {
    double height = 0;
    double m2 = 0, s2 = 0, k1 = 0, o1 = 0, f4 = 0, f6 = 0;
};

/// What `heightformula` works on: a base day's constants, made ready once for all its samples.
struct HeightInputs {
    HarmonicConstants constants;
    AnglesAndFactors day;
    AnglesAndFactors next;  ///< the day after
    SpeedsAndRates rates;
    double z0level = 0;    ///< Z0 with the month's addition
    double userdepth = 0;  ///< added to the height unless currentoutput is 1
    float currentoutput = 1;
};

/// What the heights of one span of time stand on: a port's record in memory, the seasonal values of `tidemonth` (1 to
/// 12; any other takes the annual ones), and the orbital constants of `baseday` of `year` and of the day after it, from
/// whose 00:00 all times count. `userdepth` in metres is added unless `currentoutput` is 1. Nothing where the constants
/// divide by zero.
std::optional<HeightInputs> heightinputs(const HarmonicRecord& port, int tidemonth, int year, int baseday,
                                         float userdepth = 0, float currentoutput = 1);

/// The same from orbital constants in hand.
HeightInputs heightinputs(const HarmonicRecord& port, int tidemonth, const OrbitalSpan& span, float userdepth = 0,
                          float currentoutput = 1);

/// The height `t` hours after 00:00 of the base day, and its parts. With `trace` set the form's lines are written to
/// it.
// kept: in normal running the lines are off
HeightParts heightformula(const HeightInputs& inputs, double t, std::ostream* trace = nullptr);

/// Fills `samples` with the heights at `start` hours after 00:00 of the base day and every `step` hours from there,
/// each time being the one before plus the step. The constants fit the base day and the day after; beyond them heights
/// drift.
void sampleheights(const HeightInputs& inputs, double start, double step, std::span<HeightParts> samples);

/// Height at an instant and three minutes later.
struct InstantHeight {
    double first = 0;
    double second = 0;
    double time = 0;           ///< decimal hours of `second`
    std::string risefalltext;  ///< "metres (Falling)", "metres (Rising)" or empty
    bool defined = true;       ///< false where the day's constants divide by zero
    float userdepth = 0;       ///< the port's charted depth as read beside it, metres
};

/// Height of `settings.currentport` at `time` hours (0 becomes 1/60; from 23.8 on 1/6 is taken off) of day `daynumber`
/// of `year`, the seasonal choice by `tidemonth`. Reads both files. Unlike the curve it takes no monthly level, no user
/// depth, and the M2 rate for all factors.
// kept: the workspace that adjusts constants takes the ends of its day from it; nothing here does yet
InstantHeight heightat(const Settings& settings, int tidemonth, int year, int daynumber, double time,
                       std::ostream* trace = nullptr);

/// The same for constants in hand.
InstantHeight heightofconstants(const HarmonicConstants& constants, const AnglesAndFactors& day,
                                const AnglesAndFactors& next, double time, std::ostream* trace = nullptr);

/// A time (decimal hours) and day in the port's zone. Below 0 the day stays as it is: only the wrap forward is handed
/// on.
void zonetime(double time, int day, std::int16_t zonehours, double& zonedtime, int& zoneday);

}  // namespace tarvane
