#include "engine/prediction.h"

#include <algorithm>
#include <optional>

#include "engine/vectorstate.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

constexpr double samplestep = 1.0 / 6;

void clearlayers(Prediction& prediction) {
    for (auto* layer : {&prediction.m2layer, &prediction.s2layer, &prediction.k1layer, &prediction.o1layer,
                        &prediction.f4layer, &prediction.f6layer, &prediction.sumlayer})
        layer->fill({});
}

/// Reads the port and makes ready what its samples need, from the constants of `baseday` and the day after it. Nothing
/// where these divide by zero, the prediction then being marked so.
std::optional<HeightInputs> prepare(Settings& settings, const TideDay& day, int baseday, Prediction& prediction) {
    settlevectors();
    prediction.curvesamples.fill({});
    prediction.turningpoints.fill({});
    prediction.turningcount = 0;
    prediction.dayrange = 0;
    settings.userdepth = readdepth(settings.depfile, settings.currentport).UserDepth;
    prediction.port = readport(settings.hcfile, settings.currentport);
    HeightInputs inputs;
    inputs.constants = seasonalconstants(prediction.port, day.tidemonth);
    inputs.z0level = inputs.constants.Z0 + inputs.constants.DeltaZ0;
    inputs.userdepth = settings.userdepth;
    inputs.currentoutput = settings.currentoutput;
    prediction.z0level = inputs.z0level;
    const auto constants = orbitalconstants(day.tideyear, baseday);
    const auto next = orbitalconstants(day.tideyear, baseday + 1);
    prediction.defined = constants && next;
    if (!prediction.defined) {
        clearlayers(prediction);
        return std::nullopt;
    }
    inputs.day = *constants;
    inputs.next = *next;
    inputs.rates = speedsandrates(*constants, *next);
    return inputs;
}

void storerow(Prediction& prediction, std::size_t row, double time, const HeightParts& parts) {
    prediction.curvesamples[row] = {time, parts.height};
    prediction.m2layer[row] = {time, parts.m2};
    prediction.s2layer[row] = {time, parts.s2};
    prediction.k1layer[row] = {time, parts.k1};
    prediction.f4layer[row] = {time, parts.f4};
    prediction.f6layer[row] = {time, parts.f6};
    prediction.sumlayer[row] = {time, prediction.z0level};
    prediction.o1layer[row].height = parts.o1;
}

}  // namespace

void predictday(Settings& settings, const TideDay& day, Prediction& prediction) {
    const auto inputs = prepare(settings, day, day.dayofyear - 1, prediction);
    prediction.samplecount = 147;
    if (!inputs) return;
    const bool summer = day.summer == -1;
    const int first = summer ? 139 : 145;
    const int last = summer ? 290 : 293;
    // Samples before and behind the window are never looked at; only their share of t's accumulation counts.
    double t = 0;
    for (int j = 1; j <= last; ++j, t += samplestep) {
        if (j < first) continue;
        const int row = j - first + 1;
        const double time = (row - 1) / 6.0;
        storerow(prediction, static_cast<std::size_t>(row), time, heightformula(*inputs, t));
        // kept: without summer time the time column of the O1 layer is not written
        if (summer) prediction.o1layer[static_cast<std::size_t>(row)].time = time;
    }
}

void predictdaylinked(Settings& settings, const TideDay& day, double before, double after, Prediction& prediction) {
    const auto inputs = prepare(settings, day, day.dayofyear, prediction);
    prediction.samplecount = 148;
    if (!inputs) return;
    prediction.curvesamples[1] = {-99, before};
    double t = 0;
    // kept: the first sample overwrites the -99 row
    for (std::size_t row = 1; row <= 147; ++row, t += samplestep) {
        storerow(prediction, row, t, heightformula(*inputs, t));
        prediction.o1layer[row].time = t;
    }
    prediction.curvesamples[148] = {99, after};
}

void findturningpoints(Prediction& prediction) {
    const auto& samples = prediction.curvesamples;
    auto& points = prediction.turningpoints;
    int count = 0;
    const int most = static_cast<int>(points.size()) - 1;
    // kept: row 1 is never a turning point, and two equal samples at a crest are none
    for (std::size_t i = 1; i <= 144 && count < most; ++i) {
        const double left = samples[i].height, middle = samples[i + 1].height, right = samples[i + 2].height;
        const bool low = left > middle && middle < right;
        const bool high = left < middle && middle > right;
        if (low || high) points[static_cast<std::size_t>(++count)] = samples[i + 1];
    }
    // kept: this limit can't be passed by rows up to 145, and stays
    if (points[static_cast<std::size_t>(count)].time > 24.0844) --count;
    double greatest = -9999, least = 9999;
    for (std::size_t i = 1; i <= 145; ++i) {
        greatest = std::max(greatest, samples[i].height);
        least = std::min(least, samples[i].height);
    }
    prediction.dayrange = greatest - least;
    prediction.turningcount = count;
}

}  // namespace tarvane
