// A port with round constants, in files of its own.
#pragma once

#include <string>

#include "fakes/temporaryfolder.h"
#include "portdata/configuration.h"
#include "portdata/recordfiles.h"

namespace tarvane::tests {

inline HarmonicRecord roundport() {
    // number, name, position, zone, Z0, then phase and amplitude of M2, S2, K1 and O1, and the two shallow-water pairs
    HarmonicRecord port{"1", "Round Haven", 0,   0,     "L", 3,     120, 1.5F,  170, 0.5F,
                        60,  0.07F,         320, 0.06F, 0,   0.02F, 0,   0.001F};
    port.MHm2.fill(port.M2Hm);
    return port;
}

/// Area and depth files of one port in a temporary folder, and settings that point at them.
class PortFiles {
  public:
    explicit PortFiles(const HarmonicRecord& port = roundport(), float depth = 0) {
        settings.hcfile = folder / "Area.hc";
        settings.depfile = folder / "Area.DEP";
        settings.currentport = 1;
        settings.currentoutput = 1;
        store(port);
        UserDepthRecord user;
        user.UserDepth = depth;
        writedepth(settings.depfile, 1, user);
    }
    void store(const HarmonicRecord& port) { writeport(settings.hcfile, 1, port); }

    fakes::TemporaryFolder folder;
    Settings settings;
};

}  // namespace tarvane::tests
