// The ports of a sea area as the port selection lists them: in the order of the file or by name, picked by text and
// found by part of a name. Must not show anything.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "portdata/records.h"

namespace tarvane {

struct PortList {
    std::vector<HarmonicRecord> displaylist;  ///< in the order shown
    std::vector<HarmonicRecord> filelist;     ///< in the order of the file: element i is record i + 1
    std::int16_t selectedport = 0;            ///< record number of the port picked; 0 before the first pick
    std::int16_t searchposition = -1;         ///< place of the last search hit in `displaylist`; -1 for none
};

/// Reads every port of an area file into both lists. A missing file gives empty lists.
void loadportlist(PortList& list, const std::string& areafile);

/// Orders `displaylist` by lower-cased name, by ordinal character code, equal names as they stood; the list loses its
/// last entry of before the sort each time.
void sortbyname(PortList& list);

/// The trimmed names of `displaylist`.
std::vector<std::string> portnames(const PortList& list);

/// Which ports of the file the list on show has lost, a sentence; empty when it has them all.
std::string missingports(const PortList& list);

/// Makes the port of an entry's text the selected one and gives its name; of ports with the same name the last in the
/// file. Nothing, the selection staying, when no port has that name.
std::optional<std::string> pickport(PortList& list, std::string_view entry);

/// Place in `displaylist` of the port of a record number. Nothing when that list doesn't hold it.
std::optional<std::size_t> placeofrecord(const PortList& list, std::int16_t number);

/// Place of the port to which quickly typed letters jump from the entry `from` (-1 for none), going round at the end:
/// one letter, pressed once or again and again, steps through the ports that begin with it; different letters find the
/// next name that begins with them all, which may be the entry itself. Nothing when none does.
std::optional<std::size_t> stepbyletters(const PortList& list, int from, std::string_view typed);

/// Place in `displaylist` of the first port with `part` anywhere in its name, whatever the case; an empty text is in
/// every name. A text that no name has finds the ports that it is likely to mean, likeliest first. A hit becomes
/// `searchposition`; no hit, or one without a name, gives nothing and leaves it.
std::optional<std::size_t> searchfromstart(PortList& list, std::string_view part);

/// The same from behind the last hit, also when the list has another order by now. No hit sets `searchposition` to -1,
/// so that the next call starts at the top.
std::optional<std::size_t> searchnext(PortList& list, std::string_view part);

/// True if a search for `part` has a hit.
bool searchhits(const PortList& list, std::string_view part);

}  // namespace tarvane
