#include "diamonds/frmtidaldiamondscopy.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmTidalDiamondsCopy : public testing::Test, protected MainFixture {
  protected:
    FrmTidalDiamondsCopy() : form((load(), makefiles(), context)) { present(form); }

    void makefiles() {
        AreaBackups before;
        for (const char* letter : {"A", "B", "C"}) {
            DiamondRecord record{50.75F, -1.5F, letter, {}};
            record.streams[highwaterplace] = {90, 2, 1};
            adddiamond(before, solent(), record);
        }
        for (const char* empty : {"/mine.l20", "/zone.l20"})
            putfile(session.folders.programfolder + empty, "");
    }
    std::string solent() const { return session.folders.programfolder + "/solent.l20"; }
    static void click(QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
    QLineEdit& box(const char* name) { return control<QLineEdit>(form, name); }
    std::string text(const char* name) { return box(name).text().toStdString(); }
    void type(const char* name, const QString& typed) {
        box(name).setFocus();
        box(name).selectAll();
        QTest::keyClicks(&box(name), typed);
    }

    frmTidalDiamondsCopy form;
};

TEST_F(FrmTidalDiamondsCopy, EveryControlIsThereAndTabIsNoClick) {
    EXPECT_EQ(form.windowTitle(), "Copy Tidal Diamonds");
    EXPECT_EQ(defaultbutton(form), "");
    EXPECT_EQ(shown(*form.lblInstructions),
              "Select a source file; then select the diamond required. 2 Options 1.. Amend data and write it back to "
              "the file\n2.. Copy button writes the data to the right hand section, the Add button here adds the "
              "diamond to the end of the selected destination file");
    expectroomfortexts(form);
    std::vector<std::string> wanted;
    for (const char* side : {"", "Dest"}) {
        const std::string txt = std::string("txt") + side;
        for (const char* each :
             *side ? std::vector{"fileDest", "txtDestFile", "List2", "txtDestID", "txtDestLat", "txtDestLong"}
                   : std::vector{"fileSource", "List1", "txtid", "txtlat", "txtlong"})
            wanted.emplace_back(each);
        for (const char* hour : {"m6", "m5", "m4", "m3", "m2", "m1", "hw", "p1", "p2", "p3", "p4", "p5", "p6"})
            for (const char* kind : {"dir", "sprate", "nprate"})
                wanted.push_back(txt + kind + hour);
    }
    for (const char* button :
         {"cmdAmend", "cmdAddtoFile", "cmdDelete", "cmdCopy", "cmdAdd", "cmdImportCharts", "cmdExit"})
        wanted.emplace_back(button);
    std::vector<std::string> reached{infocus(form)};
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        reached.push_back(infocus(form));
    }
    EXPECT_EQ(reached, wanted);
    EXPECT_EQ(shown(*form.lblSourceFile) + text("txtDestFile"), "");
}

TEST_F(FrmTidalDiamondsCopy, AnEntryIsShownTypedIntoCopiedAndWritten) {
    form.fileSource->setFocus();
    for (int presses = 0; presses < 2; ++presses)
        QTest::keyClick(form.fileSource, Qt::Key_Down);
    EXPECT_EQ(shown(*form.lblSourceFile), solent());
    click(*form.List1, 1);
    EXPECT_EQ(shown(*form.Lbldiamno) + text("txtid") + text("txtlat"), "2B50.45.00N");
    type("txtspratehw", "2,5");
    type("txtlat", "51.30.00s");
    QTest::keyClick(&box("txtlat"), Qt::Key_Return);
    EXPECT_EQ(readdiamonds(solent()).diamonds[1].streams[highwaterplace].SpringRate, 2) << "Enter writes nothing";
    form.cmdCopy->click();
    EXPECT_EQ(text("txtDestspratehw") + text("txtDestLat"), "2.551.30.00S");
    form.cmdAmend->click();
    EXPECT_EQ(readdiamonds(solent()).diamonds[1].streams[highwaterplace], (Stream{90, 2.5F, 1}));
    EXPECT_EQ(form.List1->item(1)->text(), "B   51.30S   1.30W");
    EXPECT_EQ(form.List1->currentRow(), 1);
    box("txtDestFile").setText("creek");
    form.cmdAdd->click();
    EXPECT_EQ(form.List2->count(), 1);
    EXPECT_EQ(form.fileSource->count(), 4);
    EXPECT_EQ(readdiamonds(session.folders.programfolder + "/creek.l20").diamonds[0].DiamondLat, -51.5F);
    click(*form.List1, 0);
    form.cmdDelete->setFocus();
    QTest::keyClick(form.cmdDelete, Qt::Key_Return);
    EXPECT_EQ(form.List1->count(), 3) << "Enter deletes nothing";
    QTest::keyClick(form.cmdDelete, Qt::Key_Space);
    EXPECT_EQ(form.List1->count(), 2);
    EXPECT_EQ(text("txtid") + text("txtlat") + text("txtdirhw"), "");
    EXPECT_EQ(form.List1->currentRow(), 0);
    click(*form.List1, 0);
    EXPECT_EQ(text("txtid"), "B") << "a click on the highlighted entry reads it anew";
}

TEST_F(FrmTidalDiamondsCopy, ADoubleClickOnADirectionEmptiesItsHourAlone) {
    click(*form.fileSource, 1);
    click(*form.List1, 0);
    form.cmdCopy->click();
    QTest::mouseDClick(&box("txtdirhw"), Qt::LeftButton);
    EXPECT_EQ(text("txtdirhw") + text("txtspratehw") + text("txtnpratehw"), "");
    EXPECT_EQ(text("txtnpratem1") + text("txtdirp1") + text("txtDestdirhw"), "0.0000090");
    QTest::mouseDClick(&box("txtDestdirp6"), Qt::LeftButton);
    QTest::mouseDClick(&box("txtDestspratehw"), Qt::LeftButton);
    EXPECT_EQ(text("txtDestdirp6") + text("txtDestspratep6") + text("txtDestnpratep6"), "");
    EXPECT_EQ(text("txtDestnpratep5") + text("txtDestdirhw"), "0.0090");
}

TEST_F(FrmTidalDiamondsCopy, TheKeysPassAFileThatCantBeRead) {
    ASSERT_EQ(form.fileSource->item(1)->text(), "solent.l20");
    click(*form.fileSource, 0);
    std::filesystem::remove(solent());
    std::filesystem::create_directory(solent());
    scripted.messages.expectshow("The diamond file can't be read: " + solent() + ": Is a directory");
    QTest::keyClick(form.fileSource, Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_TRUE(form.fileSource->selectedItems().isEmpty());
    QTest::keyClick(form.fileSource, Qt::Key_Down);
    EXPECT_EQ(form.fileSource->selectedItems().value(0), form.fileSource->item(2));
    EXPECT_TRUE(shown(*form.lblSourceFile).ends_with("/zone.l20"));
}

TEST_F(FrmTidalDiamondsCopy, WhatWasTypedIsNotLostUnasked) {
    const std::string question = "Entry no. 2 of solent.l20 was changed here, and not amended. Amend it?";
    click(*form.fileSource, 1);
    click(*form.List1, 1);
    type("txtid", "Z");
    const std::function<void()> ways[] = {[&] { click(*form.List1, 2); },
                                          [&] { QTest::keyClick(form.List1, Qt::Key_Down); },
                                          [&] { click(*form.fileSource, 0); }, [&] { form.cmdExit->click(); },
                                          [&] { QTest::keyClick(&form, Qt::Key_Escape); }};
    for (const auto& leave : ways) {
        scripted.messages.expectaskorcancel(question, Answer::cancel);
        leave();
        QApplication::processEvents();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.List1->selectedItems().value(0), form.List1->item(1));
        EXPECT_EQ(form.fileSource->currentRow(), 1);
        EXPECT_EQ(text("txtid"), "Z");
    }
    scripted.windows.expect("frmimport");
    form.cmdImportCharts->click();
    EXPECT_EQ(text("txtid"), "Z");
    scripted.messages.expectaskorcancel(question, Answer::no);
    click(*form.List1, 2);
    EXPECT_EQ(text("txtid") + readdiamonds(solent()).diamonds[1].DiamondID, "CB");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace tarvane::tests
