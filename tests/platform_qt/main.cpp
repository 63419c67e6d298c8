// The tests of what stands on Qt: without a screen, and with the program's looks.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/appearance.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    tarvane::setappearance(application);
    return RUN_ALL_TESTS();
}
