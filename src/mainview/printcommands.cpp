#include "mainview/printcommands.h"

#include <cstddef>

#include "mainview/monthcommand.h"
#include "output/printouts.h"
#include "session/documents.h"
#include "session/tidecurve.h"

namespace tarvane {
namespace {

constexpr std::size_t leastmonthrows = 11;

DayPage daypage(const Session& session) {
    return {session.view.portbox, session.view.tidedatebox,       session.daytable.daystide1,
            session.curve,        session.prediction.samplecount, session.curve.whynot,
            session.settings,     closingfacts(session)};
}

Printout ofday(const Session& session, const char* kind) {
    return {kind, session.port.portname, session.onshow.tidedate};
}

}  // namespace

void printcurve(MainContext& context) {
    Session& session = context.session;
    if (!context.services.messages.ask("              Print curve?", messagetitle)) return;
    printdocument(context, ofday(session, "curve"),
                  [&](Printer& printer) { printcurvepage(printer, daypage(session)); });
    drawtidecurve(session, context.surfaces);
}

void printtenminutes(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print rise at 10 minute intervals?", messagetitle)) return;
    printdocument(context, ofday(session, "heights"),
                  [&](Printer& printer) { printtenminutepage(printer, daypage(session)); });
}

void printmonth(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print Months Tide Table?", messagetitle)) return;
    const auto& rows = session.month.monthspredictions;
    if (rows.size() < leastmonthrows) calculatemonth(context);
    if (rows.size() < leastmonthrows) {
        tellmissing(context, "Calculate a months tides");
        return;
    }
    const MonthTable& month = session.month;
    // kept: the heading has the year and the depth of the day on show, also over a month that stands from before
    const MonthPage page{month.days, session.port.portname, session.onshow.tideyear, session.settings.userdepth,
                         closingfacts(session)};
    printdocument(context, {"months tides", month.made.portname, makedate(month.made.year, month.made.month, 1), true},
                  [&](Printer& printer) { printmonthpages(printer, page); });
}

}  // namespace tarvane
