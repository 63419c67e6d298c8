#include "ports/frmharmedit.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmHarmedit : public testing::Test, protected MainFixture {
  protected:
    FrmHarmedit() : form((load(), context)) {
        present(form);
        QTest::keyClick(form.fileList, Qt::Key_Return);
    }

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
    std::string status() const { return form.lblstatus->text().toStdString(); }

    const std::string question = "The constants of Birch Sound were changed. Accept the changes?";
    frmharmedit form;
};

TEST_F(FrmHarmedit, EveryControlIsReachedInOrderAndEnterIsAccept) {
    EXPECT_EQ(form.windowTitle(), "Harmonic Constants");
    EXPECT_EQ(defaultbutton(form), "chartok");
    expectroomfortexts(form);
    std::vector<std::string> wanted{"fileList", "portlist"};
    for (const PortBox& each : portboxes())
        wanted.emplace_back(each.name);
    for (const char* button : {"chartok", "cmdAdd", "cmdInsert", "cmdDelete", "cmdClear", "Command2"})
        wanted.emplace_back(button);
    EXPECT_EQ(taborder(form), wanted);
}

TEST_F(FrmHarmedit, APortIsShownTypedIntoAndAccepted) {
    click(*form.portlist, 1);
    EXPECT_EQ(text("txtportname") + text("txtportlat") + text("txtTimeZone"), "Birch Sound50.30.00N-1");
    type("txtz0", "4x,25");
    type("txtportlong", "002.30.00e");
    EXPECT_EQ(text("txtz0") + " " + text("txtportlong"), "4.25 002.30.00E");
    EXPECT_EQ(scripted.messages.beeps, 1);
    QTest::keyClick(&box("txtportlong"), Qt::Key_Return);
    const HarmonicRecord stored = readport(area(), 2);
    EXPECT_EQ(stored.Z0, 4.25F);
    EXPECT_EQ(stored.PortLong, 2.5F);
    EXPECT_EQ(status(), "UK.hc: 4 ports; port 2 was changed");
    EXPECT_EQ(form.portlist->currentRow(), 1);
}

TEST_F(FrmHarmedit, LeavingABoxFillsOthers) {
    click(*form.portlist, 1);
    type("txtm2hm", "2.5");
    const std::string before = text("txtdecm2");
    QFocusEvent elsewhere(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&box("txtm2hm"), &elsewhere);
    EXPECT_EQ(text("txtdecm2"), before) << "another program came to the front";
    QTest::keyClick(&box("txtm2hm"), Qt::Key_Tab);
    EXPECT_EQ(text("txtjanm2") + text("txtjunm2") + text("txtdecm2"), "2.52.52.5");
    type("txtjanm2", "3");
    box("txtz0").setFocus();
    EXPECT_EQ(text("txtfebm2") + text("txtmarm2"), "32.5");
    // A button's letter is a way out of the box too.
    type("txtjanm2", "4");
    QTest::keyClick(&box("txtjanm2"), Qt::Key_A, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_EQ(readport(area(), 2).MHm2[1], 4);
}

TEST_F(FrmHarmedit, EnterWritesNothingFromAListNorFromAButton) {
    const auto before = readwhole(area());
    form.portlist->setFocus();
    QTest::keyClick(form.portlist, Qt::Key_Down);
    EXPECT_EQ(text("txtportname"), "Birch Sound");
    QTest::keyClick(form.portlist, Qt::Key_Return);
    for (QPushButton* button : {form.cmdAdd, form.cmdInsert, form.cmdDelete, form.cmdClear}) {
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
    }
    EXPECT_EQ(readwhole(area()), before);
    EXPECT_EQ(status(), "UK.hc: 4 ports");
    form.cmdClear->click();
    EXPECT_EQ(text("txtportname") + text("txtdecdz0"), "");
    click(*form.portlist, 1);
    EXPECT_EQ(text("txtportname"), "Birch Sound") << "a click on the highlighted port reads it anew";
    QTest::keyClick(form.cmdDelete, Qt::Key_Space);
    EXPECT_EQ(form.portlist->count(), 3);
    EXPECT_TRUE(form.portlist->selectedItems().isEmpty());
    EXPECT_TRUE(status().starts_with("UK.hc: 3 ports; Birch Sound was deleted\n"));
    form.cmdAdd->click();
    QTest::keyClick(form.portlist, Qt::Key_End);
    EXPECT_EQ(form.portlist->selectedItems().value(0), form.portlist->item(3)) << "where the keys stand already";
    std::filesystem::remove(area());
    scripted.messages.expectshow("There is no port 3 to be read in " + area());
    QTest::keyClick(form.portlist, Qt::Key_Up);
    QApplication::processEvents();
    EXPECT_TRUE(form.portlist->selectedItems().isEmpty());
}

TEST_F(FrmHarmedit, WhatWasTypedIsNotLostUnasked) {
    click(*form.portlist, 1);
    type("txtportname", "Beech Sound");
    const auto before = readwhole(area());
    const std::function<void()> ways[] = {[&] { click(*form.portlist, 2); },
                                          [&] { click(*form.portlist, 1); },
                                          [&] { QTest::keyClick(form.portlist, Qt::Key_Down); },
                                          [&] { click(*form.fileList, 0); },
                                          [&] { form.Command2->click(); },
                                          [&] { QTest::keyClick(&form, Qt::Key_Escape); }};
    for (const auto& leave : ways) {
        scripted.messages.expectaskorcancel(question, Answer::cancel, "Tarvane");
        leave();
        QApplication::processEvents();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.portlist->selectedItems().value(0), form.portlist->item(1));
        EXPECT_EQ(text("txtportname") + infocus(form), "Beech Soundtxtportname");
    }
    EXPECT_EQ(readwhole(area()), before);
    scripted.messages.expectaskorcancel(question, Answer::yes);
    click(*form.portlist, 2);
    EXPECT_EQ(trimmedname(readport(area(), 2)) + text("txtportname"), "Beech SoundCedar Head");
    type("txtportname", "Ash Head");
    scripted.messages.expectaskorcancel("The constants of Cedar Head were changed. Accept the changes?", Answer::no);
    click(*form.fileList, 0);
    EXPECT_EQ(text("txtportname"), "Ash Head") << "the boxes stay, for Add Port";
    form.cmdAdd->click();
    EXPECT_EQ(trimmedname(readport(area(), 3)) + trimmedname(readport(area(), 5)), "Cedar HeadAsh Head");
    form.cmdClear->click();
    type("txtportname", "Fir Point");
    scripted.messages.expectaskorcancel("What was typed stands in no area file. Add it as a new port?", Answer::yes);
    scripted.messages.expectshow("Error - Latitude entry", "Tarvane", MessageIcon::exclamation);
    form.Command2->click();
    EXPECT_TRUE(form.isVisible());
    form.cmdClear->click();
    form.Command2->click();
    EXPECT_FALSE(form.isVisible()) << "empty boxes are nothing";
}

}  // namespace
}  // namespace tarvane::tests
