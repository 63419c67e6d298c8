#include "session/loading.h"

#include "dates/summertime.h"
#include "portdata/userdepths.h"
#include "session/refresh.h"
#include "session/tidecurve.h"
#include "session/title.h"
#include "text/programcaption.h"

namespace tarvane {
namespace {

void settoday(MainContext& context) {
    Session& session = context.session;
    const Locale& locale = context.services.locale;
    const Date today = context.services.clock.now().today;
    const std::string longdate = LongDateText(locale, session.conventions, today).value_or("");
    session.view.tidedatebox = "Date   : " + longdate + " (" + formatdate(locale, today, "dddd") + ")";
    setdateonshow(session.onshow, today);
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
    view.disclaimer = correctionfirst(correctionline(shift, session.onshow.tidedate));
}

}  // namespace tarvane
