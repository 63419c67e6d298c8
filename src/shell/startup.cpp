#include "shell/startup.h"

#include <filesystem>

namespace tarvane {

ProgramFolders findfolders(const Folders& system) {
    ProgramFolders folders;
    folders.programfolder = system.program();
    folders.docsfolder = system.documents().value_or("/");
    folders.appdatafolder = system.localappdata();
    folders.textoutputfolder = folders.userfolder() + "/TextOutput";
    if (!system.keepschanges()) folders.ownfolder = folders.configfolder() + "/Areas";
    return folders;
}

void makefolders(Folders& system, const ProgramFolders& folders) {
    system.make(folders.configfolder());
    system.make(folders.userfolder());
    system.make(folders.depthsfolder());
    system.make(folders.textoutputfolder);
}

std::optional<Started> startup(const Services& services) {
    Started started;
    started.folders = findfolders(services.folders);
    makefolders(services.folders, started.folders);
    started.conventions = CheckDateFormat(services.locale, services.clock.now().today, started.today);
    if (started.today.month == 0) {
        services.messages.show(incompatibledatetext, "");
        return std::nullopt;
    }
    if (started.conventions.dateformat.empty()) {
        services.messages.show(nodatesettingstext, nodatesettingstitle);
        return std::nullopt;
    }
    return started;
}

void restoredefaults(Folders& system, Messages& messages, const ProgramFolders& folders) {
    const std::string path = folders.cfgpath();
    std::error_code error;
    if (system.remove(path) || !std::filesystem::exists(path, error)) return;
    messages.show("The saved settings could not be removed:\n" + path, "Tarvane", MessageIcon::exclamation);
}

}  // namespace tarvane
