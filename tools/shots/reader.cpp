#include "shots/reader.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>

#include "platform/qt/qtservices.h"
#include "reader/frmpdfreader.h"
#include "reader/windowchapters.h"

namespace tarvane::shots {

bool takereader(const std::string& folder) {
    const QDir album(QString::fromStdString(folder));
    if (!album.mkpath(".")) return false;
    QtServices real;
    frmPDFReader reader(real.services(), {real.folders.program(), folder});
    bool written = true;
    const auto take = [&](const char* name) {
        reader.show();
        QApplication::processEvents();
        written = reader.grab().save(album.filePath(QString(name) + ".png")) && written;
    };
    take("frmPDFReader-empty");
    reader.openmanual(manualfile);
    take("frmPDFReader");
    reader.gotochapter(chapterof("frmtarvane").value());
    take("frmPDFReader-chapter");
    reader.findbox->setText("springs");
    take("frmPDFReader-found");
    reader.fitpage->trigger();
    take("frmPDFReader-page");
    reader.resize(reader.minimumSize());
    take("frmPDFReader-small");
    return written;
}

}  // namespace tarvane::shots
