#include "mainview/readouts.h"

#include "session/tidecurve.h"
#include "session/title.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

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
    session.layersday = prediction.day;
    session.layersport = prediction.port.number;
    session.layersarea = session.settings.hcfile;
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
    LayerReadout readout;
    double sum = prediction.z0level;
    for (std::size_t place = 0; place < constituents.size(); ++place) {
        const double part = (prediction.*constituents[place].layer)[row].height;
        if (place != meanlevelplace) sum += part;
        readout.parts[place] = place == meanlevelplace ? numbertext(prediction.z0level) : format(part, "0.00");
    }
    readout.sum = format(sum, "0.00");
    return readout;
}

}  // namespace tarvane
