#include "mainview/printcommands.h"

#include <cstddef>
#include <string>

#include "mainview/monthcommand.h"
#include "output/printouts.h"
#include "session/documents.h"
#include "session/tidecurve.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr std::size_t leastmonthrows = 11;

DayPage daypage(const Session& session) {
    return {session.view.portbox, session.view.tidedatebox,       session.daytable.daystide1,
            session.curve,        session.prediction.samplecount, session.prediction.whynot,
            session.settings,     closingfacts(session)};
}

std::string daytext(const DateOnShow& onshow) {
    return format(yearof(onshow.tidedate), "0000") + "-" + format(monthof(onshow.tidedate), "00") + "-" +
           format(dayof(onshow.tidedate), "00");
}

}  // namespace

void printcurve(MainContext& context) {
    Session& session = context.session;
    if (!context.services.messages.ask("              Print curve?", messagetitle)) return;
    printdocument(context, "curve " + daytext(session.onshow),
                  [&](Printer& printer) { printcurvepage(printer, daypage(session)); });
    drawtidecurve(session, context.surfaces);
}

void printtenminutes(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print rise at 10 minute intervals?", messagetitle)) return;
    printdocument(context, "heights " + daytext(session.onshow),
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
    // kept: the heading has the year and the depth of the day on show, also over a month that stands from before
    const MonthPage page{session.month.days, session.port.portname, session.onshow.tideyear, session.settings.userdepth,
                         closingfacts(session)};
    printdocument(context, "months tides " + monthtext(session.onshow),
                  [&](Printer& printer) { printmonthpages(printer, page); });
}

}  // namespace tarvane
