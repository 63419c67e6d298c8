// The main window's commands over scripted services, recorded surfaces and files of their own. Must not need a window
// or a screen.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fakes/scriptedsurface.h"
#include "fakes/services.h"
#include "fakes/temporaryfolder.h"
#include "fakes/testport.h"
#include "portdata/recordfiles.h"
#include "session/loading.h"
#include "session/session.h"

namespace tarvane::tests {

HarmonicRecord fixtureport(const std::string& name, float level, const std::string& zone = "L");

/// Four ports in "UK.hc" of a program folder: Alder Quay, Birch Sound, Cedar Head, Alder Quay again (higher). The clock
/// stands at 9 April 2024, 14:32.
class MainFixture {
  public:
    MainFixture();

    std::string area() const;
    ConfigRecord stored() const;

    /// Changes the configuration's record on the disk, and there alone.
    void store(const std::function<void(ConfigRecord&)>& change) const;

    /// The user's depth in metres, and the note, of a port in the depth file that is in use.
    void storedepth(std::int16_t port, float metres, const std::string& note = "") const;

    MainSurfaces& surfaces() { return context.surfaces; }

    /// The start of the main window, as after Accept.
    void load();

    fakes::TemporaryFolder folder;
    ScriptedServices scripted;
    ScriptedSurface picture, bar, window;
    Session session;
    MainContext context;
};

/// The same for a TEST_F, the main window loaded.
class LoadedMain : public testing::Test, protected MainFixture {
  protected:
    LoadedMain() { load(); }
};

}  // namespace tarvane::tests
