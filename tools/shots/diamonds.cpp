#include "shots/diamonds.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <utility>

#include "diamonds/frmimport.h"
#include "diamonds/frmtidaldiamondscopy.h"

namespace tarvane::shots {
namespace {

/// Nobody is there to read a message.
struct UnreadMessages : Messages {
    void show(const std::string&, const std::string&, MessageIcon) override {}
    bool ask(const std::string&, const std::string&, MessageIcon) override { return false; }
    Answer askorcancel(const std::string&, const std::string&, MessageIcon) override { return Answer::no; }
    void beep() override {}
};

struct OneMedium : Drives {
    std::string path;
    std::vector<Drive> drives() const override { return {{"/", ""}, {path, "CHARTS 2026"}}; }
};

/// A stream that turns with the clock.
DiamondRecord turningdiamond(int number) {
    const auto step = static_cast<float>(number);
    DiamondRecord record{
        50.1F + 0.05F * step, -1.2F - 0.1F * step, std::string(1, static_cast<char>('A' + number)), {}};
    for (std::size_t i = 0; i < streamhours; ++i) {
        const double angle = 30 * static_cast<double>(i) + 7 * number;
        const auto rate = static_cast<float>(1 + std::fabs(std::cos(angle / 57.3)));
        record.streams[i] = {static_cast<float>(std::fmod(angle, 360)), rate, rate / 2};
    }
    return record;
}

ProgramFolders withprogram(ProgramFolders folders, const std::string& program) {
    folders.programfolder = program;
    return folders;
}

void putmedium(const QDir& medium) {
    medium.mkpath("Tidal Stream Atlas");
    medium.mkpath("Charts");
    for (const char* name : {"CHANNEL.CHA", "Solent.cha", "CHANNEL.CHT", "CHANNEL.L20", "CHANNEL.L30", "CHANNEL.L40",
                             "solent.cht", "solent.l20"}) {
        QFile file(medium.filePath(QString("Tidal Stream Atlas/") + name));
        if (file.open(QIODevice::WriteOnly)) file.write(name);
    }
}

}  // namespace

void takediamonds(Stage& stage, const std::function<void(QWidget&, const QString&)>& take) {
    MainContext onstage = stage.context();
    // These windows tell paths, which are to be the same every time: those from within the folder are.
    const std::string program = "program";
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(QString::fromStdString(onstage.session.folders.programfolder)).path());
    const ProgramFolders folders =
        std::exchange(onstage.session.folders, withprogram(onstage.session.folders, program));
    for (int i = 0; i < 14; ++i)
        adddiamond(onstage.session.backups, program + "/solent.l20", turningdiamond(i));
    adddiamond(onstage.session.backups, program + "/mine.l20", turningdiamond(20));
    frmTidalDiamondsCopy window(onstage, &stage.window());
    take(window, "frmTidalDiamondsCopy-empty");
    window.fileSource->setCurrentRow(1);
    window.fileDest->setCurrentRow(0);
    window.List1->setCurrentRow(4);
    window.cmdCopy->click();
    window.cmdAdd->click();
    take(window, "frmTidalDiamondsCopy");

    QDir().mkdir("medium");
    putmedium(QDir("medium"));
    UnreadMessages messages;
    OneMedium medium;
    medium.path = "medium";
    const Services& real = onstage.services;
    MainContext context{onstage.session,
                        {messages, real.filedialogs, real.printer, real.clipboard, real.clock, real.locale,
                         real.folders, real.windows, real.progress, medium, real.drawings, real.zones},
                        onstage.surfaces};
    frmimport import(context, &stage.window());
    emit import.dirDirectories->itemDoubleClicked(import.dirDirectories->item(2));
    import.cmdimport->click();
    take(import, "frmimport");
    onstage.session.folders = folders;
    QDir::setCurrent(before);
}

}  // namespace tarvane::shots
