#include "platform/qt/appearance.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QIcon>
#include <QSettings>

namespace tarvane {
namespace {

TEST(Appearance, TheIconIsLinkedInAndTheDesktopFindsTheProgramsEntry) {
    for (const int size : {16, 48, 256})
        EXPECT_EQ(programicon().pixmap(size).size(), QSize(size, size));
    const QString entry = TARVANE_DATA "/../packaging/" + QApplication::desktopFileName() + ".desktop";
    ASSERT_TRUE(QFile::exists(entry)) << entry.toStdString();
    const QString icon = QSettings(entry, QSettings::IniFormat).value("Desktop Entry/Icon").toString();
    EXPECT_TRUE(QFile::exists(TARVANE_DATA "/../packaging/icons/" + icon + ".svg")) << icon.toStdString();
}

}  // namespace
}  // namespace tarvane
