#include "tides/environment.h"

#include <filesystem>
#include <string_view>

#include "files/programplace.h"
#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "portdata/portsearch.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {

namespace {

/// A folder variable counts only when it is absolute, as the desktop's own rules have it.
std::string folderor(const std::string& value, const std::string& otherwise) {
    return value.starts_with('/') ? value : otherwise;
}

/// The value of a line `KEY="..."` with $HOME resolved; empty when the line is another or the path is not absolute.
std::string userfolderof(const std::string& line, std::string_view key, const std::string& home) {
    const std::string text = trim(line);
    if (!text.starts_with(key)) return "";
    std::string value = trim(std::string_view(text).substr(key.size()));
    if (!value.starts_with('=')) return "";
    value = trim(std::string_view(value).substr(1));
    if (value.size() < 2 || value.front() != '"' || value.back() != '"') return "";
    value = value.substr(1, value.size() - 2);
    constexpr std::string_view homemark = "$HOME";
    if (value.starts_with(homemark)) value = home + value.substr(homemark.size());
    while (value.size() > 1 && value.ends_with('/'))
        value.pop_back();
    return value.starts_with('/') ? value : "";
}

std::string documentsof(const TidesEnvironment& environment) {
    const std::string confighome = folderor(environment.confighome, environment.home + "/.config");
    std::string documents = environment.home + "/Documents";
    std::string line;
    const auto takeline = [&] {
        const std::string folder = userfolderof(line, "XDG_DOCUMENTS_DIR", environment.home);
        if (!folder.empty()) documents = folder;
        line.clear();
    };
    for (const std::byte byte : readwhole(confighome + "/user-dirs.dirs")) {
        const char character = static_cast<char>(byte);
        if (character == '\n') {
            takeline();
        } else if (character != '\r') {
            line += character;
        }
    }
    takeline();
    return documents;
}

}  // namespace

ProgramFolders foldersof(const TidesEnvironment& environment) {
    ProgramFolders folders;
    const ProgramPlace place = programplace(environment.programfolder);
    folders.programfolder = place.folder;
    folders.docsfolder = documentsof(environment);
    folders.appdatafolder = folderor(environment.datahome, environment.home + "/.local/share");
    if (!place.keepschanges()) folders.ownfolder = folders.configfolder() + "/Areas";
    return folders;
}

std::string readsettings(const ProgramFolders& folders, Settings& settings) {
    const std::string path = folders.cfgpath();
    std::error_code ignored;
    if (canopen(path)) {
        settings.configrec = LoadConfig(folders);
    } else if (std::filesystem::exists(path, ignored)) {
        return "the configuration " + path + " can't be read";
    } else {
        settings.configrec = defaultconfig(folders);
    }
    findareafile(folders, settings.configrec);
    takesettings(settings);
    return "";
}

std::string readarea(const std::string& path, AreaInHand& area) {
    if (path.empty()) return "the stored configuration names no sea area file; give one with --area";
    if (!canopen(path)) return "the sea area file " + path + " can't be read";
    area.path = path;
    area.name = std::filesystem::path(path).filename().string();
    area.records = readports(path);
    for (const HarmonicRecord& record : area.records)
        area.names.push_back(trimmedname(record));
    return "";
}

std::string readtypedarea(const ProgramFolders& folders, const std::string& typed, AreaInHand& area) {
    if (canopen(typed) || typed.empty() || typed.find('/') != std::string::npos) return readarea(typed, area);
    constexpr std::string_view ending = ".hc";
    const bool ended = lowercase(typed).ends_with(ending);
    const std::string wanted = ended ? typed.substr(0, typed.size() - ending.size()) : typed;
    const std::vector<std::string> paths = everyarea(folders);
    std::vector<std::string> names;
    for (const std::string& path : paths)
        names.push_back(std::filesystem::path(path).stem().string());
    for (std::size_t i = 0; i < names.size(); ++i)
        if (foldname(names[i]) == foldname(wanted)) return readarea(paths[i], area);
    constexpr std::size_t most = 3;
    std::string fault = "the sea area file " + typed + " can't be read, and no sea area is called so";
    const std::vector<std::size_t> nearest = nearestports(names, wanted, most);
    for (std::size_t i = 0; i < nearest.size(); ++i)
        fault += (i == 0 ? "; the nearest names are " : ", ") + names[nearest[i]];
    return fault;
}

}  // namespace tarvane
