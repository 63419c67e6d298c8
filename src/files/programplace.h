// Where the program's own data lie, and whether what the user changes may be kept among them. Must not make a folder.
#pragma once

#include <string>

namespace tarvane {

/// The folder of the area files, of Sample.way and of the manual.
struct ProgramPlace {
    std::string folder;      ///< without a trailing separator
    bool installed = false;  ///< the next version writes over what lies there

    /// True if what the user changes is kept in the folder too. Never in an installed one, not even for who could write
    /// there: an upgrade would take it away.
    bool keepschanges() const;
};

/// The place that belongs to an executable in this folder: the folder itself where area files lie in it, as in the tree
/// that it is built in; else, installed, "share/tarvane-tides" beside the folder; else the folder itself.
ProgramPlace programplace(const std::string& executablefolder);

}  // namespace tarvane
