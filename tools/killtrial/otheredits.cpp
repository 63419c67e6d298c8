#include "killtrial/otheredits.h"

#include <filesystem>

#include "diamonds/diamondfile.h"
#include "files/wholefiles.h"
#include "output/dayconstants.h"
#include "platform/qt/qtprinter.h"
#include "portdata/configuration.h"
#include "portdata/datafolder.h"

namespace tarvane::killtrial {
namespace {

constexpr std::size_t fewestdiamonds = 5, mostdiamondskept = 40;

ProgramFolders foldersin(const std::string& folder) {
    return {folder, folder, folder, folder};
}

DiamondRecord anydiamond(Foretelling& trial) {
    DiamondRecord diamond;
    diamond.DiamondID = std::string(1, static_cast<char>('A' + trial.below(26)));
    for (Stream& stream : diamond.streams)
        stream = {static_cast<float>(trial.below(360)), static_cast<float>(trial.below(50)) / 10, 0.5F};
    return diamond;
}

}  // namespace

bool changesettings(Foretelling& trial) {
    const ProgramFolders folders = foldersin(trial.folder());
    Settings settings;
    settings.configrec = LoadConfig(folders);
    const auto draught = static_cast<float>(trial.below(60)) / 10;
    ConfigRecord foretold = readconfig(folders);
    foretold.draught = draught;
    return trial.perform({trial.changed(configname, textof(encode(foretold)))}, [&] {
        return changeconfig(folders, settings, [&](ConfigRecord& record) { record.draught = draught; });
    });
}

bool changediamonds(Foretelling& trial, AreaBackups& backups) {
    const std::string path = trial.path(diamondsname);
    const std::string old = wholetext(path);
    const std::size_t count = old.size() / diamondrecordsize;
    const DiamondRecord diamond = anydiamond(trial);
    const std::size_t index = trial.below(std::max<std::size_t>(count, 1));
    const std::size_t at = index * diamondrecordsize;
    std::string after = old;
    std::function<DiamondEdit()> act;
    switch (count < fewestdiamonds ? 0 : count > mostdiamondskept ? 2 : trial.below(3)) {
        case 0:
            after += textof(encode(diamond));
            act = [&] { return adddiamond(backups, path, diamond); };
            break;
        case 1:
            after.replace(at, diamondrecordsize, textof(encode(diamond)));
            act = [&] { return amenddiamond(backups, path, index, diamond); };
            break;
        default:
            after.erase(at, diamondrecordsize);
            act = [&] { return deletediamond(backups, path, trial.path(diamondscratch), index); };
    }
    std::vector<Change> changes;
    if (!backups.kept.contains(path) && std::filesystem::exists(path))
        changes.push_back(trial.changed(diamondsbackup, old));
    changes.push_back(trial.changed(diamondsname, after));
    return trial.perform(changes, [&] { return static_cast<bool>(act().written); });
}

bool exporttable(Foretelling& trial) {
    const std::string bytes = dayconstantsfile(dayconstants(firstconstantsyear), trial.below(2) == 0);
    return trial.perform({trial.changed(exportname, bytes)}, [&] {
        const WritableFile file = datafiletowrite(foldersin(trial.folder()), exportname);
        return file.prepared && replacefile(file.path, bytes);
    });
}

bool printpage(Foretelling& trial) {
    std::string title;
    do
        title = "page" + std::to_string(trial.below(1000000));
    while (std::filesystem::exists(trial.path(title + ".pdf")));
    QtPrinter printer;
    printer.setpdffolder(trial.folder());
    printer.setpdfonly(true);
    return trial.perform({{title + ".pdf", missingstate, wholepdf}}, [&] {
        if (!printer.begin(title)) return false;
        for (int line = 0; line < 60; ++line)
            printer.print("High water of line " + std::to_string(line));
        return static_cast<bool>(printer.enddocument());
    });
}

}  // namespace tarvane::killtrial
