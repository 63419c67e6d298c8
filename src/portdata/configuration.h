// The one settings record and the module values that mirror it. Must not show anything or ask the system for folders.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "portdata/records.h"

namespace tarvane {

/// The folders that the program works in, without a trailing separator.
struct ProgramFolders {
    std::string programfolder;     ///< where the area files, Sample.way and the manual lie as the program brings them
    std::string docsfolder;        ///< the user's documents
    std::string appdatafolder;     ///< the user's local application data
    std::string textoutputfolder;  ///< where saved texts go by default
    std::string ownfolder{};       ///< takes the program folder's place for changes; empty when that keeps them

    std::string cfgpath() const;       ///< appdatafolder/TarvaneTides/TarTidesv9.cfg
    std::string configfolder() const;  ///< appdatafolder/TarvaneTides
    std::string userfolder() const;    ///< docsfolder/TarvaneTides
    std::string depthsfolder() const;  ///< docsfolder/TarvaneTides/UserDepths
};

/// Values read from the configuration, and the paths of the two files in use.
struct Settings {
    ConfigRecord configrec;
    std::string hcfile;    ///< area file used for prediction
    std::string areafile;  ///< area file that the port selection lists; differs while a new area is being chosen
    std::string depfile;   ///< its user depths
    std::string wayfile;   ///< loaded, with no further use
    std::int16_t currentport = 0;
    float currentoutput = 0;  ///< 1 to chart datum, 2 with the user's depth, 3 with draught and clearance too
    float currentdraught = 0;
    float currentukc = 0;
    std::int16_t spareoptionvalue = 0;
    std::int16_t currentsummer = 0;  ///< -1 adjusted for summer time, 0 standard time
    std::int16_t summerflag2 = 0;    ///< the copy that the date routines consult
    float userdepth = 0;             ///< the current port's charted depth, metres
};

/// Record 1 of the configuration file; a short or missing file reads as if followed by zeros.
ConfigRecord LoadConfig(const ProgramFolders& folders);

/// Writes record 1. False if it couldn't, the file being as it was.
bool SaveConfig(const ProgramFolders& folders, const ConfigRecord& record);

/// The values of a first start: area UK.hc, port 77, option 3, draught and clearance 0.5, sorted by name.
ConfigRecord defaultconfig(const ProgramFolders& folders);

/// Fills the record with the values of a first start and writes it. False if the write failed; the record is filled all
/// the same.
bool CreateDefaultConfig(const ProgramFolders& folders, ConfigRecord& record);

/// Reads the configuration, writing the values of a first start before that when the file can't be opened, and derives
/// all module values from it.
void loadsettings(const ProgramFolders& folders, Settings& settings);

/// Puts the path of the area file right: when the stored one is gone (the program's folder has moved), one of that name
/// in the program's folder takes its place, and so does one in the user's own folder for one in the program's.
void findareafile(const ProgramFolders& folders, ConfigRecord& record);

/// The record as it stands in the file, its area file found.
ConfigRecord readconfig(const ProgramFolders& folders);

/// The one way to read the configuration while the program runs: `settings.configrec` becomes the record as it stands
/// in the file now. When the file has vanished, what was read or written last stays.
void rereadconfig(const ProgramFolders& folders, Settings& settings);

/// The one way to change it: reread, changed, written, remembered. False when it couldn't be written; it is remembered
/// all the same, so that the next change writes this one too if the file has vanished.
bool changeconfig(const ProgramFolders& folders, Settings& settings, const std::function<void(ConfigRecord&)>& change);

/// Copies what the dialogs read of a record anew: port, area file, output, draught and clearance.
void takechoices(Settings& settings, const ConfigRecord& record);

/// Copies every module value that mirrors the record out of `settings.configrec`, trimming its paths.
void takesettings(Settings& settings);

}  // namespace tarvane
