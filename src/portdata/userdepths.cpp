#include "portdata/userdepths.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "files/wholefiles.h"
#include "portdata/coordinates.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {

std::string hcbasename(const ProgramFolders& folders, const std::string& hcfile) {
    const std::string folder = folders.programfolder + "/";
    const bool inside = hcfile.starts_with(folder) && hcfile.find('/', folder.size()) == std::string::npos;
    // A record that another system wrote may hold a path with the other separator.
    return namebeforepoint(hcfile.substr(inside ? folder.size() : hcfile.find_last_of("/\\") + 1));
}

std::string depfileof(const ProgramFolders& folders, const std::string& hcfile) {
    return folders.depthsfolder() + "/" + hcbasename(folders, hcfile) + ".DEP";
}

bool EnsureDepFile(const ProgramFolders& folders, Settings& settings) {
    settings.depfile = depfileof(folders, settings.hcfile);
    if (canopen(settings.depfile)) return true;
    // Without its area the file would stay empty when the area comes back.
    if (!canopen(settings.hcfile)) return false;
    std::vector<std::byte> bytes;
    std::int16_t recordnumber = 0;
    for (const HarmonicRecord& port : readports(settings.hcfile)) {
        const auto record = encode(newdepthrecord(port, ++recordnumber));
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return replacefile(settings.depfile, bytes);
}

UserDepthRecord newdepthrecord(const HarmonicRecord& port, std::int16_t recordnumber) {
    UserDepthRecord record;
    record.DepthPortName = port.PortName;
    record.DepthPortNo = recordnumber;
    record.Notes = "Position" + LatitudeText(port.PortLat) + "  " + LongitudeText(port.PortLong);
    return record;
}

}  // namespace tarvane
