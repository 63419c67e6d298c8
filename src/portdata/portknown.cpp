#include "portdata/portknown.h"

#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

/// The records that an area of the user's own was made from; nothing when it isn't one of those.
std::optional<std::set<HarmonicBytes>> shippedrecords(const ProgramFolders& folders, const std::string& hcfile) {
    if (!originof(folders, hcfile).own) return std::nullopt;
    std::string shipped = shippedcopy(hcfile);
    if (!canopen(shipped)) shipped = folders.programfolder + hcfile.substr(hcfile.rfind('/'));
    if (!canopen(shipped)) return std::nullopt;
    std::set<HarmonicBytes> records;
    for (const HarmonicRecord& record : readports(shipped))
        records.insert(encode(record));
    return records;
}

}  // namespace

AreaKnown knownarea(const ProgramFolders& folders, const std::string& hcfile) {
    return {aboutarea(folders, hcfile), areanotes(folders, hcfile), shippedrecords(folders, hcfile)};
}

PortKnown whatisknown(const AreaKnown& area, const HarmonicRecord& record, int number) {
    PortKnown known{aboutport(area.table, record, number), {}};
    const bool asshipped = area.shipped && area.shipped->contains(encode(record));
    if (asshipped) return known;
    if (const OwnMade* made = madeof(area.notes, record))
        known.own = *made;
    else if (area.shipped)
        known.own = OwnMade{};
    return known;
}

}  // namespace tarvane
