#include "platform/qt/qtfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "files/wholefiles.h"

namespace tarvane {

std::string QtFolders::program() const {
    return QCoreApplication::applicationDirPath().toStdString();
}

std::optional<std::string> QtFolders::documents() const {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (path.isEmpty()) return std::nullopt;
    return path.toStdString();
}

std::string QtFolders::localappdata() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
}

bool QtFolders::canwrite(const std::string& path) const {
    return canwritein(path);
}

bool QtFolders::make(const std::string& path) {
    return QDir().mkpath(QString::fromStdString(path));
}

bool QtFolders::remove(const std::string& path) {
    return QFile::remove(QString::fromStdString(path));
}

}  // namespace tarvane
