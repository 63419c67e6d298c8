// What `tides` takes from the machine it runs on, handed in so that a test can script it, and the folders and stored
// settings that follow from it. Must not write anything: no configuration and no depths file is ever made here.
#pragma once

#include <string>
#include <vector>

#include "dates/calendar.h"
#include "platform/zones.h"
#include "portdata/configuration.h"

namespace tarvane {

struct TidesEnvironment {
    std::string programfolder;  ///< where the executable lies
    std::string home;           ///< HOME
    std::string datahome;       ///< XDG_DATA_HOME, empty when unset
    std::string confighome;     ///< XDG_CONFIG_HOME, empty when unset
    Date today{};               ///< the local calendar date
    std::chrono::sys_seconds now{};
    const Zones* zones = nullptr;  ///< the rules of the ports' clocks
};

/// The folders that the desktop program would work in for this user.
ProgramFolders foldersof(const TidesEnvironment& environment);

/// The stored settings, or those of a first start where no configuration is stored. The fault, empty when there is
/// none.
std::string readsettings(const ProgramFolders& folders, Settings& settings);

/// A sea area as it was read.
struct AreaInHand {
    std::string path;
    std::string name;  ///< of the file, without its folder
    std::vector<HarmonicRecord> records;
    std::vector<std::string> names;  ///< of the ports, trimmed, in file order
};

/// Reads the area file at `path`, which a configuration may leave empty. The fault, empty when there is none.
std::string readarea(const std::string& path, AreaInHand& area);

/// The same of an area as it is typed: the path of a file, else the name of one that the program keeps, whatever its
/// case and accents, with its ending or without. A name that none has is a fault that tells the nearest ones.
std::string readtypedarea(const ProgramFolders& folders, const std::string& typed, AreaInHand& area);

}  // namespace tarvane
