#include "mainview/portselection.h"

#include "mainview/loading.h"
#include "mainview/usernotes.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

void rereadconfig(Session& session) {
    session.settings.configrec = RereadConfig(session.folders, session.settings.configrec);
}

/// Writes the choice into the configuration, the fields of others surviving.
void storechoice(MainContext& context, bool sortedbyname) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session);
    settings.configrec.portnumber = settings.currentport;
    settings.configrec.hcfilepath = trim(settings.areafile);
    settings.configrec.sortmode = sortedbyname ? -1 : 0;
    if (SaveConfig(session.folders, settings.configrec)) return;
    context.services.messages.show("The choice of port can't be stored: " + session.folders.cfgpath(), "Tarvane",
                                   MessageIcon::exclamation);
}

}  // namespace

void reloadforportlist(MainContext& context) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session);
    takechoices(settings, settings.configrec);
    settings.areafile = settings.hcfile;
}

bool choosesearea(MainContext& context) {
    FileRequest request;
    request.title = "Select Sea Area";
    request.folder = context.session.folders.programfolder;
    request.filter = "Harmonics (*.HC)|*.hc";
    const std::string chosen = context.services.filedialogs.open(request).value_or("");
    if (chosen.empty()) return false;
    if (!canopen(chosen)) {
        context.services.messages.show("File name not recognised- you should click on a sea area.", "");
        return false;
    }
    context.session.settings.areafile = trim(chosen);
    return true;
}

bool portconfigok(MainContext& context, const PortList& list, int listindex, bool sortedbyname) {
    Session& session = context.session;
    Settings& settings = session.settings;
    if (listindex < 0 || list.selectedport < 1) {
        context.services.messages.show("Select a port", "Tarvane");
        return false;
    }
    settings.currentport = list.selectedport;
    storechoice(context, sortedbyname);
    // The path as the record holds it: a long one is cut there.
    const std::string stored = trim(decodeconfig(encode(settings.configrec)).hcfilepath);
    // kept: tested only now that the record is written, bad number and all
    if (settings.configrec.portnumber > portcount(stored)) {
        context.services.messages.show(
            "Error in Port selection, Port number greater than the number of records in the file", "");
        return false;
    }
    settings.hcfile = stored;
    takecurrentport(session, true);
    setportbox(session);
    ensuredepths(context);
    session.timenow = clockhours(context.services.clock);
    refreshday(context);
    context.surfaces.picture.clear();
    clearmonthlist(session);
    return true;
}

void portconfigcancel(MainContext& context) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session);
    takechoices(settings, settings.configrec);
    settings.wayfile = trim(settings.configrec.wayfilepath);
}

}  // namespace tarvane
