// What the user did himself to ports, and the waters of official tables that he checked them against: a file of its own
// beside the configuration. Must not change an area's file, nor judge what stands in it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "portdata/configuration.h"
#include "portdata/keptfile.h"

namespace tarvane {

/// How a port's constants came about; the first where only their difference from what ships tells it.
enum class OwnHow { changed, entered, corrected, derived, fitted, copied };

/// What a fit to a day's readings said of itself. Metres but for the hours.
struct FitFigures {
    int readings = 0, leftout = 0;
    double before = 0, after = 0;  ///< root mean square of the misses
    double greatest = 0;           ///< of those after it, signed
    double hours = 0;              ///< from the first reading to the last
    std::string day;               ///< "2026-03-01"
};

struct OwnMade {
    OwnHow how = OwnHow::changed;
    std::string date;               ///< "2026-03-03"; empty when it isn't known
    std::string from;               ///< "Dover and Folkestone"; the area it was copied from
    std::optional<FitFigures> fit;  ///< after one
    std::string mark;               ///< of the record that was stored
};

/// The clock that an official table is in.
enum class TableClock { zone, port, ut };

/// A line of such a table as it was typed; `kind` is "high", "low" or empty.
struct TableWater {
    std::string date, time, height, kind;
    bool operator==(const TableWater&) const = default;
};

struct TableCheck {
    TableClock clock = TableClock::zone;
    std::vector<TableWater> waters;
    bool operator==(const TableCheck&) const = default;
};

struct PortNote {
    std::string name;
    int number = 0;  ///< in its area, from 1: tells ports of one name apart
    std::optional<OwnMade> made;
    TableCheck check;
};

using AreaNotes = std::vector<PortNote>;

struct OwnPorts {
    std::map<std::string, AreaNotes> areas;  ///< by the name of the area's file, "UK.hc"
    KeptState state;                         ///< how the file was found
};

inline constexpr const char* ownportsname = "Ports.json";

/// Where they are kept.
std::string ownportspath(const ProgramFolders& folders);

/// None of a file that isn't there; what can't be understood is left out.
OwnPorts readownports(const std::string& path);

/// A file that wasn't understood whole is kept as it was beside the new one, "Ports.json.broken". An error, nothing
/// being written, when that can't be done or the file is there and can't be read.
WriteOutcome writeownports(const std::string& path, const OwnPorts& ports);

/// What the user has to be told of the file, once; empty when that is nothing.
std::string tellownports(const ProgramFolders& folders);

/// What is wrong with it, for a program that must not write.
std::string ownportsfault(const ProgramFolders& folders);

/// The notes of an area, by its path.
AreaNotes areanotes(const ProgramFolders& folders, const std::string& hcfile);

/// Stands for all that a record holds: a note is of a port only as long as its record is the one that was stored.
std::string markof(const HarmonicRecord& record);

/// What the notes tell of a port's making; null when it isn't the user's.
const OwnMade* madeof(const AreaNotes& notes, const HarmonicRecord& record);

// The rest change the file, each in one reading and one writing. They are asked once the port itself is stored, and
// what becomes of them changes nothing of that.

/// Port `number` of an area was stored; `before` is the record in its place, of a new port none. A record that is as it
/// was needs no note; one whose constants are keeps what was told of them.
WriteOutcome noteport(const ProgramFolders& folders, const std::string& hcfile, int number,
                      const std::optional<HarmonicRecord>& before, const HarmonicRecord& record, OwnMade made);

/// Every record of `added`, behind the first `ports` of the area, was copied; from where, in their order.
WriteOutcome notecopies(const ProgramFolders& folders, const std::string& hcfile,
                        const std::vector<HarmonicRecord>& added, const std::vector<std::string>& from, int ports,
                        const std::string& date);

/// Port `number` was deleted, or a record came in behind it: the numbers of what follows are others.
WriteOutcome notedeleted(const ProgramFolders& folders, const std::string& hcfile, int number);
WriteOutcome noteinserted(const ProgramFolders& folders, const std::string& hcfile, int number);

/// The lines of an official table that a port was checked against; none of a port without.
TableCheck checkof(const AreaNotes& notes, const std::string& hcfile, const HarmonicRecord& record, int number);
WriteOutcome keepcheck(const ProgramFolders& folders, const std::string& hcfile, const HarmonicRecord& record,
                       int number, const TableCheck& check);

}  // namespace tarvane
