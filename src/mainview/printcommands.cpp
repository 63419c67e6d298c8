#include "mainview/printcommands.h"

#include <cstddef>
#include <functional>
#include <string>

#include "mainview/monthcommand.h"
#include "mainview/tidecurve.h"
#include "output/printouts.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

const char* const title = "Tarvane";
constexpr std::size_t leastmonthrows = 11;

ClosingFacts closingfacts(const Session& session) {
    return {session.settings.currentsummer, session.onshow.tidemonth};
}

DayPage daypage(const Session& session) {
    return {session.view.portbox, session.view.tidedatebox,       session.daytable.daystide1,
            session.curve,        session.prediction.samplecount, session.prediction.defined,
            session.settings,     closingfacts(session)};
}

/// One document from its opening to handing it over, and what the user is told of it. `name` is the kind of printout.
void printdocument(MainContext& context, const std::string& name, const std::function<void(Printer&)>& layout) {
    Printer& printer = context.services.printer;
    Messages& messages = context.services.messages;
    if (!printer.begin(trim(context.session.port.portname) + " " + name)) {
        messages.show("There is nothing to print to", title, MessageIcon::exclamation);
        return;
    }
    layout(printer);
    printer.setfontsize(bodysize);
    if (!printer.enddocument())
        messages.show("The page could not be printed", title, MessageIcon::exclamation);
    else if (!printer.destination().empty())
        messages.show("Printed to the file\r" + printer.destination(), title, MessageIcon::information);
}

std::string daytext(const DateOnShow& onshow) {
    return format(yearof(onshow.tidedate), "0000") + "-" + format(monthof(onshow.tidedate), "00") + "-" +
           format(dayof(onshow.tidedate), "00");
}

std::string monthtext(const DateOnShow& onshow) {
    return format(onshow.tideyear, "0000") + "-" + format(onshow.tidemonth, "00");
}

void tellmissing(MainContext& context, const std::string& first) {
    context.services.messages.show(first + "\rbefore choosing this option", title, MessageIcon::information);
}

}  // namespace

void printcurve(MainContext& context) {
    Session& session = context.session;
    if (!context.services.messages.ask("              Print curve?", title)) return;
    printdocument(context, "curve " + daytext(session.onshow),
                  [&](Printer& printer) { printcurvepage(printer, daypage(session)); });
    drawtidecurve(session, context.surfaces);
}

void printtenminutes(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print rise at 10 minute intervals?", title)) return;
    printdocument(context, "heights " + daytext(session.onshow),
                  [&](Printer& printer) { printtenminutepage(printer, daypage(session)); });
}

void printmonth(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print Months Tide Table?", title)) return;
    const auto& rows = session.month.monthspredictions;
    if (rows.size() < leastmonthrows) calculatemonth(context);
    if (rows.size() < leastmonthrows) {
        tellmissing(context, "Calculate a months tides");
        return;
    }
    const MonthPage page{rows, session.port.portname, session.onshow.tideyear, session.settings.userdepth,
                         closingfacts(session)};
    printdocument(context, "months tides " + monthtext(session.onshow),
                  [&](Printer& printer) { printmonthpages(printer, page, context.services.locale); });
}

void printsun(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print Sun and Lunar times?", title)) return;
    if (session.suntable.suntext[1][1].empty()) {
        tellmissing(context, "Calculate a months suntimes");
        return;
    }
    printdocument(context, "sun and moon " + monthtext(session.onshow), [&](Printer& printer) {
        printsunpage(printer, session.suntable, session.lunar, closingfacts(session));
    });
}

}  // namespace tarvane
