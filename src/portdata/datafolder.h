// Where the files lie that the user may change: area files, heights read on the spot and the work file. It is the
// program's folder, or where that keeps no changes (it is installed, or can't be written) a folder of the user's own,
// which comes first. One place knows it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/wholefiles.h"
#include "portdata/configuration.h"

namespace tarvane {

/// The folders that files are looked for in, the user's own first; they needn't be there.
std::vector<std::string> datafolders(const ProgramFolders& folders);

/// Names of the files that end so (".hc", whatever the case), each once, sorted; without their folder.
std::vector<std::string> datafiles(const ProgramFolders& folders, std::string_view ending);

/// Where to read a file of this name: the user's own where there is one, else the program folder's, there or not. A
/// file whose name differs in the case of letters alone is meant when there is none of the very name.
std::string datafile(const ProgramFolders& folders, const std::string& name);

/// The paths of every area that lies where the program keeps them, by name, the user's own in the place of one that
/// ships; without the program's own work file.
std::vector<std::string> everyarea(const ProgramFolders& folders);

struct WritableFile {
    std::string path;
    WriteOutcome prepared;  ///< an error when the folder or the copy couldn't be made
};

/// Where to write it. In the user's own folder, which is made, the file as shipped is put first if it isn't there yet,
/// so that a change to a part of it leaves the rest; it stands there once more as "UK.hc.shipped".
WritableFile datafiletowrite(const ProgramFolders& folders, const std::string& name);

/// Where the file as shipped stands beside the user's own that was made of it.
std::string shippedcopy(const std::string& own);

/// Whose a file in use is.
struct FileOrigin {
    std::string path;
    bool own = false;             ///< it lies in the user's own folder
    bool shippedanother = false;  ///< what it was made of isn't what the program brings now under its name
};

/// Looks at the files.
FileOrigin originof(const ProgramFolders& folders, const std::string& path);

/// Where the work file "scratch.hc" lies: in the folder that changes are written to, which is made.
WritableFile workfile(const ProgramFolders& folders);

/// Why a typed text can't be the name of a file in the folder, a sentence; empty when it can.
std::string filenamefault(std::string_view name);

/// The same for an area file's name without its ending; the work file's is none.
std::string areanamefault(const std::string& name);

/// "UK" of "UK.hc": a file's name up to its first point.
std::string namebeforepoint(std::string_view name);

}  // namespace tarvane
