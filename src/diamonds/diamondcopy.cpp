#include "diamonds/diamondcopy.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "portdata/datafolder.h"
#include "session/documents.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr const char* ending = ".l20";
constexpr const char* scratchname = "~scratch.~20";

std::string folderof(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

std::string filename(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

std::string counted(std::size_t number, const std::string& what) {
    return numbertext(static_cast<int>(number)) + " " + what + (number == 1 ? "" : "s");
}

std::string entrynumbered(int index) {
    return "entry no. " + numbertext(index + 1);
}

/// "solent.l20: 3 diamonds", and what stands behind them.
std::string holds(const std::string& path, const DiamondFile& file) {
    std::string text = filename(path) + ": " + counted(file.diamonds.size(), "diamond");
    if (file.leftover)
        text += "; the last " + counted(file.leftover, "byte") + " of the file " +
                (file.leftover == 1 ? "makes" : "make") + " no whole entry";
    return text;
}

void listentries(DiamondSide& side, const DiamondFile& file, ListForm form) {
    side.entries.clear();
    for (const DiamondRecord& diamond : file.diamonds)
        side.entries.push_back(listentry(diamond, form));
}

/// The file's entries into the list that was emptied. False, told, when it can't be read.
bool readinto(MainContext& context, DiamondCopy& copy, DiamondSide& side) {
    const DiamondFile file = readdiamonds(side.file);
    side.listindex = -1;
    listentries(side, file, ListForm::opened);
    copy.status = file.read ? holds(side.file, file) : "";
    return file.read || refuse(context, "The diamond file can't be read: " + side.file + ": " + file.read.reason());
}

/// What every writing of a record is held against first.
bool placetyped(MainContext& context, const DiamondSide& side) {
    const std::string fault = textsfault(side.texts);
    if (side.texts[latitudeplace].empty())
        context.services.messages.show(" Must enter a Latitude", messagetitle);
    else if (side.texts[longitudeplace].empty())
        context.services.messages.show(" Must enter a Longitude", messagetitle);
    else if (!fault.empty())
        refuse(context, fault + ". Nothing was written.");
    else
        return true;
    return false;
}

bool sourcehighlighted(MainContext& context, const DiamondCopy& copy) {
    if (copy.source.file.empty())
        context.services.messages.show("Select a file", "");
    else if (copy.source.listindex < 0)
        context.services.messages.show("Highlight a Tidal Diamond Entry", "");
    else
        return placetyped(context, copy.source);
    return false;
}

/// True if the highlighted entry is still in its file.
bool entrythere(MainContext& context, const DiamondCopy& copy) {
    const DiamondSide& source = copy.source;
    const DiamondFile file = readdiamonds(source.file);
    if (!file.read)
        return refuse(context, "The diamond file can't be read: " + source.file + ": " + file.read.reason() +
                                   ". Nothing was written.");
    if (source.listindex < static_cast<int>(file.diamonds.size())) return true;
    return refuse(context, "There is no " + entrynumbered(source.listindex) + " in " + filename(source.file) +
                               " any more. Choose the file anew. Nothing was written.");
}

/// Where a file of this path is to be written: data files in the folder that takes changes.
WritableFile writableof(const ProgramFolders& folders, const std::string& path) {
    const std::string folder = folderof(path);
    if (folder != folders.programfolder && folder != folders.ownfolder) return {path, {}};
    return datafiletowrite(folders, filename(path));
}

/// One change of the file at `path`, a copy of a side's own, whose place for changes becomes the one in hand. False,
/// told, when it failed.
template <typename Change>
bool changefile(MainContext& context, DiamondCopy& copy, std::string path, const std::string& what, Change change) {
    const WritableFile writable = writableof(context.session.folders, path);
    const DiamondEdit made = writable.prepared ? change(writable.path) : DiamondEdit{.written = writable.prepared};
    if (!made.written) {
        tellfailure(context, "The diamond file could not be written:", writable.path + ": " + made.written.reason());
        return false;
    }
    const DiamondFile file = readdiamonds(writable.path);
    copy.status = holds(writable.path, file) + "; " + what;
    if (made.lost)
        copy.status += ". The " + counted(made.lost, "byte") +
                       " that made no whole entry had to go: " + filename(writable.path) +
                       ".bak has the file as it was";
    // Where both sides show the file, neither goes on showing what it was.
    for (DiamondSide* side : {&copy.source, &copy.destination})
        if (side->file == path || side->file == writable.path) {
            side->file = writable.path;
            listentries(*side, file, ListForm::rewritten);
        }
    return true;
}

/// Where Add writes: the path; nothing, told, when the text names no file that may be written.
std::optional<std::string> destinationpath(MainContext& context, const std::string& typed) {
    const ProgramFolders& folders = context.session.folders;
    // kept: no other ending counts, so that "solent.l30" becomes "solent.l30.l20"
    const bool ended = typed.find(".l20") != std::string::npos || typed.find(".L20") != std::string::npos;
    const std::string name = ended ? typed : typed + ending;
    const bool inown = !folders.ownfolder.empty() && name.starts_with(folders.ownfolder + "/");
    if (inown || name.find(folders.programfolder) != std::string::npos) return name;
    if (const std::string fault = filenamefault(name); !fault.empty()) {
        refuse(context, fault + ". Nothing was written.");
        return std::nullopt;
    }
    return datafile(folders, name);
}

}  // namespace

const char* const diamondinstructions =
    "Select a source file; then select the diamond required. 2 Options 1.. Amend data and write it back to the file\n"
    "2.. Copy button writes the data to the right hand section, the Add button here adds the diamond to the end of the "
    "selected destination file";

DiamondCopy opendiamonds(const Session& session) {
    DiamondCopy copy;
    listdiamondfiles(session, copy);
    return copy;
}

void listdiamondfiles(const Session& session, DiamondCopy& copy) {
    copy.files = datafiles(session.folders, ending);
}

bool picksourcefile(MainContext& context, DiamondCopy& copy, const std::string& name) {
    DiamondSide& source = copy.source;
    source.file = datafile(context.session.folders, trim(name));
    copy.Lbldiamno.clear();
    if (readinto(context, copy, source)) return true;
    source.file.clear();
    return false;
}

bool pickdestfile(MainContext& context, DiamondCopy& copy, const std::string& name) {
    DiamondSide& destination = copy.destination;
    destination.file = copy.txtDestFile = datafile(context.session.folders, trim(name));
    return readinto(context, copy, destination);
}

bool pickdiamond(MainContext& context, DiamondCopy& copy, int index) {
    DiamondSide& source = copy.source;
    source.listindex = -1;
    const DiamondFile file = readdiamonds(source.file);
    if (!file.read)
        return refuse(context, "The diamond file can't be read: " + source.file + ": " + file.read.reason());
    if (index < 0 || index >= static_cast<int>(file.diamonds.size()))
        return refuse(context, "There is no " + entrynumbered(index) + " to be read in " + source.file);
    source.listindex = copy.selecteddiamond = index;
    copy.Lbldiamno = numbertext(index + 1);
    source.texts = source.stored = diamondtexts(file.diamonds[static_cast<std::size_t>(index)]);
    return true;
}

void copyacross(DiamondCopy& copy) {
    copy.destination.texts = copy.source.texts;
    // What was typed on the left is from now on the right's to be written.
    copy.destination.stored = copy.source.stored;
    copy.source.stored = copy.source.texts;
}

void emptyhour(DiamondTexts& texts, std::size_t direction) {
    for (std::size_t i = 0; i < boxesanhour; ++i)
        texts[direction + i].clear();
}

bool addtodestination(MainContext& context, DiamondCopy& copy) {
    DiamondSide& destination = copy.destination;
    copy.txtDestFile = trim(copy.txtDestFile);
    if (copy.txtDestFile.empty()) {
        context.services.messages.show("Select a file", "");
        return false;
    }
    if (!placetyped(context, destination)) return false;
    const auto path = destinationpath(context, copy.txtDestFile);
    if (!path) return false;
    const std::string before = std::exchange(destination.file, *path);
    const bool added = changefile(context, copy, *path, "the new one stands last", [&](const std::string& at) {
        return adddiamond(context.session.backups, at, diamondof(destination.texts));
    });
    if (!added) {
        destination.file = before;
        return false;
    }
    destination.stored = destination.texts;
    listdiamondfiles(context.session, copy);
    return true;
}

bool addtosource(MainContext& context, DiamondCopy& copy) {
    DiamondSide& source = copy.source;
    if (!sourcehighlighted(context, copy) || !entrythere(context, copy)) return false;
    const bool added = changefile(context, copy, source.file, "the new one stands last", [&](const std::string& at) {
        return adddiamond(context.session.backups, at, diamondof(source.texts));
    });
    if (!added) return false;
    source.stored = source.texts;
    source.listindex = -1;
    return true;
}

// kept: the boxes are what is written, so that hundredths of minutes and of rates, which they don't give, go
bool amendhighlighted(MainContext& context, DiamondCopy& copy) {
    DiamondSide& source = copy.source;
    if (!sourcehighlighted(context, copy) || !entrythere(context, copy)) return false;
    const std::string what = entrynumbered(source.listindex) + " was amended";
    const bool amended = changefile(context, copy, source.file, what, [&](const std::string& at) {
        const auto index = static_cast<std::size_t>(source.listindex);
        return amenddiamond(context.session.backups, at, index, diamondof(source.texts));
    });
    if (!amended) return false;
    // Restoring the index shows the entry as it now stands in the file.
    return pickdiamond(context, copy, source.listindex);
}

bool deletehighlighted(MainContext& context, DiamondCopy& copy) {
    DiamondSide& source = copy.source;
    if (source.file.empty() || source.listindex < 0)
        return refuse(context, "No diamond is highlighted in the source list. Nothing was deleted.");
    if (!entrythere(context, copy)) return false;
    // kept: nobody is asked
    const std::string what = entrynumbered(source.listindex) + " was deleted";
    const bool deleted = changefile(context, copy, source.file, what, [&](const std::string& at) {
        return deletediamond(context.session.backups, at, folderof(at) + "/" + scratchname,
                             static_cast<std::size_t>(source.listindex));
    });
    if (!deleted) return false;
    if (source.listindex >= static_cast<int>(source.entries.size())) source.listindex = -1;
    if (source.listindex < 0) copy.Lbldiamno.clear();
    source.texts = source.stored = DiamondTexts(diamondboxes);
    return true;
}

bool unwritten(const DiamondSide& side) {
    const bool allempty =
        std::all_of(side.texts.begin(), side.texts.end(), [](const std::string& text) { return text.empty(); });
    return side.texts != side.stored && !allempty;
}

bool amendorleave(MainContext& context, DiamondCopy& copy) {
    const DiamondSide& source = copy.source;
    Messages& messages = context.services.messages;
    if (!unwritten(source)) return true;
    if (source.listindex < 0)
        return messages.ask("What was typed on the left side stands in no file. Let it go?", messagetitle);
    const std::string question = "Entry no. " + numbertext(source.listindex + 1) + " of " + filename(source.file) +
                                 " was changed here, and not amended. Amend it?";
    switch (messages.askorcancel(question, messagetitle)) {
        case Answer::yes:
            return amendhighlighted(context, copy);
        case Answer::no:
            return true;
        case Answer::cancel:
            break;
    }
    return false;
}

bool addorleave(MainContext& context, DiamondCopy& copy) {
    if (!unwritten(copy.destination)) return true;
    switch (context.services.messages.askorcancel(
        "What was typed on the right side stands in no file. Add it to the destination file?", messagetitle)) {
        case Answer::yes:
            return addtodestination(context, copy);
        case Answer::no:
            return true;
        case Answer::cancel:
            break;
    }
    return false;
}

void rereaddiamonds(const Session& session, DiamondCopy& copy) {
    listdiamondfiles(session, copy);
    for (DiamondSide* side : {&copy.source, &copy.destination}) {
        if (side->file.empty()) continue;
        side->file = datafile(session.folders, filename(side->file));
        const DiamondFile file = readdiamonds(side->file);
        listentries(*side, file, ListForm::opened);
        const auto index = static_cast<std::size_t>(side->listindex);
        const bool same = index < file.diamonds.size() && diamondtexts(file.diamonds[index]) == side->stored;
        if (!same) side->listindex = -1;
    }
}

}  // namespace tarvane
