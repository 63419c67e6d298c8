#include "ports/portselection.h"

#include <filesystem>

#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "ports/usernotes.h"
#include "session/refresh.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// Writes the choice into the configuration, the fields of others surviving.
void storechoice(MainContext& context, bool sortedbyname) {
    Session& session = context.session;
    Settings& settings = session.settings;
    const bool stored = changeconfig(session.folders, settings, [&](ConfigRecord& record) {
        record.portnumber = settings.currentport;
        record.hcfilepath = trim(settings.areafile);
        record.sortmode = sortedbyname ? -1 : 0;
    });
    if (stored) return;
    context.services.messages.show("The choice of port can't be stored: " + session.folders.cfgpath(), "Tarvane",
                                   MessageIcon::exclamation);
}

/// Areas lie in two folders where the program's keeps no changes: it opens on the one in use, the other beside it.
void offerfolders(const Session& session, FileRequest& request) {
    if (session.folders.ownfolder.empty()) return;
    for (const std::string& folder : datafolders(session.folders)) {
        if (std::error_code odd; !std::filesystem::is_directory(folder, odd)) continue;
        request.places.push_back(folder);
        if (std::filesystem::path(session.settings.hcfile).parent_path() == folder) request.folder = folder;
    }
}

}  // namespace

void reloadforportlist(MainContext& context) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session.folders, settings);
    takechoices(settings, settings.configrec);
    settings.areafile = settings.hcfile;
}

bool choosesearea(MainContext& context) {
    FileRequest request;
    request.title = "Select Sea Area";
    request.folder = context.session.folders.programfolder;
    request.filter = "Harmonics (*.HC)|*.hc";
    offerfolders(context.session, request);
    const std::string chosen = context.services.filedialogs.open(request).value_or("");
    if (chosen.empty()) return false;
    if (!canopen(chosen)) {
        context.services.messages.show("File name not recognised- you should click on a sea area.", "");
        return false;
    }
    // A shipped area that the user has changed in his own folder is meant as he changed it.
    ConfigRecord record;
    record.hcfilepath = trim(chosen);
    findareafile(context.session.folders, record);
    context.session.settings.areafile = trim(record.hcfilepath);
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
    rereadconfig(session.folders, settings);
    takechoices(settings, settings.configrec);
    settings.wayfile = trim(settings.configrec.wayfilepath);
}

}  // namespace tarvane
