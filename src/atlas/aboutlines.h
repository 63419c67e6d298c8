// What "About This Port" tells, as captions and texts: of where the constants come from, how good they are, the clock,
// the tides and the checks. The window, its copy and the terminal take it from here. Must not show anything.
#pragma once

#include <string>
#include <vector>

#include "atlas/portcheck.h"
#include "portdata/portknown.h"
#include "world/trust.h"

namespace tarvane {

/// A port and what is known of it.
struct AboutOf {
    std::string hcfile;    ///< path of its area's file
    std::string areaname;  ///< "UK.hc"
    int number = 0;        ///< in the area, from 1
    HarmonicRecord port;
    PortKnown known;
    TableCheck check;
};

/// Reads a port of an area, by the area's path.
AboutOf aboutof(const ProgramFolders& folders, const std::string& hcfile, int number);

struct AboutLine {
    std::string caption, text;
};

struct AboutSheet {
    std::string name;   ///< "Dover"
    std::string place;  ///< "port 15 of UK.hc, 51°07'N 1°19'E"
    Trust trust = Trust::unknown;
    std::vector<AboutLine> lines;      ///< the first tells how good it is
    std::vector<AboutLine> constants;  ///< "M2", "g 333 : Hm 2.25"
};

AboutSheet aboutsheet(const AboutOf& of, Moment now, const Zones& zones);

/// All of it as a text for other programs, lines ending with LF.
std::string sheettext(const AboutSheet& sheet);

}  // namespace tarvane
