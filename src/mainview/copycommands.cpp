#include "mainview/copycommands.h"

#include "dates/summertime.h"
#include "mainview/monthcommand.h"
#include "output/clipboardtexts.h"
#include "output/suntimestext.h"
#include "portdata/recordfiles.h"
#include "sunmoon/sunmonth.h"

namespace tarvane {
namespace {

void copytext(MainContext& context, const std::string& text) {
    context.services.clipboard.clear();
    context.services.clipboard.settext(text);
}

}  // namespace

void copydaystides(MainContext& context) {
    const Session& session = context.session;
    copytext(context,
             daystidestext(session.daytable, session.curve.springslag, session.settings.currentsummer, session.onshow));
}

void copymonthstides(MainContext& context) {
    if (!havemonthtable(context)) return;
    const Session& session = context.session;
    copytext(context, monthstidestext(session.month, session.settings.currentsummer, session.onshow));
}

void copydayssuntimes(MainContext& context) {
    Session& session = context.session;
    copytext(context, dayssuntext(session.daytable, session.port.portname, session.sun, session.settings.currentsummer,
                                  session.onshow));
    context.services.messages.show("The day's sunrise and sunset times have been copied to the clipboard", "Tarvane");
}

void copymonthssuntimes(MainContext& context) {
    Session& session = context.session;
    const Settings& settings = session.settings;
    const DateOnShow& onshow = session.onshow;
    const HarmonicRecord port = readport(settings.hcfile, settings.currentport);
    const int year = static_cast<int>(onshow.tideyear), month = static_cast<int>(onshow.tidemonth);
    clearsuntable(session.suntable);
    // kept: the times go into the table's values alone, and only the dates into its texts
    fillsunvalues(session.suntable,
                  {year, month, summershift(onshow.tidedate, settings.summerflag2), session.port.zonehours},
                  {port.PortLat, port.PortLong});
    const SunHeading heading{session.port.portname, port.PortLat, port.PortLong, settings.currentsummer};
    copytext(context, suntimestext(session.suntable, heading, year, month, "\t"));
    context.services.messages.show("Months sunrise and sunset times have been copied to the clipboard", "Tarvane");
}

}  // namespace tarvane
