#include "diamonds/frmimport.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmImport : public testing::Test, protected MainFixture {
  protected:
    FrmImport() : form((load(), putmedia(), context)) { present(form); }

    void putmedia() {
        std::filesystem::create_directories(medium + "/Atlas");
        putfile(medium + "/Atlas/SOLENT.CHA", "");
        putfile(medium + "/Atlas/SOLENT.CHT", "chart");
        scripted.drives.mounted = {{folder.path(), ""}, {medium, "CHARTS"}};
    }

    const std::string medium = folder / "medium";
    frmimport form;
};

TEST_F(FrmImport, FoldersOpenAndTheirAreasAreImported) {
    EXPECT_EQ(form.windowTitle(), "Import Charts");
    expectroomfortexts(form);
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"drvDrives", "dirDirectories", "filFilenames", "cmdimport",
                                                        "Cmdfinished", "lstoutcomes"}));
    EXPECT_EQ(form.drvDrives->currentText().toStdString(), medium + " (CHARTS)");
    EXPECT_EQ(form.filFilenames->count(), 0);
    const auto atlas = form.dirDirectories->visualItemRect(form.dirDirectories->item(1)).center();
    QTest::mouseClick(form.dirDirectories->viewport(), Qt::LeftButton, {}, atlas);
    EXPECT_EQ(form.filFilenames->count(), 0);
    QTest::mouseDClick(form.dirDirectories->viewport(), Qt::LeftButton, {}, atlas);
    EXPECT_EQ(form.filFilenames->item(0)->text(), "SOLENT.CHA");
    scripted.messages.expectshow(
        " 1 files transferred\r\rNot copied:\rSOLENT.l20: it is not in the folder\rSOLENT.l30: it is not in the "
        "folder\rSOLENT.l40: it is not in the folder",
        "Tarvane");
    form.cmdimport->click();
    EXPECT_EQ(form.lstoutcomes->item(0)->text(), "SOLENT.cht: copied");
    EXPECT_EQ(filetext(session.folders.programfolder + "/SOLENT.cht"), "chart");
    EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor) << "the hourglass has gone";
    form.dirDirectories->setCurrentRow(0);
    QTest::keyClicks(form.dirDirectories, "atl");
    EXPECT_EQ(form.dirDirectories->currentRow(), 1) << "typing finds a folder below another";
    form.dirDirectories->setCurrentRow(0);
    QTest::keyClick(form.dirDirectories, Qt::Key_Return);
    EXPECT_EQ(form.filFilenames->count(), 0);
    form.Cmdfinished->click();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmImport, ADriveThatIsNotReadyLeavesTheListWhereItWas) {
    std::filesystem::remove_all(medium);
    form.drvDrives->setCurrentIndex(0);
    EXPECT_EQ(form.dirDirectories->item(0)->text().toStdString(), folder.path());
    scripted.messages.expectshow("Drive not ready");
    form.drvDrives->setCurrentIndex(1);
    EXPECT_EQ(form.drvDrives->currentIndex(), 0);
    EXPECT_EQ(form.dirDirectories->item(0)->text().toStdString(), folder.path());
    scripted.drives.mounted.push_back({folder / "stick", ""});
    QEvent infront(QEvent::WindowActivate);
    QApplication::sendEvent(&form, &infront);
    EXPECT_EQ(form.drvDrives->count(), 3) << "a medium was put in";
}

}  // namespace
}  // namespace tarvane::tests
