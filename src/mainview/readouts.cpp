#include "mainview/readouts.h"

#include <cmath>
#include <optional>

#include "mainview/loading.h"
#include "mainview/tidecurve.h"
#include "text/numbers.h"
#include "text/programcaption.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// What the samples around row i tell.
struct Tendency {
    TimedValue near;
    const char* word = "Rising";
    std::optional<double> rate;  ///< metres per hour; nothing without a time difference
};

Tendency tendencyat(const Prediction& prediction, std::size_t i) {
    const auto& samples = prediction.curvesamples;
    const auto count = static_cast<std::size_t>(prediction.samplecount);
    const std::size_t f = i + 2 < count ? i + 2 : i;
    const std::size_t n = i > 2 ? i - 1 : i;
    Tendency tendency;
    tendency.near = samples[n];
    // kept: a flat tide reads as rising
    tendency.word = samples[i].height - samples[i + 1].height <= 0 ? "Rising" : "Falling";
    const double heightdifference = std::abs(samples[n].height) - std::abs(samples[f].height);
    const double timedifference = std::abs(samples[n].time - samples[f].time);
    if (timedifference != 0) tendency.rate = std::abs(heightdifference / timedifference);
    return tendency;
}

std::string twodigits(int value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

bool constituentsmove(Session& session, DrawSurface& picture, std::size_t i, double x) {
    const Prediction& prediction = session.prediction;
    const Tendency tendency = tendencyat(prediction, i);
    session.cursorheight = tendency.near.height;
    session.cursortime = tendency.near.time;
    session.view.timeval = timetext(prediction.curvesamples[i].time);
    if (!tendency.rate) return false;
    picture.clear();
    session.markertime = x;
    drawmarkerline(session, picture);
    session.layervalues = layerreadout(prediction, i);
    session.view.hiteval = session.layervalues.sum;
    return true;
}

bool curvemove(Session& session, DrawSurface& picture, std::size_t i, double x) {
    MainView& view = session.view;
    const TimedValue& sample = session.prediction.curvesamples[i];
    const Tendency tendency = tendencyat(session.prediction, i);
    session.cursorheight = tendency.near.height;
    session.cursortime = tendency.near.time;
    view.timeval = timetext(sample.time);
    view.hiteval = heighttext(sample.height);
    if (!tendency.rate) return false;
    picture.clear();
    view.lblrate = std::string("(") + tendency.word + " @ " + format(*tendency.rate, "0.00") + " Mtrs/Hr " +
                   session.curve.curvenote + ")";
    session.markertime = x;
    drawmarkerline(session, picture);
    return true;
}

}  // namespace

void rewritetitle(Session& session, const Clock& clock) {
    const ClockReading now = clock.now();
    const Prediction& prediction = session.prediction;
    const std::size_t i = sampleindex(now.hour + now.minute / 60.0, prediction.samplecount);
    const Tendency tendency = tendencyat(prediction, i);
    session.cursorheight = tendency.near.height;
    if (!tendency.rate) return;
    session.view.caption = programcaption() + "     [Time Now " + twodigits(now.hour) + ":" + twodigits(now.minute) +
                           " : Height = " + heighttext(prediction.curvesamples[i].height) + "M. : " + tendency.word +
                           " @ " + format(*tendency.rate, "0.0") + " Mtrs/Hr]";
}

bool timer1tick(FirstDrawing& first, Session& session, MainSurfaces& surfaces) {
    ++first.ticks;
    if (first.ticks == 10000) first.ticks = 3;
    if (first.ticks != 2) return false;
    drawtimemarker(session, surfaces.picture);
    drawtidecurve(session, surfaces);
    drawsunlines(session, surfaces.picture);
    return true;
}

bool picturemousemove(Session& session, DrawSurface& picture, double x) {
    if (session.mousefrozen == 1 || !session.prediction.defined) return false;
    const std::size_t i = sampleindex(x, session.prediction.samplecount);
    return session.layersmode == 1 ? constituentsmove(session, picture, i, x) : curvemove(session, picture, i, x);
}

void picturemousedown(Session& session) {
    const bool freeze = session.mousefrozen == 0;
    session.mousefrozen = freeze ? 1 : 0;
    session.view.lblmousestatus = freeze ? "(Click mouse to unfreeze)" : "(Click mouse to freeze)";
}

LayerReadout layerreadout(const Prediction& prediction, std::size_t row) {
    const double parts[] = {prediction.m2layer[row].height, prediction.s2layer[row].height,
                            prediction.k1layer[row].height, prediction.o1layer[row].height,
                            prediction.f4layer[row].height, prediction.f6layer[row].height};
    double sum = prediction.z0level;
    for (const double part : parts)
        sum += part;
    const auto text = [](double value) { return format(value, "0.00"); };
    return {numbertext(prediction.z0level),
            text(parts[0]),
            text(parts[1]),
            text(parts[2]),
            text(parts[3]),
            text(parts[4]),
            text(parts[5]),
            text(sum)};
}

}  // namespace tarvane
