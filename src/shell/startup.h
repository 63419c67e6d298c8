// What the program does before its main window: folders, the probe of the date order, and the way back to the default
// settings. Must not show a window; a box goes through the messages service.
#pragma once

#include <optional>
#include <string>

#include "dates/dateformats.h"
#include "platform/services.h"
#include "portdata/configuration.h"

namespace tarvane {

/// What a start that went well hands on.
struct Started {
    ProgramFolders folders;
    DateConventions conventions;
    ProbedDate today;
};

/// The folders of this user. Without a documents folder it is the root of the file system, without a message.
ProgramFolders findfolders(const Folders& system);

/// Makes the working folders that aren't there. One that can't be made is passed over: later file operations fail
/// there.
void makefolders(Folders& system, const ProgramFolders& folders);

/// Finds and makes the folders and probes the date order. Nothing when the dates of this system can't be used: the user
/// has been told and the program must end.
std::optional<Started> startup(const Services& services);

/// Deletes the configuration file and does nothing else, so that the next main window starts with the default settings.
/// Silent, also without a file; a file that can't be deleted is told.
void restoredefaults(Folders& system, Messages& messages, const ProgramFolders& folders);

}  // namespace tarvane
