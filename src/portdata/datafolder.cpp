#include "portdata/datafolder.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace tarvane {
namespace {

namespace fs = std::filesystem;

std::string lower(std::string_view text) {
    std::string folded(text);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return folded;
}

/// Every plain file of a folder; none when it isn't there.
std::vector<std::string> namesin(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (std::error_code odd; entry->is_regular_file(odd)) names.push_back(entry->path().filename().string());
    return names;
}

}  // namespace

std::string shippedcopy(const std::string& own) {
    return own + ".shipped";
}

std::vector<std::string> datafolders(const ProgramFolders& folders) {
    if (folders.ownfolder.empty()) return {folders.programfolder};
    return {folders.ownfolder, folders.programfolder};
}

std::vector<std::string> datafiles(const ProgramFolders& folders, std::string_view ending) {
    std::set<std::string> names;
    for (const std::string& folder : datafolders(folders))
        for (const std::string& name : namesin(folder))
            if (lower(name).ends_with(lower(ending))) names.insert(name);
    return {names.begin(), names.end()};
}

std::string datafile(const ProgramFolders& folders, const std::string& name) {
    for (const std::string& folder : datafolders(folders))
        if (canopen(folder + "/" + name)) return folder + "/" + name;
    for (const std::string& folder : datafolders(folders)) {
        std::vector<std::string> names = namesin(folder);
        std::sort(names.begin(), names.end());
        for (const std::string& other : names)
            if (lower(other) == lower(name)) return folder + "/" + other;
    }
    return folders.programfolder + "/" + name;
}

std::vector<std::string> everyarea(const ProgramFolders& folders) {
    std::vector<std::string> paths;
    for (const std::string& name : datafiles(folders, ".hc"))
        if (areanamefault(namebeforepoint(name)).empty()) paths.push_back(datafile(folders, name));
    return paths;
}

WritableFile datafiletowrite(const ProgramFolders& folders, const std::string& name) {
    const std::string standing = datafile(folders, name);
    if (folders.ownfolder.empty() || standing.starts_with(folders.ownfolder + "/")) return {standing, {}};
    WriteOutcome prepared;
    fs::create_directories(folders.ownfolder, prepared.error);
    const std::string own = folders.ownfolder + standing.substr(standing.rfind('/'));
    const auto shipped = wholefile(standing);
    if (!shipped) prepared.error = std::make_error_code(std::errc::permission_denied);
    if (prepared && canopen(standing)) prepared = replacefile(shippedcopy(own), *shipped);
    if (prepared && canopen(standing)) prepared = replacefile(own, *shipped);
    return {own, prepared};
}

FileOrigin originof(const ProgramFolders& folders, const std::string& path) {
    FileOrigin origin{path};
    origin.own = !folders.ownfolder.empty() && path.starts_with(folders.ownfolder + "/");
    const std::string shipped = folders.programfolder + "/" + path.substr(path.find_last_of('/') + 1);
    if (origin.own && canopen(shippedcopy(path)) && canopen(shipped))
        origin.shippedanother = readwhole(shippedcopy(path)) != readwhole(shipped);
    return origin;
}

WritableFile workfile(const ProgramFolders& folders) {
    WriteOutcome prepared;
    if (folders.ownfolder.empty()) return {folders.programfolder + "/scratch.hc", prepared};
    fs::create_directories(folders.ownfolder, prepared.error);
    return {folders.ownfolder + "/scratch.hc", prepared};
}

std::string filenamefault(std::string_view name) {
    if (name.find_first_of("/\\") != std::string_view::npos || name.starts_with('.'))
        return "A file name can't hold \"/\" or \"\\\", nor begin with a point: files lie in the program's folder";
    const bool control = std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; });
    return control ? "A file name can't hold control characters" : "";
}

std::string areanamefault(const std::string& name) {
    if (lower(name) == "scratch") return "scratch.hc is the program's own work file, which is emptied again";
    return filenamefault(name);
}

std::string namebeforepoint(std::string_view name) {
    return std::string(name.substr(0, name.find('.')));
}

}  // namespace tarvane
