// What is known of a port: what the area's table tells of what ships, and what the user made of it himself. Everything
// that tells how far a port is to be trusted asks here. Must not put it in words.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "portdata/aboutports.h"
#include "portdata/areaedits.h"
#include "portdata/ownports.h"

namespace tarvane {

struct PortKnown {
    std::optional<PortAbout> about;  ///< the row of its name; its figures are of the constants that ship
    std::optional<OwnMade> own;      ///< set: the constants are the user's, and none of those figures holds

    /// The row whose figures hold.
    std::optional<PortAbout> trusted() const { return own ? std::nullopt : about; }

    /// The IANA zone whose clocks the port keeps, whoever made its constants; empty when it isn't known.
    std::string iana() const { return about ? about->timezone : ""; }

    /// What its heights are above, "LAT"; empty when it isn't known.
    std::string datum() const { return about && !own ? about->datum : ""; }
};

/// What is known of an area's ports, read once.
struct AreaKnown {
    AboutTable table;
    AreaNotes notes;
    /// Its records as they ship, without numbers and positions, of an area that may have been changed since: one that
    /// isn't among them is nobody's but the user's, whatever his notes say.
    std::optional<std::set<HarmonicBytes>> shipped;
};

/// By the area's path.
AreaKnown knownarea(const ProgramFolders& folders, const std::string& hcfile);

/// What is known of port `number`, from 1.
PortKnown whatisknown(const AreaKnown& area, const HarmonicRecord& record, int number);

}  // namespace tarvane
