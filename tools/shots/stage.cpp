#include "shots/stage.h"

#include <QApplication>
#include <QDir>
#include <filesystem>

#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "session/refresh.h"
#include "session/tidecurve.h"

namespace tarvane::shots {
namespace {

namespace fs = std::filesystem;

void copyif(const fs::path& from, const fs::path& to) {
    std::error_code ignored;
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing, ignored);
}

ProgramFolders foldersin(const std::string& root) {
    ProgramFolders folders;
    folders.programfolder = root + "/program";
    folders.docsfolder = root + "/documents";
    folders.appdatafolder = root + "/appdata";
    folders.textoutputfolder = folders.userfolder() + "/TextOutput";
    for (const std::string& made :
         {folders.programfolder, folders.configfolder(), folders.depthsfolder(), folders.textoutputfolder})
        fs::create_directories(made);
    return folders;
}

HarmonicRecord oddport(const char* name, float level, float m2, float k1) {
    HarmonicRecord port;
    port.PortName = name;
    port.TimeZoneLetter.assign(1, 'L');
    port.PortLat = 50;
    port.PortLong = -2;
    port.Z0 = level;
    port.M2g = 120;
    port.M2Hm = m2;
    port.MHm2.fill(m2);
    port.S2g = 170;
    port.S2Hm = m2 / 3;
    port.K1g = 100;
    port.K1Hm = k1;
    port.O1g = 90;
    port.O1Hm = k1 / 2;
    return port;
}

}  // namespace

Stage::Stage(const std::string& area, const ClockReading& at) : clock(std::make_unique<StandingClock>(at)) {
    session.folders = foldersin(folder.path().toStdString());
    fs::copy_file(area, session.folders.programfolder + "/UK.hc");
    copyif(fs::path(area).parent_path() / "uk-about.csv", session.folders.programfolder + "/uk-about.csv");
    copyif(fs::path(area).parent_path() / "coast.bin", session.folders.programfolder + "/coast.bin");
    open();
}

Stage::Stage() : clock(std::make_unique<QtClock>()) {
    const QtFolders system;
    ProgramFolders own;
    own.programfolder = system.program();
    own.appdatafolder = system.localappdata();
    own.docsfolder = system.documents().value_or("/");
    session.folders = foldersin(folder.path().toStdString());
    copyif(own.cfgpath(), session.folders.cfgpath());
    copyif(own.depthsfolder(), session.folders.depthsfolder());
    for (const char* name : {"/UK.hc", "/uk-about.csv", "/coast.bin"})
        copyif(own.programfolder + name, session.folders.programfolder + name);
    open();
}

void Stage::open() {
    ProbedDate today;
    session.conventions = CheckDateFormat(real.locale, clock->now().today, today);
    const Services services{real.messages, real.filedialogs, real.printer,  real.clipboard, *clock,        real.locale,
                            real.folders,  real.windows,     real.progress, real.drives,    real.drawings, real.zones};
    mainwindow = std::make_unique<frmtarvane>(session, services);
    mainwindow->Form_Load();
    mainwindow->show();
    settle();
}

MainContext Stage::context() {
    return mainwindow->commandcontext();
}

void Stage::settle() {
    QApplication::processEvents();
    MainContext onstage = context();
    drawtidecurve(session, onstage.surfaces);
    drawtimemarker(session, *mainwindow->Picture1);
    mainwindow->showview();
    QApplication::processEvents();
}

void Stage::show(std::int16_t port, Date date, float output) {
    MainContext onstage = context();
    session.settings.currentport = port;
    session.settings.currentoutput = output;
    takecurrentport(session, true);
    setportbox(session);
    setdateonshow(session.onshow, date);
    session.view.tidedatebox = "Date   : " + formatdate(real.locale, date, "dd mmmm yyyy (dddd)");
    refreshday(onstage);
    settle();
}

std::string oddarea(const std::string& path) {
    const HarmonicRecord ports[] = {oddport("Below datum", -0.5F, 2.2F, 0.1F), oddport("Flat water", 1.5F, 0, 0),
                                    oddport("One tide a day", 0.7F, 0.02F, 0.5F),
                                    oddport("Great range", 7, 4.5F, 0.1F)};
    std::int16_t number = 0;
    for (const HarmonicRecord& port : ports)
        writeport(path, ++number, port);
    return path;
}

}  // namespace tarvane::shots
