#include "ports/portscopy.h"

#include "dates/isomoments.h"
#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "portdata/ownports.h"
#include "portdata/recordfiles.h"
#include "ports/harmonicedit.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// The names of a file's ports, whatever was there before them. False, told, when it can't be read.
bool readnames(MainContext& context, const std::string& path, std::vector<std::string>& names) {
    names.clear();
    for (const HarmonicRecord& port : readports(path))
        names.push_back(trimmedname(port));
    return canopen(path) || refuse(context, "The area file can't be read: " + path);
}

}  // namespace

void startgathering(MainContext& context) {
    context.services.folders.remove(workfile(context.session.folders).path);
}

bool picksource(MainContext& context, PortsCopy& copy, const std::string& name) {
    copy.source = datafile(context.session.folders, name);
    const bool read = readnames(context, copy.source, copy.ports);
    if (!read) copy.source.clear();
    return read;
}

bool gather(MainContext& context, PortsCopy& copy, int index) {
    if (index < 0 || index >= static_cast<int>(copy.ports.size())) return refuse(context, "No data");
    const WritableFile work = workfile(context.session.folders);
    const auto number = static_cast<std::int16_t>(index + 1);
    if (!canopen(copy.source) || number > portcount(copy.source))
        return refuse(context, "The port can't be read any more: " + copy.source);
    const AreaEdit made =
        work.prepared ? gatherport(work.path, copy.source, number) : AreaEdit{.written = work.prepared};
    if (!made.written) {
        tellfailure(context, "The port could not be gathered:", work.path + ": " + made.written.reason());
        return false;
    }
    ++copy.gathered;
    copy.from.push_back(namebeforepoint(copy.source.substr(copy.source.rfind('/') + 1)));
    const std::string& name = copy.ports[static_cast<std::size_t>(index)];
    // kept: copies and files are named after this port from now on, while the tides stay those of the current one
    context.session.port.portname = name;
    copy.listed.push_back(name);
    return true;
}

bool pickdestination(MainContext& context, PortsCopy& copy, const std::string& name) {
    copy.name = namebeforepoint(name);
    // kept: what was gathered before is no longer listed, and saved all the same
    return readnames(context, datafile(context.session.folders, name), copy.listed);
}

bool saveports(MainContext& context, const PortsCopy& copy) {
    if (trim(copy.name).empty()) return refuse(context, "No file name");
    const ProgramFolders& folders = context.session.folders;
    const std::string name = trim(copy.name);
    if (const std::string fault = areanamefault(name); !fault.empty()) return refuse(context, fault + ".");
    const std::string work = workfile(folders).path;
    const std::vector<HarmonicRecord> added = readports(work);
    if (portcount(work) != copy.gathered)
        return refuse(context, "The work file no longer holds the ports that were gathered: " + work +
                                   ". Nothing was written; open this window again and gather them anew.");
    // kept: an ending that was typed is part of the name, to which the ending comes once more
    const WritableFile area = datafiletowrite(folders, name + ".hc");
    const AreaEdit made =
        area.prepared ? appendports(context.session.backups, area.path, work) : AreaEdit{.written = area.prepared};
    if (!made.written) {
        tellfailure(context, "The ports could not be saved:", area.path + ": " + made.written.reason());
        return false;
    }
    followarea(context.session);
    const int before = made.ports - static_cast<int>(added.size());
    const WriteOutcome noted =
        notecopies(folders, area.path, added, copy.from, before, isodate(context.services.clock.now().today));
    answer(context, holds(area.path.substr(area.path.rfind('/') + 1), made.ports) +
                        (noted ? "" : "; where the ports come from could not be noted: " + noted.reason()));
    return true;
}

std::string gatheredtext(const PortsCopy& copy) {
    return numbertext(copy.gathered) + (copy.gathered == 1 ? " port gathered" : " ports gathered");
}

}  // namespace tarvane
