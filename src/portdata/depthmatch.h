// The records of a depths file against the ports of its area: each was made for a port by name, and after a port was
// inserted or deleted that port stands at another number. Must not guess between ports of one name, nor ask or tell the
// user anything.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "files/wholefiles.h"
#include "portdata/records.h"

namespace tarvane {

/// True if the record was made for a port, and for another than this one.
bool madeforanother(const UserDepthRecord& record, const HarmonicRecord& port);

/// True if the record holds a depth or a note that the user entered.
bool holdsowntext(const UserDepthRecord& record);

/// What matching by name would do to a depths file.
struct DepthMatch {
    int records = 0;                 ///< in the file
    int elsewhere = 0;               ///< made for another port than that at their number, or for one past the last
    int moved = 0;                   ///< go to the one port of their name
    int stayed = 0;                  ///< stand there already, or are left
    int dropped = 0;                 ///< have no port of their name
    std::vector<std::string> lost;   ///< of the dropped, what the user entered: "Dover: -2 m and a note"
    std::vector<std::string> left;   ///< entered by the user, and whose port can't be told: "5, made for Dover"
    std::vector<std::byte> matched;  ///< the file after it, one record a port and those left behind the last
};

/// Reckons it. A record at a port of its name stays; one goes to the port of its name when no other port and no other
/// record has that name. Otherwise it is left where it is when the user entered something in it, and so is one whose
/// new place such a one holds. Records move as they are but for their number; a port without one gets a new one.
DepthMatch matchdepths(std::span<const HarmonicRecord> ports, std::span<const std::byte> depths);

/// The same for the files. An area without ports or a depths file that can't be read gives nothing to match.
DepthMatch matchdepths(const std::string& hcfile, const std::string& depfile);

/// Writes the matched file, the one that stood there being kept beside it, "UK.DEP.bak".
WriteOutcome writematched(const std::string& depfile, const DepthMatch& match);

}  // namespace tarvane
