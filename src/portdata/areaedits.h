// Changes to a sea area's file beyond one record: a port deleted, inserted or added, by way of the scratch file that
// stays behind. Each leaves the old file or the new one whole, and the file as it was before the run beside it; nothing
// is written over a file that can't be read, nor for a port that isn't in it. Must not ask or tell the user anything.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

#include "files/wholefiles.h"
#include "portdata/records.h"

namespace tarvane {

/// A record as it stands in the file; records are moved so, whatever they hold.
using HarmonicBytes = std::array<std::byte, harmonicrecordsize>;

/// The area files of which this run has kept a copy already.
struct AreaBackups {
    std::set<std::string> kept;
};

/// Keeps the file as it is beside itself, "UK.hc.bak", once a run for each file; one that isn't there needs none.
WriteOutcome keepbackup(AreaBackups& backups, const std::string& path);

/// What became of an edit.
struct AreaEdit {
    WriteOutcome written;
    std::int16_t ports = 0;    ///< in the file now
    std::int16_t newport = 0;  ///< record number at which the new port stands; 0 for none, or when it was not kept
};

/// Stores a record in place of port `number`, from 1.
AreaEdit changeport(AreaBackups& backups, const std::string& path, std::int16_t number, const HarmonicBytes& record);

/// Stores a record behind the last; a file that isn't there is made.
AreaEdit addport(AreaBackups& backups, const std::string& path, const HarmonicBytes& record);

/// Takes port `number` out. `scratch` is left holding the new file's records.
AreaEdit deleteport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number);

/// The insertion behind port `number` as it is told: port `number` comes twice, and the new port is kept only when
/// `number` is the last.
AreaEdit insertport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number,
                    const HarmonicBytes& record);

/// Puts all records of one area file behind those of another, which is made when it isn't there.
AreaEdit appendports(AreaBackups& backups, const std::string& path, const std::string& from);

/// Puts port `number` of an area file behind those that the scratch file holds, of which no copy is kept.
AreaEdit gatherport(const std::string& scratch, const std::string& from, std::int16_t number);

}  // namespace tarvane
