// The program's entry: makes the services and the session, shows the conditions and, once they are accepted, the main
// window.
#include <QApplication>
#include <memory>

#include "mainview/frmtarvane.h"
#include "planner/plansettings.h"
#include "platform/qt/appearance.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/qtservices.h"
#include "platform/qt/windowplaces.h"
#include "reader/frmhelpkey.h"
#include "shell/frmconditions.h"

int main(int argc, char** argv) {
    using namespace tarvane;
    QApplication application(argc, argv);
    setappearance(application);
    QtServices services;
    const std::optional<Started> started = startup(services.services());
    if (!started) return 1;
    services.printer.setpdffolder(started->folders.textoutputfolder);
    HelpKey manual(services.services(), {started->folders.programfolder, started->folders.textoutputfolder});
    services.windows.onmanual = [&](const std::string& windowname) { manual.open(windowname); };
    application.installEventFilter(&manual);
    Session session;
    session.folders = started->folders;
    session.conventions = started->conventions;
    NightLight nightlight;
    WindowPlaces places(started->folders.configfolder() + "/Windows.json");
    application.installEventFilter(&places);
    nightlight.set(readplansettings(plansettingspath(session.folders)).night);
    std::unique_ptr<frmtarvane> window;
    frmConditions conditions(services.services(), started->folders);
    conditions.onaccepted = [&] {
        window = std::make_unique<frmtarvane>(session, services.services());
        window->Form_Load();
        window->onnight = [&](bool night) { nightlight.set(night); };
        window->show();
        window->openatstart();
        conditions.hide();
    };
    conditions.onhelp = [&] { manual.open("frmConditions"); };
    conditions.ondeclined = [] { QApplication::exit(0); };
    conditions.show();
    return QApplication::exec();
}
