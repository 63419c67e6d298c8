#include "mainview/loading.h"

#include "dates/summertime.h"
#include "mainview/readouts.h"
#include "mainview/tidecurve.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "text/programcaption.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

const char* const accuracyline =
    "Heights in Metres, all data are derived and should therefore be considered as approximate";

void settoday(MainContext& context) {
    Session& session = context.session;
    const Locale& locale = context.services.locale;
    const Date today = context.services.clock.now().today;
    const std::string longdate = LongDateText(locale, session.conventions, today).value_or("");
    session.view.tidedatebox = "Date   : " + longdate + " (" + formatdate(locale, today, "dddd") + ")";
    setdateonshow(session.onshow, today);
}

void refresh(MainContext& context, bool setdisclaimer) {
    Session& session = context.session;
    const std::int16_t shift = redrawday(context);
    if (setdisclaimer)
        session.view.disclaimer = disclaimercorrectionfirst(correctionline(shift, session.onshow.tidedate));
    rewritetitle(session, context.services.clock);
}

}  // namespace

void loadmainwindow(MainContext& context) {
    Session& session = context.session;
    MainView& view = session.view;
    view.caption = programcaption();
    view.specialvisible = false;
    view.maintenancevisible = false;
    view.monthvisible = false;
    view.lblmousestatus = "(Click mouse to freeze)";
    context.surfaces.bar.setscale(0, 0, 39, 1);
    loadsettings(session.folders, session.settings);
    EnsureDepFile(session.folders, session.settings);
    clearsuntable(session.suntable);
    takecurrentport(session, true);
    setportbox(session);
    settoday(context);
    session.timenow = clockhours(context.services.clock);
    session.clocktime = session.timenow;
    const std::int16_t shift = redrawday(context);
    drawsunlines(session, context.surfaces.picture);
    rewritetitle(session, context.services.clock);
    view.disclaimer = disclaimercorrectionfirst(correctionline(shift, session.onshow.tidedate));
}

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
    refresh(context, true);
}

void refreshdaykeepingdisclaimer(MainContext& context) {
    refresh(context, false);
}

std::int16_t predictdayonshow(Session& session) {
    const DateOnShow& onshow = session.onshow;
    const std::int16_t shift = summershift(onshow.tidedate, session.settings.summerflag2);
    const TideDay day{static_cast<int>(onshow.tideyear), static_cast<int>(onshow.tidemonth),
                      static_cast<std::int16_t>(onshow.tidedayofyear), shift};
    predictday(session.settings, day, session.prediction);
    findturningpoints(session.prediction);
    buildpredictiontext(session.daytable, session.prediction, session.prediction.turningcount, session.port.portname,
                        onshow);
    return shift;
}

void refreshsun(Session& session, std::int16_t shift) {
    const DateOnShow& onshow = session.onshow;
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

void setportbox(Session& session) {
    session.view.portbox = "Port    : " + session.port.portname;
}

std::string disclaimeraccuracyfirst(const std::string& correction) {
    return accuracyline + std::string("\r\n") + correction;
}

std::string disclaimercorrectionfirst(const std::string& correction) {
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
