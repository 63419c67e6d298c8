#include "mainview/copycommands.h"

#include "dates/summertime.h"
#include "mainview/monthcommand.h"
#include "output/clipboardtexts.h"
#include "output/suntimestext.h"
#include "portdata/recordfiles.h"
#include "session/documents.h"
#include "sunmoon/sunmonth.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

void copytext(MainContext& context, const std::string& text) {
    context.services.clipboard.clear();
    context.services.clipboard.settext(text);
}

/// The sun's times are told in a box, and in no other answer.
void copysuntext(MainContext& context, const std::string& text, const char* told) {
    copytext(context, text);
    answer(context, "");
    context.services.messages.show(told, messagetitle);
}

}  // namespace

void copydaystides(MainContext& context) {
    const Session& session = context.session;
    copytext(context,
             daystidestext(session.daytable, session.curve.springslag, session.settings.currentsummer, session.onshow));
    answer(context, "Copied: the day's tides of " + trimmedname(session.prediction.port.record));
}

void copymonthstides(MainContext& context) {
    if (!havemonthtable(context)) return;
    const Session& session = context.session;
    copytext(context, monthstidestext(session.month, session.settings.currentsummer, session.onshow));
    answer(context, "Copied: the month's tides of " + trim(session.month.made.portname));
}

void copydayssuntimes(MainContext& context) {
    Session& session = context.session;
    copysuntext(context,
                dayssuntext(session.daytable, session.port.portname, session.sun, session.settings.currentsummer,
                            session.onshow),
                "The day's sunrise and sunset times have been copied to the clipboard");
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
    copysuntext(context, suntimestext(session.suntable, heading, year, month, "\t"),
                "Months sunrise and sunset times have been copied to the clipboard");
}

}  // namespace tarvane
