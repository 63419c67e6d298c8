// The ports of all sea areas at once, with what is known of each. Must not choose one or change a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "portdata/aboutports.h"

namespace tarvane {

struct WorldPort {
    std::size_t area = 0;               ///< its place in `World::areas`
    std::int16_t number = 0;            ///< in that area, from 1
    std::string name;                   ///< UTF-8, without blanks at its ends
    float latitude = 0, longitude = 0;  ///< degrees, north and east positive
    std::string zoneletter;
    std::optional<PortAbout> about;  ///< what the area's table tells of it
    bool own = false;                ///< the user entered or changed it: nothing that `about` measures holds
};

struct WorldArea {
    std::string path;
    std::string name;   ///< "US West Coast"
    std::string stamp;  ///< changes when the area's file, its table or the user's notes on its ports do
};

struct World {
    std::vector<WorldArea> areas;  ///< by name
    std::vector<WorldPort> ports;  ///< area by area, in file order
};

/// Reads every area that lies where the program keeps them, and `another` where that is none of them. Files that can't
/// be read are passed over.
World readworld(const ProgramFolders& folders, const std::string& another = "");

/// The same of one area alone, by the path of its file.
World readoneworld(const ProgramFolders& folders, const std::string& path);

/// Looks at the files and reads what has changed. True when anything had.
bool rereadworld(const ProgramFolders& folders, World& world, const std::string& another = "");

/// The place of an area's port; nothing when it is none of these.
std::optional<std::size_t> worldplace(const World& world, const std::string& area, int number);

/// The same of one that was called so when it was listed: nothing either where another has its number by now.
std::optional<std::size_t> worldplace(const World& world, const std::string& area, int number, const std::string& name);

/// What is said then.
std::string goneport(const std::string& area, const std::string& name);

}  // namespace tarvane
