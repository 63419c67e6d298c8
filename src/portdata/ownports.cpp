#include "portdata/ownports.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <utility>

#include "portdata/ownnotesjson.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

constexpr const char* missing = "neither what you entered nor your checks are known";

std::string filenameof(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

bool alone(const std::string& hcfile, const std::string& name) {
    const std::vector<HarmonicRecord> ports = readports(hcfile);
    return std::count_if(ports.begin(), ports.end(),
                         [&](const HarmonicRecord& port) { return trimmedname(port) == name; }) == 1;
}

/// The note of a port: of its name and number, or of its name where that is the area's only one. Null for none.
template <typename Notes>
auto* findnote(Notes& notes, const std::string& hcfile, const std::string& name, int number) {
    auto* found = static_cast<decltype(notes.data())>(nullptr);
    for (auto& note : notes)
        if (note.name == name && (!found || note.number == number)) found = &note;
    if (found && found->number != number && !alone(hcfile, name)) found = nullptr;
    return found;
}

/// True where two records predict the same tides.
bool sametides(HarmonicRecord one, const HarmonicRecord& other) {
    one.PortNo = other.PortNo;
    one.PortName = other.PortName;
    one.PortLat = other.PortLat;
    one.PortLong = other.PortLong;
    one.TimeZoneLetter = other.TimeZoneLetter;
    return encode(one) == encode(other);
}

/// A change of an area's notes that says whether there was anything to change.
using Change = std::function<bool(AreaNotes& notes)>;

WriteOutcome changenotes(const ProgramFolders& folders, const std::string& hcfile, const Change& change) {
    const std::string path = ownportspath(folders), area = filenameof(hcfile);
    OwnPorts ports = readownports(path);
    if (!change(ports.areas[area])) return {};
    AreaNotes& notes = ports.areas[area];
    std::erase_if(notes, [](const PortNote& note) { return !note.made && note.check.waters.empty(); });
    if (notes.empty()) ports.areas.erase(area);
    return writeownports(path, ports);
}

KeptText textof(OwnPorts ports) {
    return [ports = std::move(ports)](const std::string& untold) mutable {
        ports.state.untold = untold;
        return ownportstext(ports);
    };
}

}  // namespace

std::string ownportspath(const ProgramFolders& folders) {
    return folders.configfolder() + "/" + ownportsname;
}

OwnPorts readownports(const std::string& path) {
    KeptState found;
    const std::string text = readkept(path, found);
    OwnPorts ports = ownportsof(text);
    ports.state.readable = found.readable;
    return ports;
}

WriteOutcome writeownports(const std::string& path, const OwnPorts& ports) {
    // By what stands there now: another run of the program may have changed it.
    return writekept(path, readownports(path).state, textof(ports));
}

std::string tellownports(const ProgramFolders& folders) {
    const std::string path = ownportspath(folders);
    const OwnPorts ports = readownports(path);
    return tellkept(path, ports.state, missing, textof(ports));
}

std::string ownportsfault(const ProgramFolders& folders) {
    const std::string path = ownportspath(folders);
    return keptfault(path, readownports(path).state, missing);
}

AreaNotes areanotes(const ProgramFolders& folders, const std::string& hcfile) {
    const OwnPorts ports = readownports(ownportspath(folders));
    const auto notes = ports.areas.find(filenameof(hcfile));
    return notes == ports.areas.end() ? AreaNotes{} : notes->second;
}

std::string markof(const HarmonicRecord& record) {
    constexpr std::uint64_t start = 14695981039346656037U, prime = 1099511628211U;
    std::uint64_t mark = start;
    // Read back first: a record may have been stored with zero bytes where its texts are empty.
    for (const std::byte byte : encode(decodeharmonic(encode(record))))
        mark = (mark ^ static_cast<std::uint64_t>(byte)) * prime;
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(mark));
    return text;
}

const OwnMade* madeof(const AreaNotes& notes, const HarmonicRecord& record) {
    if (notes.empty()) return nullptr;
    const std::string name = trimmedname(record), mark = markof(record);
    for (const PortNote& note : notes)
        if (note.made && note.name == name && note.made->mark == mark) return &*note.made;
    return nullptr;
}

WriteOutcome noteport(const ProgramFolders& folders, const std::string& hcfile, int number,
                      const std::optional<HarmonicRecord>& before, const HarmonicRecord& record, OwnMade made) {
    if (before && markof(*before) == markof(record)) return {};
    return changenotes(folders, hcfile, [&](AreaNotes& notes) {
        if (const OwnMade* known = before ? madeof(notes, *before) : nullptr; known && sametides(*before, record))
            made = *known;
        made.mark = markof(record);
        const std::string name = trimmedname(record), oldname = before ? trimmedname(*before) : name;
        // Under its old name the port is gone from the area's file by now.
        const auto old = std::find_if(notes.begin(), notes.end(), [&](const PortNote& note) {
            return note.name == oldname && note.number == number;
        });
        PortNote* note = old == notes.end() ? findnote(notes, hcfile, name, number) : &*old;
        if (!note) note = &notes.emplace_back();
        note->name = name;
        note->number = number;
        note->made = made;
        return true;
    });
}

WriteOutcome notecopies(const ProgramFolders& folders, const std::string& hcfile,
                        const std::vector<HarmonicRecord>& added, const std::vector<std::string>& from, int ports,
                        const std::string& date) {
    return changenotes(folders, hcfile, [&](AreaNotes& notes) {
        bool any = false;
        for (std::size_t i = 0; i < added.size(); ++i) {
            // Within one area the port that was copied has this very record too, and is no copy.
            if (i < from.size() && filenameof(hcfile) == from[i] + ".hc") continue;
            any = true;
            OwnMade made{OwnHow::copied, date, i < from.size() ? from[i] : "", {}, markof(added[i])};
            notes.push_back({trimmedname(added[i]), ports + static_cast<int>(i) + 1, made, {}});
        }
        return any;
    });
}

WriteOutcome notedeleted(const ProgramFolders& folders, const std::string& hcfile, int number) {
    return changenotes(folders, hcfile, [&](AreaNotes& notes) {
        const std::size_t gone = std::erase_if(notes, [&](const PortNote& note) { return note.number == number; });
        bool moved = false;
        for (PortNote& note : notes) {
            if (note.number <= number) continue;
            --note.number;
            moved = true;
        }
        return gone > 0 || moved;
    });
}

WriteOutcome noteinserted(const ProgramFolders& folders, const std::string& hcfile, int number) {
    return changenotes(folders, hcfile, [&](AreaNotes& notes) {
        bool moved = false;
        for (PortNote& note : notes) {
            if (note.number <= number) continue;
            ++note.number;
            moved = true;
        }
        return moved;
    });
}

TableCheck checkof(const AreaNotes& notes, const std::string& hcfile, const HarmonicRecord& record, int number) {
    const PortNote* note = findnote(notes, hcfile, trimmedname(record), number);
    return note ? note->check : TableCheck{};
}

WriteOutcome keepcheck(const ProgramFolders& folders, const std::string& hcfile, const HarmonicRecord& record,
                       int number, const TableCheck& check) {
    return changenotes(folders, hcfile, [&](AreaNotes& notes) {
        PortNote* note = findnote(notes, hcfile, trimmedname(record), number);
        if (!note && check.waters.empty()) return false;
        if (!note) note = &notes.emplace_back(PortNote{trimmedname(record), number, {}, {}});
        if (note->check == check) return false;
        note->check = check;
        return true;
    });
}

}  // namespace tarvane
