#include "fakes/testport.h"

#include "portdata/portscsv.h"

namespace tarvane::tests {

HarmonicRecord roundport() {
    // number, name, position, zone, Z0, then phase and amplitude of M2, S2, K1 and O1, and the two shallow-water pairs
    HarmonicRecord port{"1", "Round Haven", 0,   0,     "L", 3,     120, 1.5F,  170, 0.5F,
                        60,  0.07F,         320, 0.06F, 0,   0.02F, 0,   0.001F};
    port.MHm2.fill(port.M2Hm);
    return port;
}

std::vector<HarmonicRecord> shippedports() {
    return readportscsv(filetext(TARVANE_DATA "/uk-ports.csv")).ports;
}

PortFiles::PortFiles(const HarmonicRecord& port, float depth) {
    settings.hcfile = folder / "Area.hc";
    settings.depfile = folder / "Area.DEP";
    settings.currentport = 1;
    settings.currentoutput = 1;
    writeport(settings.hcfile, 1, port);
    UserDepthRecord user;
    user.UserDepth = depth;
    writedepth(settings.depfile, 1, user);
}

}  // namespace tarvane::tests
