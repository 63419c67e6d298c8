#include "engine/height.h"

#include <cmath>
#include <ostream>

#include "engine/vectorstate.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

/// One value for each of M2, S2, K1, O1.
struct Four {
    double m2 = 0, s2 = 0, k1 = 0, o1 = 0;
};

/// The lines of the form at one moment.
struct Workings {
    double time = 0;
    Four phase;      ///< lines 15 to 19, radians
    Four factor;     ///< lines 22 to 27
    Four amplitude;  ///< line 29
    double SM = 0, SS = 0, CM = 0, CS = 0;
    double X = 0, Y = 0, radius = 0, alpha = 0;
    double d4 = 0, H4 = 0, d6 = 0, H6 = 0;
    HeightParts parts;
};

Four lags(const HarmonicConstants& constants, const AnglesAndFactors& day) {
    return {constants.M2g + day.ma, constants.S2g + day.sa, constants.K1g + day.ka, constants.O1g + day.oa};
}

double wraponce(double phase) {
    if (phase >= 360) phase -= 360;
    if (phase < 0) phase += 360;
    return phase;
}

/// The other order: the lag is wrapped down before the turn, the phase up after it.
double wraplagfirst(double lag, double turn) {
    if (lag >= 360) lag -= 360;
    double phase = lag - turn;
    if (phase < 0) phase += 360;
    return phase;
}

/// From the amplitudes to the sum; `level` is the mean level term and `depth` what is added last.
void finishform(Workings& w, const HarmonicConstants& constants, double level, double depth) {
    w.amplitude = {constants.M2Hm * w.factor.m2, constants.S2Hm * w.factor.s2, constants.K1Hm * w.factor.k1,
                   constants.O1Hm * w.factor.o1};
    w.SM = std::sin(w.phase.m2) * w.amplitude.m2;
    w.SS = std::sin(w.phase.s2) * w.amplitude.s2;
    w.CM = std::cos(w.phase.m2) * w.amplitude.m2;
    w.CS = std::cos(w.phase.s2) * w.amplitude.s2;
    w.X = w.SM + w.SS;
    w.Y = w.CM + w.CS;
    polarform(w.X, w.Y, w.radius, w.alpha);
    w.d4 = (constants.SF4 + 2 * w.alpha) * formradians;
    w.H4 = constants.LF4 * (w.radius * w.radius);
    w.d6 = (constants.SF6 + 3 * w.alpha) * formradians;
    w.H6 = constants.LF6 * (w.radius * w.radius * w.radius);
    HeightParts& parts = w.parts;
    parts.m2 = w.CM;
    parts.s2 = w.CS;
    parts.k1 = std::cos(w.phase.k1) * w.amplitude.k1;
    parts.o1 = std::cos(w.phase.o1) * w.amplitude.o1;
    parts.f4 = std::cos(w.d4) * w.H4;
    parts.f6 = std::cos(w.d6) * w.H6;
    parts.height = parts.k1 + parts.o1 + w.Y + level + parts.f4 + parts.f6 + depth;
}

template <typename... Values>
void traceline(std::ostream& out, const char* label, Values... values) {
    out << label;
    const char* between = "";
    ((out << between << numbertext(values), between = " "), ...);
    out << '\n';
}

void traceform(std::ostream& out, const Workings& w, const AnglesAndFactors& day, const AnglesAndFactors& next,
               const SpeedsAndRates& rates) {
    traceline(out, "Line 15 ppm2,pps2,ppk1,ppo1 ", next.mf - day.mf, next.sf - day.sf, next.kf - day.kf,
              next.of - day.of);
    traceline(out, "Line 19 ppm2,pps2,ppk1,ppo1 ", w.time * rates.dam, w.time * rates.das, w.time * rates.dak,
              w.time * rates.dao);
    traceline(out, "Line 22 ", std::sin(w.phase.m2), std::sin(w.phase.s2), std::cos(w.phase.m2), std::cos(w.phase.s2));
    traceline(out, " Line 23 ", std::cos(w.phase.k1), std::cos(w.phase.o1));
    traceline(out, "Line 27 ", w.factor.m2, w.factor.s2, w.factor.k1, w.factor.o1);
    traceline(out, "Line 29 ", w.amplitude.m2, w.amplitude.s2, w.amplitude.k1, w.amplitude.o1, w.phase.m2, w.phase.s2,
              w.phase.k1, w.phase.o1);
    traceline(out, "Line 30 ", w.SM, w.SS);
    traceline(out, "Line 32 ", w.X, w.Y);
    out << "LINE 33 radius= " << numbertext(w.radius) << " angle= " << numbertext(w.alpha) << '\n';
    out << "cos d4= " << numbertext(std::cos(w.d4)) << " alpha= " << numbertext(w.alpha) << " d4=" << numbertext(w.d4)
        << '\n';
    out << "delta6 = " << numbertext(w.d6) << " d6 = " << numbertext(w.H6) << " d6 cosd6 = " << numbertext(w.parts.f6)
        << '\n';
    out << "HEIGHT = " << numbertext(w.parts.height) << " @ " << numbertext(w.time) << '\n';
}

}  // namespace

HarmonicConstants seasonalconstants(const HarmonicRecord& port, int tidemonth) {
    HarmonicConstants constants{port.M2g,  port.M2Hm, port.S2g, port.S2Hm, port.K1g, port.K1Hm, port.O1g,
                                port.O1Hm, port.SF4,  port.LF4, port.SF6,  port.LF6, port.Z0,   0};
    if (tidemonth >= 1 && tidemonth <= 12) {
        const auto month = static_cast<std::size_t>(tidemonth - 1);
        // kept: a month's amplitude of 0 means no M2 in it; the annual one doesn't step in
        constants.M2Hm = port.MHm2[month];
        constants.DeltaZ0 = port.DeltaZ0[month];
    }
    return constants;
}

std::optional<HeightInputs> heightinputs(const HarmonicRecord& port, int tidemonth, int year, int baseday,
                                         float userdepth, float currentoutput) {
    const auto span = orbitalspan(year, baseday);
    if (!span) return std::nullopt;
    return heightinputs(port, tidemonth, *span, userdepth, currentoutput);
}

HeightInputs heightinputs(const HarmonicRecord& port, int tidemonth, const OrbitalSpan& span, float userdepth,
                          float currentoutput) {
    const HarmonicConstants constants = seasonalconstants(port, tidemonth);
    const double level = constants.Z0 + constants.DeltaZ0;
    return {constants, span.day, span.next, span.rates, level, userdepth, currentoutput};
}

HeightParts heightformula(const HeightInputs& inputs, double t, std::ostream* trace) {
    const SpeedsAndRates& rates = inputs.rates;
    const AnglesAndFactors& day = inputs.day;
    const Four lag = lags(inputs.constants, day);
    Workings w;
    w.time = t;
    w.phase = {wraponce(lag.m2 - t * rates.dam) * formradians, wraponce(lag.s2 - t * rates.das) * formradians,
               wraponce(lag.k1 - t * rates.dak) * formradians, wraponce(lag.o1 - t * rates.dao) * formradians};
    w.factor = {t * rates.dfm + day.mf, t * rates.dfs + day.sf, t * rates.dfk + day.kf, t * rates.dfo + day.of};
    finishform(w, inputs.constants, inputs.z0level, inputs.currentoutput != 1.0F ? inputs.userdepth : 0);
    if (trace) traceform(*trace, w, day, inputs.next, rates);
    return w.parts;
}

void sampleheights(const HeightInputs& inputs, double start, double step, std::span<HeightParts> samples) {
    settlevectors();
    double t = start;
    for (HeightParts& sample : samples) {
        sample = heightformula(inputs, t);
        t += step;
    }
}

InstantHeight heightofconstants(const HarmonicConstants& constants, const AnglesAndFactors& day,
                                const AnglesAndFactors& next, double time, std::ostream* trace) {
    const SpeedsAndRates rates = speedsandrates(day, next);
    const Four lag = lags(constants, day);
    // kept: midnight is taken a minute late, the last twelve minutes of the day ten minutes early
    if (time == 0) time = 1.0 / 60;
    if (time + 1.0 / 5 >= 24) time -= 1.0 / 6;
    const auto pass = [&] {
        Workings w;
        w.time = time;
        w.phase = {
            wraplagfirst(lag.m2, time * rates.dam) * formradians, wraplagfirst(lag.s2, time * rates.das) * formradians,
            wraplagfirst(lag.k1, time * rates.dak) * formradians, wraplagfirst(lag.o1, time * rates.dao) * formradians};
        // kept: all four factors change at the M2 rate; the other three rates go unused
        w.factor = {time * rates.dfm + day.mf, time * rates.dfm + day.sf, time * rates.dfm + day.kf,
                    time * rates.dfm + day.of};
        // kept: the level is Z0 without the month's addition, and the user's depth is never added
        finishform(w, constants, constants.Z0, 0);
        if (trace) traceform(*trace, w, day, next, rates);
        return w.parts.height;
    };
    InstantHeight result;
    result.first = pass();
    time += 1.0 / 20;
    result.second = pass();
    result.time = time;
    const double difference = result.first - result.second;
    if (difference > 0) result.risefalltext = "metres (Falling)";
    if (difference < 0) result.risefalltext = "metres (Rising)";
    return result;
}

InstantHeight heightat(const Settings& settings, int tidemonth, int year, int daynumber, double time,
                       std::ostream* trace) {
    if (trace) traceline(*trace, "", int{portcount(settings.hcfile)}, int{settings.currentport});
    const float userdepth = readdepth(settings.depfile, settings.currentport).UserDepth;
    const HarmonicConstants constants = seasonalconstants(readport(settings.hcfile, settings.currentport), tidemonth);
    const auto day = orbitalconstants(year, daynumber);
    const auto next = orbitalconstants(year, daynumber + 1);
    InstantHeight result;
    result.time = time;
    result.defined = day && next;
    if (result.defined) result = heightofconstants(constants, *day, *next, time, trace);
    result.userdepth = userdepth;
    return result;
}

void zonetime(double time, int day, std::int16_t zonehours, double& zonedtime, int& zoneday) {
    const double u = time + zonehours;
    if (u < 0) {
        // kept: the day before is not handed back; zoneday stays as the caller left it
        zonedtime = u + 24;
    } else if (u >= 24) {
        zonedtime = u - 24;
        zoneday = day + 1;
    } else {
        zonedtime = u;
        zoneday = day;
    }
}

}  // namespace tarvane
