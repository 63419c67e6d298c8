// A port with round constants, in files of its own.
#pragma once

#include <string>

#include "fakes/temporaryfolder.h"
#include "portdata/configuration.h"
#include "portdata/recordfiles.h"

namespace tarvane::tests {

inline HarmonicRecord roundport() {
    HarmonicRecord port;
    port.PortNo = "1";
    port.PortName = "Round Haven";
    port.TimeZoneLetter = "L";
    port.Z0 = 3.0F;
    port.M2g = 120;
    port.M2Hm = 1.5F;
    port.S2g = 170;
    port.S2Hm = 0.5F;
    port.K1g = 60;
    port.K1Hm = 0.07F;
    port.O1g = 320;
    port.O1Hm = 0.06F;
    port.LF4 = 0.02F;
    port.LF6 = 0.001F;
    port.MHm2.fill(1.5F);
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
