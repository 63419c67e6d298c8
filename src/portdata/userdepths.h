// The user's depths and notes: the .DEP file that stands for each sea area, its name and its making.
#pragma once

#include <string>

#include "portdata/configuration.h"

namespace tarvane {

/// The area file's name without its folder, up to the first ".". In the program folder the folder is cut off by its
/// length; a file elsewhere gives its own name.
std::string hcbasename(const ProgramFolders& folders, const std::string& hcfile);

/// Path of the user file of an area: documents/TarvaneTides/UserDepths/NAME.DEP.
std::string depfileof(const ProgramFolders& folders, const std::string& hcfile);

/// Builds `settings.depfile` for `settings.hcfile` and makes the file, one record a port, when it can't be opened.
/// False if it is still missing afterwards.
bool EnsureDepFile(const ProgramFolders& folders, Settings& settings);

/// The record that a port starts with: depth 0 and its position as a note.
UserDepthRecord newdepthrecord(const HarmonicRecord& port, std::int16_t recordnumber);

}  // namespace tarvane
