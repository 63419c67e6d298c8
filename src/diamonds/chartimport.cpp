#include "diamonds/chartimport.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

#include "diamonds/diamondfile.h"
#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "session/documents.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

// kept: the .cha file itself stays behind
constexpr const char* extensions[] = {"cht", "l20", "l30", "l40"};

/// Failed files that a message names; the window's list has them all.
constexpr std::size_t mostnamed = 8;

struct Listing {
    std::vector<std::string> folders, files;
    std::error_code error;  ///< why it can't be read
};

Listing listingof(const std::string& folder) {
    Listing listing;
    fs::directory_iterator entry(folder, listing.error);
    for (; !listing.error && entry != fs::directory_iterator(); entry.increment(listing.error)) {
        std::error_code odd;
        const std::string name = entry->path().filename().string();
        if (entry->is_directory(odd))
            listing.folders.push_back(name);
        else
            listing.files.push_back(name);
    }
    for (auto* names : {&listing.folders, &listing.files})
        std::sort(names->begin(), names->end());
    return listing;
}

std::string joined(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

/// The rows from the drive's own folder down to the one in hand, and the folders in that.
std::vector<FolderRow> rowsof(const std::string& drive, const std::string& folder,
                              const std::vector<std::string>& below) {
    std::vector<FolderRow> rows{{drive, drive, 0, true}};
    if (folder != drive)
        for (const fs::path& part : fs::path(folder).lexically_relative(drive)) {
            const FolderRow& above = rows.back();
            rows.push_back({joined(above.path, part.string()), part.string(), above.depth + 1, true});
        }
    const int depth = rows.back().depth + 1;
    for (const std::string& name : below)
        if (!name.starts_with('.')) rows.push_back({joined(folder, name), name, depth, false});
    return rows;
}

/// The folder comes in hand; the reason when it can't be read, everything staying as it was.
std::error_code takefolder(ChartImport& import, const std::string& drive, const std::string& folder) {
    const Listing listing = listingof(folder);
    if (listing.error) return listing.error;
    import.drive = drive;
    import.folder = folder;
    import.folders = rowsof(drive, folder, listing.folders);
    import.areas.clear();
    for (const std::string& name : listing.files)
        if (!name.starts_with('.') && lowercase(name).ends_with(".cha")) import.areas.push_back(name);
    return {};
}

/// The name as the medium has it, whatever the case of its letters; empty when there is none.
std::string nameon(const Listing& medium, const std::string& name) {
    if (std::binary_search(medium.files.begin(), medium.files.end(), name)) return name;
    const auto found = std::find_if(medium.files.begin(), medium.files.end(),
                                    [&](const std::string& other) { return lowercase(other) == lowercase(name); });
    return found == medium.files.end() ? "" : *found;
}

/// Puts the bytes in place of a data file. What differed there before is kept beside it, also when this run has kept an
/// older one: it may hold what the user changed since.
WriteOutcome replacedata(MainContext& context, const std::string& name, const std::vector<std::byte>& bytes) {
    const WritableFile data = datafiletowrite(context.session.folders, name);
    if (!data.prepared) return data.prepared;
    errno = 0;
    const auto former = wholefile(data.path);
    if (!former) return whynotread(data.path, errno);
    const bool there = canopen(data.path);
    if (there && *former == bytes) return {};
    if (there) {
        context.session.backups.kept.erase(data.path);
        if (const WriteOutcome kept = keepbackup(context.session.backups, data.path); !kept) return kept;
    }
    return replacefile(data.path, bytes);
}

/// Copies one file; why not, when it failed.
std::optional<std::string> copydata(MainContext& context, const std::string& folder, const Listing& medium,
                                    const std::string& name) {
    const std::string found = nameon(medium, name);
    if (found.empty()) return "it is not in the folder";
    errno = 0;
    const std::string source = joined(folder, found);
    const auto bytes = wholefile(source);
    if (!bytes || !canopen(source)) return "it can't be read: " + whynotread(source, errno).reason();
    const WriteOutcome written = replacedata(context, name, *bytes);
    if (!written) return "it can't be written: " + written.reason();
    return std::nullopt;
}

/// The told text, and under it what failed.
std::string reporttext(std::size_t counter, const std::vector<std::string>& failed) {
    std::string text = str(static_cast<int>(counter)) + " files transferred";
    if (failed.empty()) return text;
    text += "\r\rNot copied:";
    for (std::size_t i = 0; i < std::min(failed.size(), mostnamed); ++i)
        text += "\r" + failed[i];
    if (failed.size() > mostnamed)
        text += "\rand " + numbertext(static_cast<int>(failed.size() - mostnamed)) + " more: see the list";
    return text;
}

}  // namespace

ChartImport openimport(const MainContext& context) {
    ChartImport import;
    import.drives = context.services.drives.drives();
    // Behind the machine's own tree stand the media.
    std::vector<Drive> likely(import.drives);
    if (likely.size() > 1) std::rotate(likely.begin(), likely.begin() + 1, likely.end());
    for (const Drive& drive : likely)
        if (!takefolder(import, drive.path, drive.path)) break;
    return import;
}

bool refreshdrives(const MainContext& context, ChartImport& import) {
    std::vector<Drive> now = context.services.drives.drives();
    if (now == import.drives) return false;
    import.drives = std::move(now);
    return true;
}

bool pickdrive(MainContext& context, ChartImport& import, const std::string& path) {
    refreshdrives(context, import);
    const bool there = std::any_of(import.drives.begin(), import.drives.end(),
                                   [&path](const Drive& drive) { return drive.path == path; });
    if (there && !takefolder(import, path, path)) return true;
    context.services.messages.show("Drive not ready", "");
    return false;
}

bool pickfolder(MainContext& context, ChartImport& import, const std::string& path) {
    const std::error_code error = takefolder(import, import.drive, path);
    return !error || refuse(context, "The folder can't be read: " + path + ": " + error.message());
}

void importareas(MainContext& context, ChartImport& import) {
    import.outcomes.clear();
    std::vector<std::string> failed;
    if (import.areas.empty()) context.services.messages.show("Nothing to import", messagetitle);
    const Listing medium = listingof(import.folder);
    for (const std::string& area : import.areas)
        for (const char* extension : extensions) {
            const std::string name = area.substr(0, area.find('.') + 1) + extension;
            const auto whynot = copydata(context, import.folder, medium, name);
            import.outcomes.push_back(name + ": " + whynot.value_or("copied"));
            if (whynot) failed.push_back(import.outcomes.back());
        }
    // kept: areas are counted, not files, copied or not
    context.services.messages.show(reporttext(import.areas.size(), failed), messagetitle);
}

}  // namespace tarvane
