#include "mainview/plannersteps.h"

#include "mainview/dateentry.h"
#include "planner/plantexts.h"
#include "portdata/portknown.h"
#include "portdata/recordfiles.h"
#include "ports/portselection.h"
#include "session/refresh.h"
#include "session/tidecurve.h"

namespace tarvane {

void chooseport(MainContext& context, std::int16_t number) {
    // The number is of the area in hand, whatever another run of the program has stored meanwhile.
    chooseport(context, std::string(context.session.settings.hcfile), number);
}

void chooseport(MainContext& context, const std::string& area, std::int16_t number) {
    Session& session = context.session;
    reloadforportlist(context);
    session.settings.areafile = area;
    PortList list;
    list.selectedport = number;
    portconfigok(context, list, 0, session.settings.configrec.sortmode != 0);
    enabletopmenus(session);
    drawtidecurve(session, context.surfaces);
}

void showdate(MainContext& context, Date date) {
    DateEntry entry = opendateentry(context);
    pickdate(context, entry, date);
    confirmpicker(context, entry);
    drawtidecurve(context.session, context.surfaces);
}

PresentTexts presenttidetexts(const MainContext& context, PresentTide& present) {
    const Session& session = context.session;
    const Settings& settings = session.settings;
    if (settings.currentport < 1 || settings.currentport > portcount(settings.hcfile)) return {};
    const HarmonicRecord port = readport(settings.hcfile, settings.currentport);
    const PortKnown known = whatisknown(knownarea(session.folders, settings.hcfile), port, settings.currentport);
    const Moment now = context.services.clock.moment();
    const Plan& today = present.at(port, known.iana(), ClockChoice::port, context.services.zones, now);
    const std::string brief = shortnowtext(today, now);
    if (brief.empty()) return {};
    return {brief, nowtext(today, now) + "\nTimes by the " + today.clock().description()};
}

}  // namespace tarvane
