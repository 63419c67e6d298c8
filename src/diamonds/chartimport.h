// The import of chart areas from a removable medium, as far as it isn't controls: the drive and folder in hand, the
// areas found there and the copying of their files. Must not know any control, nor what the files hold.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tarvane {

/// A row of the folder list.
struct FolderRow {
    std::string path;
    std::string name;   ///< its last part; a drive's own folder has its whole path
    int depth = 0;      ///< below the drive's own folder
    bool open = false;  ///< on the way to the folder in hand, or that itself
};

/// What the window shows.
struct ChartImport {
    std::vector<Drive> drives;
    std::string drive;                  ///< path of the one that `folder` is on
    std::string folder;                 ///< the path of `dirDirectories`
    std::vector<FolderRow> folders;     ///< of `dirDirectories`: from the drive down to `folder`, and what lies in that
    std::vector<std::string> areas;     ///< of `filFilenames`: names of the .cha files in `folder`, sorted
    std::vector<std::string> outcomes;  ///< what became of each file of the last import
};

/// The window as it opens: the first removable medium, where there is one that can be read.
ChartImport openimport(const MainContext& context);

/// Media that came or went; the folder in hand stays. True if there was any change.
bool refreshdrives(const MainContext& context, ChartImport& import);

/// Changing `drvDrives`. False, told, when the drive can't be read; all stays as it was then.
bool pickdrive(MainContext& context, ChartImport& import, const std::string& path);

/// Changing `dirDirectories`. False, told, when the folder can't be read; the one in hand stays then.
bool pickfolder(MainContext& context, ChartImport& import, const std::string& path);

/// `cmdimport`: the files of every area in the folder go into the folder of the program's data, and the user is told of
/// it.
void importareas(MainContext& context, ChartImport& import);

}  // namespace tarvane
