#include "platform/qt/qtfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "files/programplace.h"

namespace tarvane {
namespace {

ProgramPlace ownplace() {
    return programplace(QCoreApplication::applicationDirPath().toStdString());
}

}  // namespace

std::string QtFolders::program() const {
    return ownplace().folder;
}

bool QtFolders::keepschanges() const {
    return ownplace().keepschanges();
}

std::optional<std::string> QtFolders::documents() const {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (path.isEmpty()) return std::nullopt;
    return path.toStdString();
}

std::string QtFolders::localappdata() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
}

bool QtFolders::make(const std::string& path) {
    return QDir().mkpath(QString::fromStdString(path));
}

bool QtFolders::remove(const std::string& path) {
    return QFile::remove(QString::fromStdString(path));
}

}  // namespace tarvane
