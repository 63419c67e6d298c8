// The main window's commands over scripted services, recorded surfaces and files of their own.
#pragma once

#include <string>

#include "engine/testport.h"
#include "fakes/scriptedsurface.h"
#include "fakes/services.h"
#include "fakes/temporaryfolder.h"
#include "mainview/loading.h"
#include "mainview/session.h"
#include "portdata/recordfiles.h"

namespace tarvane::tests {

inline HarmonicRecord fixtureport(const std::string& name, float level, const std::string& zone = "L") {
    HarmonicRecord port = roundport();
    port.PortName = name;
    port.PortLat = 50.5F;
    port.PortLong = -1.25F;
    port.TimeZoneLetter = zone;
    port.Z0 = level;
    return port;
}

/// Four ports in "UK.hc" of a program folder: Alder Quay, Birch Sound, Cedar Head, Alder Quay again (higher). The clock
/// stands at 9 April 2024, 14:32.
class MainFixture {
  public:
    MainFixture() : context{session, scripted.services(), {picture, bar, window, {100, 800, 5800, 3415}}} {
        session.folders.programfolder = folder / "program";
        session.folders.docsfolder = folder / "documents";
        session.folders.appdatafolder = folder / "appdata";
        session.folders.textoutputfolder = folder / "documents/TarvaneTides/TextOutput";
        for (const std::string& made : {session.folders.programfolder, session.folders.configfolder(),
                                        session.folders.depthsfolder(), session.folders.textoutputfolder})
            std::filesystem::create_directories(made);
        writeport(area(), 1, fixtureport("Alder Quay", 3));
        writeport(area(), 2, fixtureport("Birch Sound", 4, "M"));
        writeport(area(), 3, fixtureport("Cedar Head", 5));
        writeport(area(), 4, fixtureport("Alder Quay", 6));
        session.conventions = {"DD/MM/YYYY", "/"};
        ConfigRecord record = defaultconfig(session.folders);
        record.portnumber = 1;
        SaveConfig(session.folders, record);
        scripted.clock.reading = {makedate(2024, 4, 9), 14, 32, 10};
    }

    std::string area() const { return session.folders.programfolder + "/UK.hc"; }
    ConfigRecord stored() const { return LoadConfig(session.folders); }

    MainSurfaces& surfaces() { return context.surfaces; }

    /// The start of the main window, as after Accept.
    void load() { loadmainwindow(context); }

    fakes::TemporaryFolder folder;
    ScriptedServices scripted;
    ScriptedSurface picture, bar, window;
    Session session;
    MainContext context;
};

}  // namespace tarvane::tests
