#include "ports/frmhccopy.h"

#include <gtest/gtest.h>

#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmHCcopy : public testing::Test, protected MainFixture {
  protected:
    FrmHCcopy() { load(); }

    static void clickat(QListWidget& list, QPoint place) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }
    static void click(QListWidget& list, int row) { clickat(list, list.visualItemRect(list.item(row)).center()); }
    static QStringList rows(const QListWidget& list) {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts << list.item(row)->text();
        return texts;
    }
};

TEST_F(FrmHCcopy, KeysAloneGatherAndSave) {
    frmHCcopy form(context);
    present(form);
    expectroomfortexts(form);
    EXPECT_EQ(form.windowTitle(), "Tarvane Ports Copy Utility");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"fillist", "List1", "List2", "fileDestName", "txtname",
                                                        "cmdcopy", "cmdcancel"}));
    scripted.messages.expectshow("No data");
    QTest::keyClick(form.List1, Qt::Key_Return);
    QTest::keyClick(form.fillist, Qt::Key_Space);
    for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down})
        QTest::keyClick(form.List1, key);
    EXPECT_EQ(form.List2->count(), 0) << "arrow keys look and don't pick";
    QTest::keyClick(form.List1, Qt::Key_Space);
    QTest::keyClick(form.List1, Qt::Key_Up);
    QTest::keyClick(form.List1, Qt::Key_Return);
    EXPECT_EQ(rows(*form.List2), (QStringList{"Cedar Head", "Birch Sound"}));
    EXPECT_EQ(form.lblgathered->text(), "2 ports gathered");
    QTest::keyClicks(form.txtname, "Mine");
    QTest::keyClick(form.txtname, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    const std::string mine = session.folders.programfolder + "/Mine.hc";
    EXPECT_EQ(trimmedname(readport(mine, 1)) + trimmedname(readport(mine, 2)), "Cedar HeadBirch Sound");
    EXPECT_EQ(session.view.answer, "Mine.hc: 2 ports");
}

TEST_F(FrmHCcopy, ClicksGatherBehindAChosenFile) {
    frmHCcopy form(context);
    present(form);
    scripted.messages.expectshow("No data");
    clickat(*form.List1, {20, 60});
    click(*form.fillist, 0);
    click(*form.List1, 3);
    click(*form.List1, 3);
    clickat(*form.List1, {20, form.List1->viewport()->height() - 3});
    EXPECT_EQ(rows(*form.List2), (QStringList{"Alder Quay", "Alder Quay"}));
    click(*form.fileDestName, 0);
    EXPECT_EQ(rows(*form.List2), rows(*form.List1));
    form.cmdcopy->click();
    EXPECT_EQ(portcount(area()), 6);
}

}  // namespace
}  // namespace tarvane::tests
