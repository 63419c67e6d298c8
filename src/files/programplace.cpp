#include "files/programplace.h"

#include <filesystem>

#include "files/wholefiles.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

bool holdsareas(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string ending = entry->path().extension();
        if (std::error_code odd; (ending == ".hc" || ending == ".HC") && entry->is_regular_file(odd)) return true;
    }
    return false;
}

}  // namespace

bool ProgramPlace::keepschanges() const {
    return !installed && canwritein(folder);
}

ProgramPlace programplace(const std::string& executablefolder) {
    const fs::path beside = fs::path(executablefolder).parent_path() / "share" / "tarvane-tides";
    std::error_code error;
    if (holdsareas(executablefolder) || !fs::is_directory(beside, error)) return {executablefolder, false};
    return {beside.string(), true};
}

}  // namespace tarvane
