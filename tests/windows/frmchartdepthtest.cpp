#include "portdata/frmchartdepth.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <filesystem>

#include "mainview/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmChartdepth : public testing::Test, protected MainFixture {
  protected:
    FrmChartdepth() { load(); }

    static void click(const frmChartdepth& form, int row) {
        QTest::mouseClick(form.List1->viewport(), Qt::LeftButton, {},
                          form.List1->visualItemRect(form.List1->item(row)).center());
    }
    static void settext(QPlainTextEdit* edit, const QString& text) {
        edit->selectAll();
        edit->insertPlainText(text);
    }
    static void paste(QWidget* into, const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(into, Qt::Key_V, Qt::ControlModifier);
    }
    std::vector<std::byte> depths() const { return readwhole(session.settings.depfile); }
    UserDepthRecord record(std::int16_t number) const { return readdepth(session.settings.depfile, number); }
};

TEST_F(FrmChartdepth, ADepthAndANoteAreEnteredAndShownAgain) {
    frmChartdepth form(context);
    present(form);
    EXPECT_EQ(form.windowname(), "frmChartdepth");
    EXPECT_EQ(form.windowTitle(), "User Depth and Notes");
    expectroomfortexts(form);
    EXPECT_EQ(defaultbutton(form), "cdok");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"depth", "usernotes", "cdok", "cdclose", "List1"}));
    EXPECT_TRUE(form.List1->item(2)->text().startsWith("3  Cedar Head"));

    click(form, 2);
    EXPECT_EQ(form.portlabel->text(), "Cedar Head");
    form.depth->selectAll();
    QTest::keyClicks(form.depth, "2.5");
    settext(form.usernotes, "Bar dries\nat springs");
    EXPECT_EQ(form.noteslimit->text(), "21 of 256 characters, not entered yet");
    QTest::keyClick(form.depth, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.noteslimit->text(), "21 of 256 characters");
    EXPECT_EQ(record(3).UserDepth, 2.5F);
    EXPECT_EQ(record(3).Notes.substr(0, 22), "Bar dries\r\nat springs ");

    click(form, 3);
    EXPECT_EQ(form.depth->text(), "0");
    click(form, 2);
    EXPECT_EQ(form.depth->text(), "2.5");
    EXPECT_EQ(form.usernotes->toPlainText(), "Bar dries\nat springs");
    QTest::keyClick(form.usernotes, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.view.portbox, "Port    : Alder Quay");
}

TEST_F(FrmChartdepth, OtherKeysThanThoseOfADepthAreDroppedWithABeep) {
    frmChartdepth form(context);
    present(form);
    form.depth->clear();
    QTest::keyClicks(form.depth, "-1a2,.+5");
    EXPECT_EQ(form.depth->text(), "-12.5");
    EXPECT_EQ(scripted.messages.beeps, 3);
    form.depth->setCursorPosition(1);
    QTest::keyClicks(form.depth, "x7");
    EXPECT_EQ(form.depth->text(), "-712.5");
    EXPECT_EQ(scripted.messages.beeps, 4);
    form.depth->selectAll();
    paste(form.depth, " 3.4 m\n");
    EXPECT_EQ(form.depth->text(), "3.4");
    QTest::mouseClick(form.cdok, Qt::LeftButton);
    EXPECT_EQ(record(1).UserDepth, 3.4F);
}

TEST_F(FrmChartdepth, ANoteTakesNoMoreThanItsRecordHolds) {
    frmChartdepth form(context);
    present(form);
    settext(form.usernotes, QString(250, 'a') + "end");
    EXPECT_EQ(scripted.messages.beeps, 0);
    QTextCursor start = form.usernotes->textCursor();
    start.movePosition(QTextCursor::Start);
    form.usernotes->setTextCursor(start);
    QTest::keyClicks(form.usernotes, "1234");
    EXPECT_EQ(form.usernotes->toPlainText(), "123" + QString(250, 'a') + "end") << "the end isn't pushed out";
    EXPECT_EQ(form.noteslimit->text(), "256 of 256 characters, not entered yet");
    EXPECT_EQ(scripted.messages.beeps, 1);
    QTest::keyClick(form.usernotes, Qt::Key_Return);
    EXPECT_EQ(form.usernotes->toPlainText().size(), 256);

    form.usernotes->selectAll();
    paste(form.usernotes, QString::fromUtf8("caf\u00E9 \u2192 \u20AC5\n") + QString(100000, 'z'));
    EXPECT_EQ(form.usernotes->toPlainText(), QString::fromUtf8("caf\u00E9  \u20AC5\n") + QString(246, 'z'));
    QTest::mouseClick(form.cdok, Qt::LeftButton);
    EXPECT_EQ(record(1).Notes, "caf\u00E9  \u20AC5\r\n" + std::string(246, 'z'));
}

TEST_F(FrmChartdepth, WhatWasTypedIsNotLostUnasked) {
    const std::string question = "The depth or the note of Alder Quay was changed. Enter it?";
    frmChartdepth form(context);
    present(form);
    settext(form.usernotes, "Mine");
    scripted.messages.expectask(question, true, "Tarvane");
    click(form, 1);
    EXPECT_EQ(record(1).Notes.substr(0, 5), "Mine ");
    EXPECT_EQ(form.portlabel->text(), "Birch Sound");
    click(form, 0);
    EXPECT_EQ(form.usernotes->toPlainText(), "Mine");

    const auto before = depths();
    form.depth->selectAll();
    QTest::keyClicks(form.depth, "9");
    scripted.messages.expectask(question, false, "Tarvane");
    QTest::mouseClick(form.cdclose, Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(depths(), before) << "Exit doesn't write";
    EXPECT_EQ(session.settings.userdepth, 0);
}

TEST_F(FrmChartdepth, AWriteThatFailsKeepsTheFormAndWhatWasTyped) {
    frmChartdepth form(context);
    present(form);
    std::filesystem::remove_all(session.folders.depthsfolder());
    settext(form.usernotes, "Mine");
    const std::string question = "The depth or the note of Alder Quay was changed. Enter it?";
    for (const bool leaving : {false, true}) {
        scripted.messages.expectask(question, true);
        scripted.messages.expectshow("The depth and the note can't be written: " + session.settings.depfile, "Tarvane");
        leaving ? static_cast<void>(form.close()) : click(form, 2);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.List1->currentRow(), 0);
        EXPECT_EQ(form.portlabel->text(), "Alder Quay");
        EXPECT_EQ(form.usernotes->toPlainText(), "Mine");
    }
    scripted.messages.expectask(question, false);
    form.close();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmChartdepth, ADoubleClickGoesToTheDepthAndNamesThePort) {
    frmChartdepth form(context);
    present(form);
    click(form, 2);
    QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {},
                       form.List1->visualItemRect(form.List1->item(2)).center());
    EXPECT_EQ(QApplication::focusWidget(), form.depth);
    QTest::keyClick(form.depth, Qt::Key_Escape);
    EXPECT_EQ(session.view.portbox, "Port    : Cedar Head");
}

TEST_F(FrmChartdepth, APortPastTheAreaHighlightsNone) {
    std::filesystem::remove(session.folders.cfgpath());
    frmChartdepth form(context);
    present(form);
    form.List1->setFocus();
    EXPECT_TRUE(form.List1->selectedItems().isEmpty());
    EXPECT_EQ(form.portnolabel->text(), "73") << "focus alone picks nothing";
}

}  // namespace
}  // namespace tarvane::tests
