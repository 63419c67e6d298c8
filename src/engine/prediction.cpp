#include "engine/prediction.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "engine/constituents.h"
#include "engine/height.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr double samplestep = 1.0 / 6;

/// Empties what a prediction will fill and notes what it is for. Nothing where the day has no constants.
std::optional<HeightInputs> prepare(const PredictedPort& port, const TideDay& day, int baseday,
                                    Prediction& prediction) {
    prediction.curvesamples.fill({});
    prediction.turningpoints.fill({});
    prediction.turningcount = 0;
    prediction.dayrange = 0;
    prediction.port = port;
    prediction.day = day;
    prediction.defined = true;
    prediction.whynot = "";
    const HarmonicConstants constants = seasonalconstants(port.record, day.tidemonth);
    prediction.z0level = constants.Z0 + constants.DeltaZ0;
    return heightinputs(port.record, day.tidemonth, day.tideyear, baseday, port.userdepth, port.currentoutput);
}

void storerow(Prediction& prediction, std::size_t row, double time, const HeightParts& parts) {
    prediction.curvesamples[row] = {time, parts.height};
    for (const Constituent& constituent : constituents)
        (prediction.*constituent.layer)[row] = {time, constituent.part ? parts.*constituent.part : prediction.z0level};
}

void refusebrokenrecord(Prediction& prediction) {
    const auto finite = [](const TimedValue& sample) { return std::isfinite(sample.height); };
    if (!std::all_of(prediction.curvesamples.begin(), prediction.curvesamples.end(), finite))
        leaveundefined(prediction, brokenrecord);
}

}  // namespace

void leaveundefined(Prediction& prediction, const char* whynot) {
    prediction.defined = false;
    prediction.whynot = whynot;
    prediction.curvesamples.fill({});
    prediction.turningpoints.fill({});
    prediction.turningcount = 0;
    prediction.dayrange = 0;
    for (const Constituent& constituent : constituents)
        (prediction.*constituent.layer).fill({});
}

PredictedPort predictedport(const Settings& settings) {
    const UserDepthRecord depth = readdepth(settings.depfile, settings.currentport);
    return {readport(settings.hcfile, settings.currentport),
            settings.currentport,
            depth.UserDepth,
            settings.currentoutput,
            trim(depth.DepthPortName),
            settings.hcfile};
}

std::string depthofanother(const PredictedPort& port) {
    const bool included = port.currentoutput != 1 && port.userdepth != 0;
    return included && port.depthname != trimmedname(port.record) ? port.depthname : "";
}

void predictday(const Settings& settings, const TideDay& day, Prediction& prediction) {
    predictday(predictedport(settings), day, prediction);
}

void predictday(const PredictedPort& port, const TideDay& day, Prediction& prediction) {
    const auto inputs = prepare(port, day, day.dayofyear - 1, prediction);
    prediction.samplecount = 147;
    if (!inputs) return leaveundefined(prediction, noconstants);
    const bool summer = day.summer == -1;
    const std::size_t first = summer ? 139 : 145;
    const std::size_t rows = summer ? 152 : 149;
    // Samples before the window are never looked at; only their share of the time's accumulation counts.
    double start = 0;
    for (std::size_t j = 1; j < first; ++j)
        start += samplestep;
    std::array<HeightParts, 152> samples;
    sampleheights(*inputs, start, samplestep, std::span(samples).first(rows));
    for (std::size_t row = 1; row <= rows; ++row) {
        const double o1time = prediction.o1layer[row].time;
        storerow(prediction, row, static_cast<double>(row - 1) / 6, samples[row - 1]);
        // kept: without summer time the time column of the O1 layer is not written
        if (!summer) prediction.o1layer[row].time = o1time;
    }
    refusebrokenrecord(prediction);
}

void predictdaylinked(const PredictedPort& port, const TideDay& day, double before, double after,
                      Prediction& prediction) {
    const auto inputs = prepare(port, day, day.dayofyear, prediction);
    prediction.samplecount = 148;
    if (!inputs) return leaveundefined(prediction, noconstants);
    prediction.curvesamples[1] = {-99, before};
    std::array<HeightParts, 147> samples;
    sampleheights(*inputs, 0, samplestep, samples);
    double t = 0;
    // kept: the first sample overwrites the -99 row
    for (std::size_t row = 1; row <= samples.size(); ++row, t += samplestep)
        storerow(prediction, row, t, samples[row - 1]);
    prediction.curvesamples[148] = {99, after};
    refusebrokenrecord(prediction);
}

void predictworkspace(const HarmonicRecord& constants, int year, int dayofyear, Prediction& prediction) {
    constexpr double evening = 23.9166, morning = 0.08333;
    const HarmonicConstants annual = seasonalconstants(constants, 0);
    const auto heighton = [&](int day, double time) {
        const auto first = orbitalconstants(year, day), next = orbitalconstants(year, day + 1);
        return first && next ? heightofconstants(annual, *first, *next, time).first : 0.0;
    };
    const TideDay day{year, 0, static_cast<std::int16_t>(dayofyear), 0};
    predictdaylinked({constants, 0, 0, 1}, day, heighton(dayofyear - 1, evening), heighton(dayofyear + 1, morning),
                     prediction);
    // kept: here the mark in front of the day survives, at the height of the second row
    if (prediction.defined) prediction.curvesamples[1] = {-99, prediction.curvesamples[2].height};
    findworkspacepoints(prediction);
}

bool haspredictions(int year, int dayofyear) {
    return orbitalconstants(year, dayofyear - 1) && orbitalconstants(year, dayofyear);
}

namespace {

/// Turning points among the rows up to two behind `lastsearched`; how many.
int pickturningpoints(Prediction& prediction, std::size_t lastsearched) {
    const auto& samples = prediction.curvesamples;
    auto& points = prediction.turningpoints;
    int count = 0;
    const std::size_t most = points.size() - 1;
    // kept: row 1 is never a turning point, and two equal samples at a crest are none
    for (std::size_t i = 1; i <= lastsearched && static_cast<std::size_t>(count) < most; ++i) {
        const double left = samples[i].height, middle = samples[i + 1].height, right = samples[i + 2].height;
        const bool low = left > middle && middle < right;
        const bool high = left < middle && middle > right;
        if (low || high) points[static_cast<std::size_t>(++count)] = samples[i + 1];
    }
    // kept: this limit can't be passed by rows up to 145, and stays
    if (points[static_cast<std::size_t>(count)].time > 24.0844) --count;
    return count;
}

}  // namespace

void findworkspacepoints(Prediction& prediction) {
    const int rows = prediction.samplecount - 2;
    prediction.turningcount = pickturningpoints(prediction, static_cast<std::size_t>(std::max(rows, 0)));
}

void findturningpoints(Prediction& prediction) {
    const auto& samples = prediction.curvesamples;
    prediction.turningcount = pickturningpoints(prediction, 144);
    double greatest = -9999, least = 9999;
    for (std::size_t i = 1; i <= 145; ++i) {
        greatest = std::max(greatest, samples[i].height);
        least = std::min(least, samples[i].height);
    }
    prediction.dayrange = greatest - least;
}

bool ishighwater(const Prediction& prediction, int turningpoint) {
    const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(turningpoint)];
    const auto row = static_cast<std::size_t>(std::lround(point.time * 6) + 1);
    return point.height > prediction.curvesamples[row - 1].height;
}

}  // namespace tarvane
