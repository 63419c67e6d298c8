// The ports that the user has marked as favourites and those that he chose last, in a file of their own beside the
// configuration. Must not touch that one.
#pragma once

#include <string>
#include <vector>

#include "portdata/configuration.h"
#include "portdata/keptfile.h"
#include "world/worldports.h"

namespace tarvane {

/// By names, which stay when an area is renumbered; several ports of one name in an area are kept together.
struct KeptPort {
    std::string area;  ///< its file's name, "UK.hc"
    std::string name;
    bool operator==(const KeptPort&) const = default;
};

struct FinderKeeps {
    std::vector<KeptPort> favourites;  ///< as they were marked
    std::vector<KeptPort> recents;     ///< the last one first
    KeptState state = {};              ///< how the file was found
};

inline constexpr std::size_t mostrecents = 12;

KeptPort keptport(const World& world, std::size_t place);

/// Where they stand among the world's ports, in their order; those that are gone are passed over.
std::vector<std::size_t> keptplaces(const World& world, const std::vector<KeptPort>& kept);

/// Where they are kept.
std::string finderkeepspath(const ProgramFolders& folders);

/// None for a file that isn't there or isn't one of these; an entry that can't be used is passed over.
FinderKeeps readfinderkeeps(const std::string& path);

/// What the user has to be told of the file, once; empty when that is nothing.
std::string tellfinderkeeps(const std::string& path);

/// Makes a port a favourite, or no longer one, in the file as it stands now. One that isn't understood whole is put
/// beside first; one that can't be read stays, and the outcome says so.
WriteOutcome togglefavourite(const std::string& path, const KeptPort& port);

/// Puts a port first among the recent ones. A file in which it is that already stays untouched.
WriteOutcome noterecent(const std::string& path, const KeptPort& port);

}  // namespace tarvane
