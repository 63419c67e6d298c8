#include "portdata/configuration.h"

#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

std::string ProgramFolders::configfolder() const {
    return appdatafolder + "/TarvaneTides";
}
std::string ProgramFolders::cfgpath() const {
    return configfolder() + "/" + "TarTidesv9.cfg";
}
std::string ProgramFolders::userfolder() const {
    return docsfolder + "/TarvaneTides";
}
std::string ProgramFolders::depthsfolder() const {
    return userfolder() + "/UserDepths";
}

ConfigRecord LoadConfig(const ProgramFolders& folders) {
    return decodeconfig(readwhole(folders.cfgpath()));
}

bool SaveConfig(const ProgramFolders& folders, const ConfigRecord& record) {
    return replacefile(folders.cfgpath(), encode(record));
}

ConfigRecord defaultconfig(const ProgramFolders& folders) {
    ConfigRecord record;
    record.hcfilepath = folders.programfolder + "/" + "UK.hc";
    record.ownermark = "Owner Tarvane";
    record.wayfilepath = folders.programfolder + "/" + "Sample.way";
    record.portnumber = 77;
    record.outputoption = 3;
    record.draught = 0.5f;
    record.ukc = 0.5f;
    record.spareoption = 1;
    record.sortmode = -1;
    return record;
}

bool CreateDefaultConfig(const ProgramFolders& folders, ConfigRecord& record) {
    record = defaultconfig(folders);
    return SaveConfig(folders, record);
}

void findareafile(const ProgramFolders& folders, ConfigRecord& record) {
    const std::string stored = trim(record.hcfilepath);
    // A record that another system wrote may hold a path with the other separator.
    const std::string name = stored.substr(stored.find_last_of("/\\") + 1);
    const bool shipped = !folders.ownfolder.empty() && stored == folders.programfolder + "/" + name;
    if (!shipped && canopen(stored)) return;
    if (const std::string found = datafile(folders, name); canopen(found)) record.hcfilepath = found;
}

ConfigRecord readconfig(const ProgramFolders& folders) {
    ConfigRecord record = LoadConfig(folders);
    findareafile(folders, record);
    return record;
}

void loadsettings(const ProgramFolders& folders, Settings& settings) {
    const bool unwritable = !canopen(folders.cfgpath()) && !CreateDefaultConfig(folders, settings.configrec);
    if (!unwritable) settings.configrec = LoadConfig(folders);
    findareafile(folders, settings.configrec);
    takesettings(settings);
}

void rereadconfig(const ProgramFolders& folders, Settings& settings) {
    if (canopen(folders.cfgpath())) settings.configrec = readconfig(folders);
}

bool changeconfig(const ProgramFolders& folders, Settings& settings, const std::function<void(ConfigRecord&)>& change) {
    rereadconfig(folders, settings);
    change(settings.configrec);
    return SaveConfig(folders, settings.configrec);
}

void takechoices(Settings& settings, const ConfigRecord& record) {
    settings.hcfile = trim(record.hcfilepath);
    settings.currentport = cint(record.portnumber);
    settings.currentoutput = record.outputoption;
    settings.currentdraught = record.draught;
    settings.currentukc = record.ukc;
}

void takesettings(Settings& settings) {
    ConfigRecord& record = settings.configrec;
    record.hcfilepath = trim(record.hcfilepath);
    record.wayfilepath = trim(record.wayfilepath);
    takechoices(settings, record);
    settings.areafile = record.hcfilepath;
    settings.wayfile = record.wayfilepath;
    settings.spareoptionvalue = cint(record.spareoption);
    settings.currentsummer = record.summertimeflag;
    settings.summerflag2 = record.summertimeflag;
}

}  // namespace tarvane
