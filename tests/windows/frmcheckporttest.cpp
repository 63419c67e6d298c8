#include "atlas/frmcheckport.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "atlas/frmaboutport.h"
#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmCheckPort : public testing::Test, protected MainFixture {
  protected:
    FrmCheckPort() {
        load();
        scripted.clock.set(2026, 11, 23);
    }

    static std::string cell(const frmcheckport& form, int row, int column) {
        return form.table->item(row, column)->text().toStdString();
    }
    /// The first key opens the cell's editor, which takes the others.
    static void type(const char* text) {
        for (; *text; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    }
    TableCheck kept() const { return checkof(areanotes(session.folders, area()), area(), readport(area(), 2), 2); }
};

TEST_F(FrmCheckPort, WhatIsTypedIsComparedKeptAndShownAgain) {
    {
        frmcheckport form(context, area(), 2);
        present(form);
        expectroomfortexts(form);
        EXPECT_EQ(form.windowTitle(), "Check This Port - Birch Sound");
        EXPECT_EQ(infocus(form), "table");
        form.table->setCurrentCell(0, frmcheckport::datecolumn);
        for (const char* text : {"2026-07-14", "0612", "3,1", "", "", "12:20", "1.9"}) {
            type(text);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(form.check().waters.size(), 2U);
        EXPECT_EQ(cell(form, 1, frmcheckport::datecolumn), "2026-07-14") << "of the line before";
        const CheckResult result = checkwaters(readport(area(), 2), "", form.check(), scripted.zones);
        EXPECT_EQ(result.compared, 2);
        EXPECT_EQ(shown(*form.lblResult), checkwords(result) + ".");
        EXPECT_NE(cell(form, 0, frmcheckport::minutescolumn), "");
        EXPECT_NE(cell(form, 0, frmcheckport::predictedcolumn), "");
        QTest::qWait(900);
        EXPECT_EQ(kept().waters.size(), 2U);
        // A key in an open editor is kept before the cell is left.
        form.table->setCurrentCell(2, frmcheckport::timecolumn);
        type("9");
        QTest::qWait(900);
        EXPECT_EQ(kept().waters.size(), 3U);
        EXPECT_EQ(kept().waters.back().time, "9");
        EXPECT_NE(cell(form, 2, frmcheckport::notecolumn), "");
    }
    frmcheckport again(context, area(), 2);
    EXPECT_EQ(again.table->rowCount(), 4);
    EXPECT_EQ(cell(again, 0, frmcheckport::heightcolumn), "3,1");
    again.table->setCurrentCell(2, frmcheckport::datecolumn);
    again.cmdDelete->click();
    again.cmbClock->setCurrentIndex(2);
    emit again.cmbClock->activated(2);
    again.cmdClose->click();
    EXPECT_EQ(kept().waters.size(), 2U);
    EXPECT_EQ(kept().clock, TableClock::ut);
}

TEST_F(FrmCheckPort, LinesArePastedFromOtherTables) {
    frmcheckport form(context, area(), 2);
    present(form);
    scripted.clipboard.contents = "Date\tTime\tm\n2026-07-14\t06:12\t3.1\tHW\n\t12:20\t1.9\n";
    QTest::keyClick(form.table, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.table->rowCount(), 3);
    EXPECT_EQ(cell(form, 0, frmcheckport::kindcolumn), "high");
    EXPECT_EQ(cell(form, 1, frmcheckport::datecolumn), "2026-07-14");
    scripted.clipboard.contents = "nothing";
    form.cmdPaste->click();
    EXPECT_EQ(shown(*form.lblSaid), "No waters are on the clipboard");
    form.cmdCopy->click();
    EXPECT_NE(scripted.clipboard.contents.find("2026-07-14\t12:20\t1.9\t"), std::string::npos);
    // What can't be kept is given up only by who is asked.
    const std::string path = ownportspath(session.folders);
    std::filesystem::create_directories(path);
    const std::string question = "Could not be kept: " + path + ": Permission denied\n\nClose the window all the same?";
    scripted.messages.expectask(question, false);
    form.cmdClose->click();
    EXPECT_TRUE(form.isVisible());
    EXPECT_NE(shown(*form.lblSaid).find("Could not be kept"), std::string::npos);
    scripted.messages.expectask(question, true);
    form.cmdClose->click();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmCheckPort, ADateThatIsMendedIsThatOfItsLinesToo) {
    frmcheckport form(context, area(), 2);
    present(form);
    scripted.clipboard.contents = "14 Jully 2026 0612 3.1 1220 1.9\n1830 3.0\n15/7/2026 0700 3.1";
    form.cmdPaste->click();
    EXPECT_EQ(form.check().waters.size(), 4U);
    EXPECT_EQ(cell(form, 2, frmcheckport::datecolumn), "14 Jully 2026");
    EXPECT_TRUE(shown(*form.lblSaid).starts_with("4 lines added; lines 1, 2 and 3 left out")) << shown(*form.lblSaid);
    form.table->setCurrentCell(0, frmcheckport::datecolumn);
    type("Tue 14 July 2026");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (const int row : {0, 1, 2})
        EXPECT_EQ(cell(form, row, frmcheckport::datecolumn), "2026-07-14") << row;
    EXPECT_EQ(cell(form, 3, frmcheckport::datecolumn), "2026-07-15");
    form.table->item(3, frmcheckport::timecolumn)->setText("7:00 pm");
    EXPECT_EQ(cell(form, 3, frmcheckport::timecolumn), "19:00");
    scripted.clipboard.contents = "16/7/2026";
    form.table->setCurrentCell(3, frmcheckport::datecolumn);
    form.cmdPaste->click();
    EXPECT_EQ(cell(form, 3, frmcheckport::datecolumn), "2026-07-16") << "one field goes into the cell";
    EXPECT_EQ(cell(form, 2, frmcheckport::datecolumn), "2026-07-14");
}

TEST_F(FrmCheckPort, NotesThatArentUnderstoodAreToldOnceAndKept) {
    const std::string path = ownportspath(session.folders);
    for (const bool told : {true, false}) {
        if (told) putfile(path, "{\"areas\": {}, \"colours\": 1}");
        frmaboutport about(context, area(), 2);
        present(about);
        EXPECT_EQ(about.lblKept->isVisible(), told);
        frmcheckport form(context, area(), 2);
        present(form);
        EXPECT_FALSE(form.lblKept->isVisible()) << "told before";
    }
    EXPECT_EQ(filetext(path + ".broken"), "{\"areas\": {}, \"colours\": 1}");
}

TEST_F(FrmCheckPort, WhatEscapeTakesBackIsNotKept) {
    frmcheckport form(context, area(), 2);
    present(form);
    form.table->item(0, frmcheckport::heightcolumn)->setText("1.1");
    form.table->setCurrentCell(0, frmcheckport::heightcolumn);
    form.table->editItem(form.table->currentItem());
    auto* box = form.table->findChild<QLineEdit*>();
    ASSERT_TRUE(box);
    box->selectAll();
    QTest::keyClicks(box, "9.9");
    QTest::keyClick(box, Qt::Key_Escape);
    form.cmdClose->click();
    ASSERT_EQ(kept().waters.size(), 1U);
    EXPECT_EQ(kept().waters[0].height, "1.1");
}

TEST_F(FrmCheckPort, AboutThisPortShowsTheCheckOfAnyPort) {
    frmaboutport about(context, area(), 2);
    present(about);
    EXPECT_EQ(about.windowTitle(), "About This Port");
    EXPECT_EQ(shown(*about.lblName), "Birch Sound");
    EXPECT_EQ(about.constants->rowCount(), 7);
    scripted.windows.expect("frmcheckport", [&](ModalWindow& opened) {
        static_cast<frmcheckport&>(opened).table->item(0, frmcheckport::datecolumn)->setText("14/7/2026");
        static_cast<frmcheckport&>(opened).table->item(0, frmcheckport::timecolumn)->setText("06:12");
        static_cast<frmcheckport&>(opened).table->item(0, frmcheckport::heightcolumn)->setText("3");
        static_cast<frmcheckport&>(opened).cmdClose->click();
    });
    about.cmdCheck->click();
    QApplication::processEvents();
    for (const auto* label : about.findChildren<QLabel*>())
        if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
        }
    EXPECT_EQ(kept().waters.at(0).date, "2026-07-14");
    about.cmdCopy->click();
    EXPECT_NE(scripted.clipboard.contents.find("Check: Checked by you against 1 water of 2026"), std::string::npos)
        << scripted.clipboard.contents;
}

}  // namespace
}  // namespace tarvane::tests
