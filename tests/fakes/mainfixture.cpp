#include "fakes/mainfixture.h"

#include <filesystem>

namespace tarvane::tests {

HarmonicRecord fixtureport(const std::string& name, float level, const std::string& zone) {
    HarmonicRecord port = roundport();
    port.PortName = name;
    port.PortLat = 50.5F;
    port.PortLong = -1.25F;
    port.TimeZoneLetter = zone;
    port.Z0 = level;
    return port;
}

MainFixture::MainFixture() : context{session, scripted.services(), {picture, bar, window, {100, 800, 5800, 3415}}} {
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

std::string MainFixture::area() const {
    return session.folders.programfolder + "/UK.hc";
}

ConfigRecord MainFixture::stored() const {
    return LoadConfig(session.folders);
}

void MainFixture::store(const std::function<void(ConfigRecord&)>& change) const {
    ConfigRecord record = stored();
    change(record);
    ASSERT_TRUE(SaveConfig(session.folders, record));
}

void MainFixture::storedepth(std::int16_t port, float metres, const std::string& note) const {
    UserDepthRecord record = readdepth(session.settings.depfile, port);
    record.UserDepth = metres;
    record.Notes = note;
    ASSERT_TRUE(writedepth(session.settings.depfile, port, record));
}

void MainFixture::load() {
    loadmainwindow(context);
}

}  // namespace tarvane::tests
