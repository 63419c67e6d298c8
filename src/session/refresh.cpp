#include "session/refresh.h"

#include "dates/summertime.h"
#include "files/wholefiles.h"
#include "portdata/recordfiles.h"
#include "session/tidecurve.h"
#include "session/title.h"

namespace tarvane {
namespace {

const char* const accuracyline =
    "Heights in Metres, all data are derived and should therefore be considered as approximate";

}  // namespace

std::int16_t redrawday(MainContext& context) {
    Session& session = context.session;
    context.surfaces.window.setpersistent(true);
    context.surfaces.window.clear();
    const std::int16_t shift = predictdayonshow(session);
    drawtidecurve(session, context.surfaces);
    drawtimemarker(session, context.surfaces.picture);
    // The dashed lines just drawn are those of the sun times held from before this.
    refreshsun(session, shift);
    context.surfaces.picture.setpersistent(false);
    return shift;
}

void refreshday(MainContext& context) {
    Session& session = context.session;
    const std::int16_t shift = redrawday(context);
    session.view.disclaimer = correctionfirst(correctionline(shift, session.onshow.tidedate));
    rewritetitle(session, context.services.clock);
}

std::int16_t predictdayonshow(Session& session) {
    const DateOnShow& onshow = session.onshow;
    const std::int16_t shift = summershift(onshow.tidedate, session.settings.summerflag2);
    const TideDay day{static_cast<int>(onshow.tideyear), static_cast<int>(onshow.tidemonth),
                      static_cast<std::int16_t>(onshow.tidedayofyear), shift};
    predictday(session.settings, day, session.prediction);
    const Settings& settings = session.settings;
    if (!canopen(settings.hcfile))
        leaveundefined(session.prediction, noareafile);
    else if (settings.currentport < 1 || settings.currentport > portcount(settings.hcfile))
        leaveundefined(session.prediction, nosuchport);
    if (!session.prediction.defined) session.layervalues = {};
    session.settings.userdepth = session.prediction.port.userdepth;
    // kept: the switch shows nothing by itself, the next prediction does
    if (session.showconstants)
        for (std::size_t place = 0; place < constituents.size(); ++place)
            session.layerconstants[place] = constituents[place].constant(session.prediction.port.record);
    findturningpoints(session.prediction);
    buildpredictiontext(session.daytable, session.prediction, session.prediction.turningcount, session.port.portname,
                        onshow);
    return shift;
}

void refreshsun(Session& session, std::int16_t shift) {
    const DateOnShow& onshow = session.onshow;
    session.sunof = {static_cast<int>(onshow.tideday),
                     static_cast<int>(onshow.tidemonth),
                     static_cast<int>(onshow.tideyear),
                     session.port.portlat,
                     session.port.portlong,
                     session.port.zonehours,
                     shift};
    session.sun =
        SunTimes(session.port.portlat, session.port.portlong, static_cast<int>(onshow.tideday),
                 static_cast<int>(onshow.tidemonth), static_cast<int>(onshow.tideyear), shift, session.port.zonehours);
}

void takecurrentport(Session& session, bool trimname) {
    const HarmonicRecord record = readport(session.settings.hcfile, session.settings.currentport);
    session.port.portname = trimname ? trimmedname(record) : record.PortName;
    session.port.portlat = record.PortLat;
    session.port.portlong = record.PortLong;
    session.port.zonehours = zonehoursof(record);
}

void followarea(Session& session) {
    ConfigRecord record;
    record.hcfilepath = session.settings.hcfile;
    findareafile(session.folders, record);
    session.settings.hcfile = record.hcfilepath;
}

std::string portboxof(const std::string& name) {
    return "Port    : " + name;
}

void setportbox(Session& session) {
    session.view.portbox = portboxof(session.port.portname);
}

std::string accuracyfirst(const std::string& correction) {
    return accuracyline + std::string("\r\n") + correction;
}

std::string correctionfirst(const std::string& correction) {
    return correction + "\r\n" + accuracyline;
}

double clockhours(const Clock& clock) {
    const ClockReading now = clock.now();
    return now.hour + now.minute / 60.0;
}

void enabletopmenus(Session& session) {
    session.view.topmenusenabled = true;
}

void clearmonthlist(Session& session) {
    session.month.monthspredictions.clear();
    session.view.monthvisible = false;
}

}  // namespace tarvane
