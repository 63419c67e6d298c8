#include "adjust/savelocation.h"

#include <algorithm>
#include <cmath>

#include "dates/isomoments.h"
#include "portdata/areaedits.h"
#include "portdata/datafolder.h"
#include "portdata/ownports.h"
#include "portdata/recordfiles.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// The record as told: what nobody gave is zero bytes, not blanks.
HarmonicBytes bytesof(HarmonicRecord record, const std::optional<GivenPlace>& place) {
    record.PortNo.assign(5, '\0');
    record.TimeZoneLetter.assign(1, '\0');
    if (place) {
        record.PortLat = static_cast<float>(place->latitude);
        record.PortLong = static_cast<float>(place->longitude);
        if (!place->zoneletter.empty()) record.TimeZoneLetter = place->zoneletter;
    }
    return encode(record);
}

std::string whynot(const AdjustWorkspace& workspace, const SaveChoice& choice, const std::string& name) {
    if (name.empty()) return "Area must have a name";
    for (const std::string& fault : {filenamefault(name), areanamefault(namebeforepoint(name))})
        if (!fault.empty()) return fault;
    const HarmonicRecord record = recordof(workspace.boxes);
    for (const ConstantRow& row : constantrows)
        if (!std::isfinite(record.*row.field))
            return std::string(row.textbox).substr(3) + " is too large a number: nothing was saved";
    if (!choice.replace) return "";
    if (choice.highlighted < 0) return "Select the location to replace";
    const std::string file = namebeforepoint(name) + ".hc";
    if (namebeforepoint(choice.listedfile) != namebeforepoint(name))
        return "The highlighted location is one of " + choice.listedfile + ", not of " + file;
    return "";
}

/// How the boxes came about.
OwnMade madein(const AdjustWorkspace& workspace, Date today) {
    OwnMade made{OwnHow::derived, isodate(today), workspace.madefrom, {}, ""};
    if (workspace.fitted && workspace.fitted->boxes == workspace.boxes) {
        made.how = OwnHow::fitted;
        made.fit = workspace.fitted->figures;
    }
    return made;
}

}  // namespace

LocationSaved savelocation(AdjustWorkspace& workspace, Session& session, const SaveChoice& choice, Date today) {
    const std::string name = trim(choice.areaname);
    LocationSaved saved{whynot(workspace, choice, name), ""};
    if (!saved.message.empty()) return saved;
    const std::string file = namebeforepoint(name) + ".hc";
    HarmonicRecord record = recordof(workspace.boxes);
    record.PortName = trim(choice.location);
    const HarmonicBytes bytes = bytesof(record, workspace.place);
    const WritableFile target = datafiletowrite(session.folders, file);
    AreaEdit edit{target.prepared, 0, 0};
    std::optional<HarmonicRecord> before;
    if (target.prepared) {
        const auto number = static_cast<std::int16_t>(choice.highlighted + 1);
        if (choice.replace) before = readport(target.path, number);
        edit = choice.replace ? changeport(session.backups, target.path, number, bytes)
                              : addport(session.backups, target.path, bytes);
    }
    if (!edit.written) {
        saved.message = "The location can't be saved: " + target.path + "\n" + edit.written.reason();
        return saved;
    }
    followarea(session);
    workspace.saved = workspace.boxes;
    saved.answer = file + ": " + std::to_string(edit.ports) + (edit.ports == 1 ? " port; " : " ports; ") +
                   (choice.replace ? "port " + std::to_string(edit.newport) + " is now " + record.PortName
                                   : "the new port stands last");
    const WriteOutcome noted =
        noteport(session.folders, target.path, edit.newport, before, decodeharmonic(bytes), madein(workspace, today));
    if (!noted) saved.answer += "; that it is yours could not be noted: " + noted.reason();
    if (!workspace.place) saved.answer += ". Give it its position and zone in Correct Port Constants.";
    return saved;
}

}  // namespace tarvane
