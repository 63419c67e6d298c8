#include "diamonds/frmstreams.h"

#include <filesystem>

#include "diamonds/diamondofstreams.h"
#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmstreamsTest : LoadedMain {
    FrmstreamsTest() {
        putdiamonds(session.folders.programfolder + "/solent.l20", {rounddiamond("A"), rounddiamond("B")});
    }

    static std::string cell(const frmstreams& form, int row, int column) {
        return form.table->item(row, column)->text().toStdString();
    }
};

TEST_F(FrmstreamsTest, OpensAtHighWaterWithRoomForItsTexts) {
    frmstreams form(context);
    present(form);
    expectroomfortexts(form);
    EXPECT_EQ(infocus(form), "table");
    EXPECT_EQ(form.table->rowCount(), 26);
    EXPECT_EQ(form.table->currentRow(), 6);
    EXPECT_EQ(shown(*form.lblhour), "High water, 04:40: 130 degrees, rate 3.87 (springs 3.0, neaps 1.0)");
    EXPECT_EQ(form.DTPicker->text(), "09/04/2024");
    EXPECT_EQ(shown(*form.txtDayName), "(Tuesday)");
    EXPECT_TRUE(form.lblabout->text().startsWith("Diamond A "));
}

TEST_F(FrmstreamsTest, KeysAndTheMouseMoveTheStrongHour) {
    frmstreams form(context);
    present(form);
    const auto pixels = [&] { return form.Picture1->grab().toImage(); };
    const QImage before = pixels();
    QTest::keyClick(form.table, Qt::Key_Down);
    EXPECT_TRUE(shown(*form.lblhour).starts_with("HW +1, 05:40")) << shown(*form.lblhour);
    EXPECT_NE(pixels(), before);
    emit form.table->cellEntered(1, 2);
    EXPECT_TRUE(shown(*form.lblhour).starts_with("HW -5, 23:40")) << shown(*form.lblhour);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(form.table->viewport(), &leave);
    EXPECT_TRUE(shown(*form.lblhour).starts_with("HW +1, 05:40")) << shown(*form.lblhour);
    // The arrow of high water points to 130 degrees; the picture is that of the row's own high water.
    form.table->setCurrentCell(20, 1);
    const double x = form.Picture1->width() / 2.0, y = form.Picture1->height() / 2.0;
    form.Picture1->onmousemove(x + 60 * 0.766, y + 60 * 0.643);
    EXPECT_EQ(form.table->currentRow(), 19);
    EXPECT_TRUE(shown(*form.lblhour).starts_with("High water, 17:00"));
    form.Picture1->onmousemove(1, 1);
    EXPECT_EQ(form.table->currentRow(), 19);
}

TEST_F(FrmstreamsTest, DatesAreSteppedTypedAndRefused) {
    frmstreams form(context);
    present(form);
    form.Nextday->click();
    EXPECT_EQ(form.DTPicker->text(), "10/04/2024");
    QTest::keyClick(form.DTPicker, Qt::Key_Down);
    EXPECT_EQ(form.DTPicker->text(), "09/04/2024");
    form.Previousday->click();
    EXPECT_EQ(shown(*form.txtDayName), "(Monday)");
    form.DTPicker->setFocus();
    form.DTPicker->clear();
    QTest::keyClicks(form.DTPicker, "6/1/2024");
    EXPECT_EQ(form.DTPicker->text(), "6/1/2024");
    EXPECT_EQ(form.table->rowCount(), 13);
    EXPECT_EQ(cell(form, 6, 0), "11:40");
    QTest::keyClick(form.DTPicker, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.DTPicker->text(), "06/01/2024");
    QTest::keyClicks(form.DTPicker, "x");
    EXPECT_NE(shown(*form.txtDayName), "(Saturday)");
    EXPECT_EQ(form.table->rowCount(), 13);
    form.cmbPort->setCurrentIndex(2);
    EXPECT_NE(form.lblabout->text().indexOf("Cedar Head (3)"), -1);
    form.cmbDiamond->setCurrentIndex(1);
    form.cmdCopy->click();
    EXPECT_TRUE(scripted.clipboard.contents.starts_with("Diamond B "));
    EXPECT_EQ(shown(*form.lblanswer), "Copied: the day's streams");
}

TEST_F(FrmstreamsTest, WithoutADiamondFileItSaysWhatToDo) {
    std::filesystem::remove(session.folders.programfolder + "/solent.l20");
    frmstreams form(context);
    present(form);
    EXPECT_TRUE(form.lblabout->text().startsWith("There is no tidal diamond file"));
    EXPECT_FALSE(form.cmdCopy->isEnabled() || form.cmdSave->isEnabled());
    EXPECT_EQ(infocus(form), "cancel");
    form.Nextday->click();
    form.Picture1->onmousemove(5, 5);
    EXPECT_EQ(form.table->rowCount(), 0);
}

}  // namespace
}  // namespace tarvane::tests
