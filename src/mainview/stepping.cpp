#include "mainview/stepping.h"

#include <algorithm>

#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "session/refresh.h"
#include "session/title.h"

namespace tarvane {
namespace {

void stepto(MainContext& context, Date date, bool updatemonth) {
    Session& session = context.session;
    DateOnShow& onshow = session.onshow;
    // kept: tideday stays behind, and on a step back tidemonth too
    onshow.tidedate = date;
    onshow.tideyear = yearof(date);
    onshow.tidedayofyear = dayofyear(date);
    if (updatemonth) onshow.tidemonth = monthof(date);
    session.view.tidedatebox = "Date   : " + formatdate(context.services.locale, date, "dd mmmm yyyy (dddd)");
    refreshday(context);
}

void storeportleft(Session& session) {
    // kept: the file holds the port before the step, and a restart comes up one port behind
    Settings& settings = session.settings;
    changeconfig(session.folders, settings, [&](ConfigRecord& record) { record.portnumber = settings.currentport; });
}

void showport(MainContext& context) {
    Session& session = context.session;
    takecurrentport(session, false);
    setportbox(session);
    session.settings.depfile = depfileof(session.folders, session.settings.hcfile);
    session.onshow.tideday = dayof(session.onshow.tidedate);
    session.onshow.tidemonth = monthof(session.onshow.tidedate);
    redrawday(context);
    clearmonthlist(session);
    rewritetitle(session, context.services.clock);
}

}  // namespace

void nextday(MainContext& context) {
    enabletopmenus(context.session);
    stepto(context, context.session.onshow.tidedate + std::chrono::days{1}, true);
}

void previousday(MainContext& context) {
    context.session.daytable.daystide1.clear();
    stepto(context, context.session.onshow.tidedate - std::chrono::days{1}, false);
}

bool nextport(MainContext& context) {
    Settings& settings = context.session.settings;
    storeportleft(context.session);
    const int count = portcount(settings.hcfile);
    const int next = std::min(settings.currentport + 1, count);
    settings.currentport = static_cast<std::int16_t>(next);
    if (next < 1) return false;
    showport(context);
    return true;
}

bool previousport(MainContext& context) {
    Settings& settings = context.session.settings;
    storeportleft(context.session);
    settings.currentport = static_cast<std::int16_t>(std::max(settings.currentport - 1, 1));
    showport(context);
    return true;
}

}  // namespace tarvane
