#include "mainview/tidecurve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "engine/springs.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// Beyond this many metres a line a metre would only blacken the picture.
constexpr double mostgridlines = 500;

/// Starts the persistent picture anew, gives it the scale of a series and keeps a copy of the samples for saving and
/// printing.
void startpicture(Session& session, DrawSurface& picture, const CurveSeries& series) {
    session.curve.curvesamplescopy = session.prediction.curvesamples;
    picture.setpersistent(true);
    picture.clear();
    const CurveLimits limits = curvelimits(series, session.prediction.curvesamples, session.prediction.samplecount);
    session.curve.curvetop = limits.curvetop;
    session.curve.curvebottom = limits.curvebottom;
    picture.setscale(0, limits.curvetop, 24, limits.curvebottom);
}

template <typename Row>
void drawseries(DrawSurface& picture, const Row& rows, int count, Colour colour) {
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(count); ++i)
        picture.line(rows[i].time, rows[i].height, rows[i + 1].time, rows[i + 1].height, colour);
}

template <typename Row>
void drawpoints(DrawSurface& picture, const Row& rows, int count, Colour colour) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count); ++i)
        picture.point((static_cast<double>(i) - 1) / 6, rows[i].height, colour);
}

void drawgrid(DrawSurface& picture, const CurveOnShow& curve, const std::string& topunit) {
    for (int x = 0; x <= 21; x += 3)
        picture.line(x, curve.curvetop, x, curve.curvebottom, black);
    if (curve.curvetop > mostgridlines) return;
    // kept: the lines begin at -1 whatever the bottom is, so that those at -2 and below are not drawn
    for (double y = -1; y <= curve.curvetop; ++y) {
        picture.line(0, y, 24, y, black);
        picture.text(0, y, numbertext(y) + (y == curve.curvetop ? topunit : std::string{}));
    }
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

/// What the curve and the constituents view end with.
void finishpicture(Session& session, MainSurfaces& surfaces) {
    drawhourlabels(surfaces);
    drawsunlines(session, surfaces.picture);
    surfaces.picture.setpersistent(false);
    drawspringsbar(session, surfaces.bar);
}

struct LayerLine {
    bool LayerChoice::*ticked;
    std::array<TimedValue, 201> Prediction::*layer;
    Colour colour;
    bool points;
};

constexpr std::array<LayerLine, 7> layerlines{{
    {&LayerChoice::m2, &Prediction::m2layer, blue, false},
    {&LayerChoice::s2, &Prediction::s2layer, red, false},
    {&LayerChoice::k1, &Prediction::k1layer, black, true},
    {&LayerChoice::o1, &Prediction::o1layer, yellow, false},
    {&LayerChoice::f4, &Prediction::f4layer, green, false},
    {&LayerChoice::f6, &Prediction::f6layer, magenta, false},
    {&LayerChoice::z0, &Prediction::sumlayer, red, true},
}};

/// A layer as a line; times by row number, since one layer's time column is not always written.
void drawlayer(DrawSurface& picture, const std::array<TimedValue, 201>& layer, int count, Colour colour) {
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(count); ++i) {
        const double x = (static_cast<double>(i) - 1) / 6;
        picture.line(x, layer[i].height, x + 1.0 / 6, layer[i + 1].height, colour);
    }
}

void drawconstituents(Session& session, MainSurfaces& surfaces) {
    DrawSurface& picture = surfaces.picture;
    const Prediction& prediction = session.prediction;
    CurveSeries total;
    total.curve1 = prediction.curvesamples;
    startpicture(session, picture, total);
    drawseries(picture, prediction.curvesamples, prediction.samplecount, black);
    for (const LayerLine& line : layerlines) {
        if (!(session.layers.*line.ticked)) continue;
        const auto& layer = prediction.*line.layer;
        if (line.points)
            drawpoints(picture, layer, prediction.samplecount, line.colour);
        else
            drawlayer(picture, layer, prediction.samplecount, line.colour);
    }
    drawgrid(picture, session.curve, " Metres");
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
    startpicture(session, picture, series);
    if (series.drawn && prediction.defined) {
        drawseries(picture, series.curve1, prediction.samplecount, black);
        if (series.dotted) drawpoints(picture, series.curve2, prediction.samplecount, black);
    }
    drawgrid(picture, session.curve, "M");
    finishpicture(session, surfaces);
}

void drawsunlines(const Session& session, DrawSurface& picture) {
    const CurveOnShow& curve = session.curve;
    const double dash = (curve.curvetop - curve.curvebottom) / 50;
    picture.setlinewidth(2);
    for (const double hour : {session.sun.sunrise, session.sun.sunset})
        for (int k = 0; k <= 48; k += 2)
            picture.line(hour, curve.curvetop - k * dash, hour, curve.curvetop - (k + 1) * dash, grey);
    picture.setlinewidth(1);
    picture.text(session.sun.sunrise - 1.5, curve.curvetop, "Sunrise");
    picture.text(session.sun.sunset - 1.5, curve.curvetop, "Sunset");
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
    picture.line(session.markertime, session.curve.curvetop, session.markertime, session.curve.curvebottom, red);
}

std::size_t sampleindex(double hours, int samplecount) {
    if (std::isnan(hours)) return 1;
    const double i = roundeven(hours / (1.0 / 6)) + 1;
    // Not std::clamp: it would hand on what is no number.
    return i >= 1 ? static_cast<std::size_t>(std::min(i, static_cast<double>(samplecount))) : 1;
}

}  // namespace tarvane
