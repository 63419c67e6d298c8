#include "session/tidecurve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "engine/springs.h"
#include "output/curvepicture.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

CurveLimits limitsof(const CurveOnShow& curve) {
    return {curve.curvetop, curve.curvebottom};
}

/// Gives the picture the scale of a series and keeps a copy of the samples for saving and printing.
void startday(Session& session, DrawSurface& picture, const CurveSeries& series) {
    const Prediction& prediction = session.prediction;
    session.curve.curvesamplescopy = prediction.curvesamples;
    session.curve.whynot = prediction.defined ? "" : prediction.whynot;
    const CurveLimits limits = curvelimits(series, prediction.curvesamples, prediction.samplecount);
    session.curve.curvetop = limits.curvetop;
    session.curve.curvebottom = limits.curvebottom;
    startpicture(picture, limits);
}

void drawhourlabels(MainSurfaces& surfaces) {
    static constexpr std::array<const char*, 7> labels{"03:00", "06:00", "09:00",      "12:00",
                                                       "15:00", "18:00", "21:00 Hours"};
    const MainSurfaces::Place& place = surfaces.pictureplace;
    surfaces.window.setpersistent(true);
    surfaces.window.clear();
    for (std::size_t k = 1; k <= labels.size(); ++k)
        surfaces.window.text(place.left + static_cast<double>(k) / 8 * place.width - 200, place.top + place.height + 5,
                             labels[k - 1]);
}

void drawspringsbar(Session& session, DrawSurface& bar) {
    const std::optional<double> lag = findspringslag(session.prediction);
    MainView& view = session.view;
    if (!session.prediction.defined) {
        // A day without a prediction stands nowhere between springs and neaps: a lag that no status belongs to.
        session.curve.springslag = -1;
        bar.setpersistent(true);
        bar.clear();
    }
    if (!lag) {
        view.lblNeap.clear();
        view.lblSprings.clear();
        return;
    }
    session.curve.springslag = *lag;
    const double d = *lag * 6;
    bar.setpersistent(true);
    bar.clear();
    // The ends of the bar change names half way through the cycle; their trailing blanks are part of the texts.
    const bool towardsneaps = d < 36;
    bar.box(0, 0, towardsneaps ? d : d - 36, 1, black);
    view.lblSprings = towardsneaps ? "Springs" : "Neaps ";
    view.lblNeap = towardsneaps ? "Neaps" : "Springs ";
}

/// Where the curve would be: why there is none, and what to do where the user can.
void drawwhynot(const Session& session, DrawSurface& picture) {
    std::string lines = std::string("No prediction\n") + session.prediction.whynot;
    if (std::string_view(session.prediction.whynot) == noareafile)
        lines += ":\n" + session.settings.hcfile + "\nChoose one with Select Port, Sea Area, or put it back.";
    drawnote(picture, limitsof(session.curve), lines);
}

/// What the curve and the constituents view end with.
void finishpicture(Session& session, MainSurfaces& surfaces) {
    drawhourlabels(surfaces);
    drawsunlines(session, surfaces.picture);
    if (!session.prediction.defined) drawwhynot(session, surfaces.picture);
    surfaces.picture.setpersistent(false);
    drawspringsbar(session, surfaces.bar);
}

void drawconstituents(Session& session, MainSurfaces& surfaces) {
    DrawSurface& picture = surfaces.picture;
    const Prediction& prediction = session.prediction;
    CurveSeries total;
    total.curve1 = prediction.curvesamples;
    startday(session, picture, total);
    drawseries(picture, prediction.curvesamples, prediction.samplecount, black);
    drawlayers(picture, prediction, session.layers);
    drawgrid(picture, limitsof(session.curve), " Metres");
    finishpicture(session, surfaces);
}

}  // namespace

void drawtidecurve(Session& session, MainSurfaces& surfaces) {
    if (session.layersmode == 1) {
        drawconstituents(session, surfaces);
        return;
    }
    DrawSurface& picture = surfaces.picture;
    const Prediction& prediction = session.prediction;
    const CurveSeries series = curveseries(prediction.curvesamples, prediction.samplecount, session.settings);
    session.curve.curvenote = series.curvenote;
    startday(session, picture, series);
    if (series.drawn && prediction.defined) {
        drawseries(picture, series.curve1, prediction.samplecount, black);
        if (series.dotted) drawdots(picture, series.curve2, prediction.samplecount, black);
    }
    drawgrid(picture, limitsof(session.curve), "M");
    finishpicture(session, surfaces);
}

void drawsunlines(Session& session, DrawSurface& picture) {
    session.sundrawn = session.sunof;
    drawsunlines(picture, limitsof(session.curve), session.sun);
}

void drawtimemarker(Session& session, DrawSurface& picture) {
    MainView& view = session.view;
    view.lblrate.clear();
    const std::size_t i = sampleindex(session.timenow, session.prediction.samplecount);
    const TimedValue& sample = session.prediction.curvesamples[i];
    session.cursorheight = sample.height;
    session.cursortime = sample.time;
    const bool defined = session.prediction.defined;
    view.timeval = defined ? timetext(session.cursortime) : std::string{};
    view.hiteval = defined ? heighttext(session.cursorheight) : std::string{};
    session.markertime = session.timenow;
    drawmarkerline(session, picture);
}

void drawmarkerline(const Session& session, DrawSurface& picture) {
    if (session.prediction.defined) drawmarker(picture, limitsof(session.curve), session.markertime, red);
}

std::size_t sampleindex(double hours, int samplecount) {
    if (std::isnan(hours)) return 1;
    const double i = roundeven(hours / (1.0 / 6)) + 1;
    // Not std::clamp: it would hand on what is no number.
    return i >= 1 ? static_cast<std::size_t>(std::min(i, static_cast<double>(samplecount))) : 1;
}

}  // namespace tarvane
