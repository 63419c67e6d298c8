// A port with round constants, in files of its own. Its predictions can be worked by hand; must not know a session or
// a service.
#pragma once

#include <vector>

#include "fakes/temporaryfolder.h"
#include "portdata/configuration.h"
#include "portdata/recordfiles.h"

namespace tarvane::tests {

HarmonicRecord roundport();

/// The ports that ship.
std::vector<HarmonicRecord> shippedports();

/// Area and depth files of one port in a temporary folder, and settings that point at them.
class PortFiles {
  public:
    explicit PortFiles(const HarmonicRecord& port = roundport(), float depth = 0);

    fakes::TemporaryFolder folder;
    Settings settings;
};

}  // namespace tarvane::tests
