#include "ports/programsettings.h"

#include "dates/summertime.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

void takerecord(Session& session, bool withsummer) {
    Settings& settings = session.settings;
    rereadconfig(session.folders, settings);
    // kept: after port steps the record holds the port before the last, which becomes current under the old name
    takechoices(settings, settings.configrec);
    if (withsummer) settings.currentsummer = settings.configrec.summertimeflag;
}

void storeoptions(MainContext& context) {
    const Session& session = context.session;
    Settings& settings = context.session.settings;
    const bool stored = changeconfig(session.folders, settings, [&](ConfigRecord& record) {
        record.outputoption = settings.currentoutput;
        record.draught = settings.currentdraught;
        record.ukc = settings.currentukc;
        record.spareoption = settings.spareoptionvalue;
        record.summertimeflag = settings.currentsummer;
    });
    if (stored) return;
    context.services.messages.show(
        "The program settings can't be stored in " + session.folders.cfgpath() + ". They are in force all the same.",
        "Tarvane", MessageIcon::exclamation);
}

std::string outputtext(float output) {
    if (output == 1) return " From chart datum only";
    if (output == 2) return " Includes charted depth";
    if (output == 3) return " Charted depth, draught and prog.ukc";
    return {};
}

}  // namespace

std::string optiontext(float metres) {
    const std::string text = trim(str(metres));
    if (text.empty() || text == "0") return "0.0";
    return text.front() == '.' ? "0" + text : text;
}

ProgramOptions openoptions(Session& session) {
    takerecord(session, true);
    const Settings& settings = session.settings;
    ProgramOptions options;
    if (settings.currentoutput == 2) options.displayoption = 2;
    if (settings.currentoutput == 3) options.displayoption = 3;
    options.optDaylightSavings = settings.currentsummer == -1;
    options.optNonDaylightsavings = settings.currentsummer == 0;
    options.draughttext = optiontext(settings.currentdraught);
    options.ukctext = optiontext(settings.currentukc);
    return options;
}

void chooseoutput(Session& session, ProgramOptions& options, int option) {
    options.displayoption = option;
    // kept: the output changes before anything is confirmed
    session.settings.currentoutput = static_cast<float>(option);
}

void offermaintenance(Session& session) {
    // kept: taking the tick away shows the menus too
    session.view.maintenancevisible = true;
    session.view.adjustvisible = true;
    session.view.copyportsvisible = true;
    session.view.diamondsvisible = true;
}

void confirmoptions(MainContext& context, const ProgramOptions& options) {
    Session& session = context.session;
    Settings& settings = session.settings;
    settings.currentsummer = options.optDaylightSavings ? -1 : 0;
    settings.currentoutput = static_cast<float>(options.displayoption);
    settings.currentdraught = typedmetres(options.draughttext);
    settings.currentukc = typedmetres(options.ukctext);
    storeoptions(context);
    settings.summerflag2 = settings.currentsummer;
    clearmonthcells(session.month);
    clearmonthlist(session);
    settings.userdepth = readdepth(settings.depfile, settings.currentport).UserDepth;
    setportbox(session);
    session.daytable.daystide1.clear();
    session.timenow = clockhours(context.services.clock);
    refreshday(context);
    const bool adjusted = summershift(session.onshow.tidedate, settings.summerflag2) != 0;
    session.view.disclaimer = accuracyfirst(adjusted ? adjustedline : uncorrectedline);
}

ConfigurationView openconfiguration(Session& session) {
    takerecord(session, false);
    Settings& settings = session.settings;
    settings.depfile = depfileof(session.folders, settings.hcfile);
    ConfigurationView view;
    view.sealabel = hcbasename(session.folders, settings.hcfile);
    view.confdraughtbox = numbertext(settings.currentdraught);
    view.confukcbox = numbertext(settings.currentukc);
    view.confoutputoption = outputtext(settings.currentoutput);
    pickusernotes(settings, view.port, settings.currentport - 1);
    view.port.rows = portrows(settings.hcfile);
    const int row = settings.currentport - 1;
    if (row >= 0 && row < static_cast<int>(view.port.rows.size())) view.selectedrow = row;
    return view;
}

}  // namespace tarvane
