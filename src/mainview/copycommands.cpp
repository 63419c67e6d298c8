#include "mainview/copycommands.h"

#include "dates/summertime.h"
#include "mainview/monthcommand.h"
#include "output/clipboardtexts.h"
#include "portdata/recordfiles.h"

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
    SunMonth month;
    month.portname = session.port.portname;
    month.port = readport(settings.hcfile, settings.currentport);
    month.zonehours = session.port.zonehours;
    month.shift = summershift(session.onshow.tidedate, settings.summerflag2);
    month.currentsummer = settings.currentsummer;
    copytext(context, monthssuntext(session.suntable, month, session.onshow));
    context.services.messages.show("Months sunrise and sunset times have been copied to the clipboard", "Tarvane");
}

}  // namespace tarvane
