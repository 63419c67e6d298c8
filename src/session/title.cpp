#include "session/title.h"

#include <cmath>

#include "session/tidecurve.h"
#include "text/numbers.h"
#include "text/programcaption.h"

namespace tarvane {
namespace {

std::string twodigits(int value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

}  // namespace

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

void rewritetitle(Session& session, const Clock& clock) {
    const ClockReading now = clock.now();
    const Prediction& prediction = session.prediction;
    const std::size_t i = sampleindex(now.hour + now.minute / 60.0, prediction.samplecount);
    const Tendency tendency = tendencyat(prediction, i);
    session.cursorheight = tendency.near.height;
    if (!prediction.defined) session.view.caption = programcaption() + "     [No prediction]";
    if (!tendency.rate || !prediction.defined) return;
    session.view.caption = programcaption() + "     [Time Now " + twodigits(now.hour) + ":" + twodigits(now.minute) +
                           " : Height = " + heighttext(prediction.curvesamples[i].height) + "M. : " + tendency.word +
                           " @ " + format(*tendency.rate, "0.0") + " Mtrs/Hr]";
}

}  // namespace tarvane
