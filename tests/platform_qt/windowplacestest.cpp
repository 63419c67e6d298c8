// Windows come up as they were left, on the screen that they were left on.
#include "platform/qt/windowplaces.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include "fakes/temporaryfolder.h"

namespace tarvane {
namespace {

TEST(WindowPlaces, ASizeIsOfTheScreenThatItWasChosenOn) {
    const fakes::TemporaryFolder folder;
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const std::string here = std::to_string(screen.width()) + "x" + std::to_string(screen.height());
    for (const auto& [on, width] : {std::pair(here, 310), {std::string("683x384"), 250}}) {
        putfile(folder / "Windows.json", "{\"frmany\": {\"screen\": \"" + on +
                                             "\", \"left\": 20, \"top\": 30, \"width\": 310, \"height\": 210}}");
        WindowPlaces places(folder / "Windows.json");
        qApp->installEventFilter(&places);
        QWidget window;
        window.setObjectName("frmany");
        window.resize(250, 150);
        window.show();
        EXPECT_EQ(window.width(), width) << on;
        window.hide();
        EXPECT_NE(filetext(folder / "Windows.json").find(here), std::string::npos);
    }
}

TEST(WindowPlaces, AProgramThatIsKilledHasThemToo) {
    const fakes::TemporaryFolder folder;
    WindowPlaces places(folder / "Windows.json");
    qApp->installEventFilter(&places);
    QWidget window;
    window.setObjectName("frmany");
    window.show();
    window.resize(313, 211);
    EXPECT_TRUE(QTest::qWaitFor([&] { return filetext(folder / "Windows.json").find("313") != std::string::npos; }));
}

}  // namespace
}  // namespace tarvane
