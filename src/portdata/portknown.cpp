#include "portdata/portknown.h"

#include <algorithm>
#include <vector>

#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

/// Beside the program where its areas can be changed: the areas as they were built.
constexpr const char* suppliedfolder = "/Supplied";

/// An area's file as it ships, where it may have been changed since; empty when there is none.
std::string shippedfile(const ProgramFolders& folders, const std::string& hcfile) {
    const std::string name = hcfile.substr(hcfile.rfind('/'));
    std::vector<std::string> files{folders.programfolder + suppliedfolder + name};
    if (originof(folders, hcfile).own) files = {shippedcopy(hcfile), folders.programfolder + name};
    const auto found = std::find_if(files.begin(), files.end(), canopen);
    return found == files.end() ? "" : *found;
}

/// A record without its place in the area, which others' coming and going changes, and on the earth.
HarmonicBytes contentof(HarmonicRecord record) {
    record.PortNo.clear();
    record.PortLat = 0;
    record.PortLong = 0;
    return encode(record);
}

std::optional<std::set<HarmonicBytes>> shippedrecords(const ProgramFolders& folders, const std::string& hcfile) {
    const std::string shipped = shippedfile(folders, hcfile);
    if (shipped.empty()) return std::nullopt;
    std::set<HarmonicBytes> records;
    for (const HarmonicRecord& record : readports(shipped))
        records.insert(contentof(record));
    return records;
}

}  // namespace

AreaKnown knownarea(const ProgramFolders& folders, const std::string& hcfile) {
    return {aboutarea(folders, hcfile), areanotes(folders, hcfile), shippedrecords(folders, hcfile)};
}

PortKnown whatisknown(const AreaKnown& area, const HarmonicRecord& record, int number) {
    PortKnown known{aboutport(area.table, record, number), {}};
    const bool asshipped = area.shipped && area.shipped->contains(contentof(record));
    if (asshipped) return known;
    if (const OwnMade* made = madeof(area.notes, record))
        known.own = *made;
    else if (area.shipped)
        known.own = OwnMade{};
    return known;
}

}  // namespace tarvane
