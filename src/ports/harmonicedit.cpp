#include "ports/harmonicedit.h"

#include <optional>

#include "dates/isomoments.h"
#include "files/wholefiles.h"
#include "portdata/coordinates.h"
#include "portdata/datafolder.h"
#include "portdata/ownports.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

std::int16_t recordnumber(const HarmonicEdit& edit) {
    return static_cast<std::int16_t>(edit.listindex + 1);
}

std::string portnumbered(std::int16_t number) {
    return "port " + numbertext(int{number});
}

/// The highlighted port's name as its file has it now.
std::string highlightedname(const HarmonicEdit& edit) {
    const std::string name = trimmedname(readport(edit.editfilepath, recordnumber(edit)));
    return name.empty() ? portnumbered(recordnumber(edit)) : name;
}

void reloadlist(HarmonicEdit& edit, int rowinview) {
    edit.portlist.clear();
    for (const HarmonicRecord& port : readports(edit.editfilepath))
        edit.portlist.push_back(trimmedname(port));
    edit.listindex = -1;
    edit.rowinview = rowinview;
}

const std::string& typed(const HarmonicEdit& edit, const char* box) {
    return edit.texts[boxplace(box)];
}

/// The record that the boxes make; nothing, told, when they don't hold one.
std::optional<HarmonicRecord> typedrecord(MainContext& context, const HarmonicEdit& edit) {
    // kept: the equator is no latitude, and the longitude stops nothing
    const double latitude = ParseLatitude(typed(edit, "txtportlat"));
    const double longitude = ParseLongitude(typed(edit, "txtportlong"));
    if (latitude == 0) {
        refuse(context, "Error - Latitude entry");
    } else if (ltrim(typed(edit, "txtportname")).empty()) {
        refuse(context, "Error - No port selected");
    } else if (const std::string fault = boxfault(edit.texts); !fault.empty()) {
        refuse(context, fault + ". Nothing was written.");
    } else {
        // kept: the position goes to the port on show too, whichever port is edited
        context.session.port.portlat = static_cast<float>(latitude);
        context.session.port.portlong = static_cast<float>(longitude);
        return recordof(edit.texts);
    }
    return std::nullopt;
}

bool areachosen(MainContext& context, const HarmonicEdit& edit) {
    if (!edit.editfilepath.empty()) return true;
    context.services.messages.show("Select an existing area from the File -> Area Select Menu!!", "");
    return false;
}

bool arearead(MainContext& context, const HarmonicEdit& edit) {
    if (edit.editfilepath.empty()) return refuse(context, "Choose the area to edit first. Nothing was written.");
    if (canopen(edit.editfilepath)) return true;
    return refuse(context, "The area file can't be read: " + edit.editfilepath + ". Nothing was written.");
}

bool porthighlighted(MainContext& context, const HarmonicEdit& edit) {
    if (!arearead(context, edit)) return false;
    if (edit.listindex < 0)
        return refuse(context, "No port is highlighted in the list of " + edit.editfilename + ". Nothing was written.");
    if (recordnumber(edit) <= portcount(edit.editfilepath)) return true;
    return refuse(context, "There is no " + portnumbered(recordnumber(edit)) + " in " + edit.editfilename +
                               " any more. Choose the area anew. Nothing was written.");
}

/// The file's place for changes becomes the one in hand. False, told, when there is none.
bool preparearea(MainContext& context, HarmonicEdit& edit) {
    const WritableFile area = datafiletowrite(context.session.folders, edit.editfilename);
    const WritableFile work = workfile(context.session.folders);
    for (const WritableFile* file : {&area, &work})
        if (!file->prepared) {
            tellfailure(context, "The area file could not be prepared for changes:",
                        file->path + ": " + file->prepared.reason());
            return false;
        }
    edit.editfilepath = area.path;
    return true;
}

/// What became of a change: told when it failed, and in the status line when it didn't.
bool finished(MainContext& context, HarmonicEdit& edit, const AreaEdit& made, const std::string& what) {
    if (!made.written) {
        tellfailure(context, "The area file could not be written:", edit.editfilepath + ": " + made.written.reason());
        return false;
    }
    edit.changed.insert(edit.editfilepath);
    edit.status = holds(edit.editfilename, made.ports) + what;
    return true;
}

/// What couldn't be noted of the change is told behind it: the change itself stands.
void noted(HarmonicEdit& edit, const WriteOutcome& written) {
    if (!written)
        edit.status += "\nThat it is yours could not be noted: " + std::string(ownportsname) + ": " + written.reason();
}

/// The note on a port that the boxes have made.
OwnMade madeby(const MainContext& context, OwnHow how) {
    OwnMade made;
    made.how = how;
    made.date = isodate(context.services.clock.now().today);
    return made;
}

/// Adds what a port that came or went has done to the area's depths.
void warnofdepths(const MainContext& context, HarmonicEdit& edit) {
    const std::string depths = depfileof(context.session.folders, edit.editfilename);
    if (canopen(depths))
        edit.status +=
            "\nThe depths and notes of this area no longer line up with its ports: they can be matched by "
            "name in Port Notes";
}

}  // namespace

HarmonicEdit openeditor(const Session& session) {
    HarmonicEdit edit;
    edit.texts = edit.stored = BoxTexts(portboxes().size());
    edit.portbefore = session.settings.currentport;
    return edit;
}

bool pickarea(MainContext& context, HarmonicEdit& edit, const std::string& name) {
    edit.editfilename = trim(name);
    edit.editfilepath = datafile(context.session.folders, edit.editfilename);
    reloadlist(edit, 0);
    edit.status = holds(edit.editfilename, portcount(edit.editfilepath));
    if (canopen(edit.editfilepath)) return true;
    refuse(context, "The area file can't be read: " + edit.editfilepath);
    edit.editfilename.clear();
    edit.editfilepath.clear();
    edit.status.clear();
    return false;
}

bool pickport(MainContext& context, HarmonicEdit& edit, int index) {
    const auto number = static_cast<std::int16_t>(index + 1);
    edit.listindex = edit.rowinview = -1;
    if (index < 0 || number > portcount(edit.editfilepath))
        return refuse(context, "There is no " + portnumbered(number) + " to be read in " + edit.editfilepath);
    edit.listindex = index;
    edit.texts = edit.stored = boxtexts(readport(edit.editfilepath, number));
    return true;
}

bool acceptchanges(MainContext& context, HarmonicEdit& edit) {
    if (!areachosen(context, edit)) return false;
    const auto record = typedrecord(context, edit);
    if (!record || !porthighlighted(context, edit) || !preparearea(context, edit)) return false;
    const std::int16_t number = recordnumber(edit);
    const HarmonicRecord before = readport(edit.editfilepath, number);
    const AreaEdit made = changeport(context.session.backups, edit.editfilepath, number, encode(*record));
    if (!finished(context, edit, made, "; " + portnumbered(number) + " was changed")) return false;
    noted(edit, noteport(context.session.folders, edit.editfilepath, number, before, *record,
                         madeby(context, OwnHow::corrected)));
    // kept: the list goes on showing the name that the port had
    edit.stored = edit.texts;
    return true;
}

bool addnewport(MainContext& context, HarmonicEdit& edit) {
    if (!areachosen(context, edit)) return false;
    const auto record = typedrecord(context, edit);
    if (!record || !arearead(context, edit) || !preparearea(context, edit)) return false;
    const AreaEdit made = addport(context.session.backups, edit.editfilepath, encode(*record));
    if (!finished(context, edit, made, "; the new port stands last")) return false;
    noted(edit, noteport(context.session.folders, edit.editfilepath, made.newport, {}, *record,
                         madeby(context, OwnHow::entered)));
    reloadlist(edit, made.newport - 1);
    edit.stored = edit.texts;
    return true;
}

bool insertnewport(MainContext& context, HarmonicEdit& edit) {
    if (!porthighlighted(context, edit)) return false;
    // kept: the number of a port of the edited file becomes that of the port on show
    const std::int16_t p = context.session.settings.currentport = recordnumber(edit);
    const auto record = typedrecord(context, edit);
    if (!record || !preparearea(context, edit)) return false;
    const std::string twice = ", " + highlightedname(edit) + " twice; ";
    const AreaEdit made = insertport(context.session.backups, edit.editfilepath, workfile(context.session.folders).path,
                                     p, encode(*record));
    const bool keptport = made.newport != 0;
    const char* const what = keptport ? "the new port stands last" : "the new port was not kept: use Add Port";
    if (!finished(context, edit, made, twice + what)) return false;
    const ProgramFolders& folders = context.session.folders;
    WriteOutcome kept = noteinserted(folders, edit.editfilepath, p);
    if (kept && keptport)
        kept = noteport(folders, edit.editfilepath, made.newport, {}, *record, madeby(context, OwnHow::entered));
    noted(edit, kept);
    reloadlist(edit, p);
    if (keptport) edit.stored = edit.texts;
    warnofdepths(context, edit);
    return true;
}

bool deletehighlighted(MainContext& context, HarmonicEdit& edit) {
    if (!porthighlighted(context, edit)) return false;
    // kept: as at an insertion
    const std::int16_t p = context.session.settings.currentport = recordnumber(edit);
    if (!preparearea(context, edit)) return false;
    const std::string name = highlightedname(edit);
    const AreaEdit made =
        deleteport(context.session.backups, edit.editfilepath, workfile(context.session.folders).path, p);
    if (!finished(context, edit, made, "; " + name + " was deleted")) return false;
    noted(edit, notedeleted(context.session.folders, edit.editfilepath, p));
    reloadlist(edit, p - 1);
    warnofdepths(context, edit);
    return true;
}

bool unaccepted(const HarmonicEdit& edit) {
    return edit.texts != edit.stored && !allempty(edit.texts);
}

std::string acceptquestion(const HarmonicEdit& edit) {
    if (edit.listindex < 0) return "What was typed stands in no area file. Add it as a new port?";
    return "The constants of " + highlightedname(edit) + " were changed. Accept the changes?";
}

bool acceptorleave(MainContext& context, HarmonicEdit& edit) {
    if (!unaccepted(edit)) return true;
    switch (context.services.messages.askorcancel(acceptquestion(edit), messagetitle)) {
        case Answer::yes:
            return edit.listindex < 0 ? addnewport(context, edit) : acceptchanges(context, edit);
        case Answer::no:
            return true;
        case Answer::cancel:
            break;
    }
    return false;
}

void closeeditor(MainContext& context, const HarmonicEdit& edit) {
    Session& session = context.session;
    const Settings& settings = session.settings;
    const bool moved = settings.currentport != edit.portbefore;
    if (!edit.changed.empty()) followarea(session);
    if (!moved && !edit.changed.contains(settings.hcfile)) return;
    takecurrentport(session, true);
    setportbox(session);
    clearmonthcells(session.month);
    clearmonthlist(session);
    session.timenow = clockhours(context.services.clock);
    refreshday(context);
    const std::string area = settings.hcfile.substr(settings.hcfile.rfind('/') + 1);
    if (settings.currentport > portcount(settings.hcfile))
        answer(context, "There is no " + portnumbered(settings.currentport) + " in " + area + ": select a port");
    else if (moved)
        answer(context, "The port on show is " + portnumbered(settings.currentport) + " of " + area + " now");
}

std::string holds(const std::string& filename, std::int16_t ports) {
    return filename + ": " + numbertext(int{ports}) + (ports == 1 ? " port" : " ports");
}

}  // namespace tarvane
