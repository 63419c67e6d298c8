#include "ports/frmchartdepth.h"

#include <QApplication>
#include <filesystem>

#include "fakes/mainfixture.h"
#include "portdata/areaedits.h"
#include "text/singlebyte.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmChartdepth : LoadedMain {
    static void click(const frmChartdepth& form, int row) {
        QTest::mouseClick(form.List1->viewport(), Qt::LeftButton, {},
                          form.List1->visualItemRect(form.List1->item(row)).center());
    }
    static void settext(QPlainTextEdit* edit, const QString& text) {
        edit->selectAll();
        edit->insertPlainText(text);
    }
    const std::string question = "The depth or the note of Alder Quay was changed. Enter it?";
    UserDepthRecord record(std::int16_t number) const { return readdepth(session.settings.depfile, number); }
};

TEST_F(FrmChartdepth, ADepthAndANoteAreEnteredAndShownAgain) {
    frmChartdepth form(context);
    present(form);
    EXPECT_EQ(defaultbutton(form), "cdok");
    click(form, 2);
    EXPECT_EQ(form.portnolabel->text() + form.portlabel->text(), "3Cedar Head");
    form.depth->selectAll();
    QTest::keyClicks(form.depth, "2.5");
    settext(form.usernotes, "Bar dries\nat springs");
    QTest::keyClick(form.depth, Qt::Key_Return);
    EXPECT_EQ(record(3).UserDepth, 2.5F);
    EXPECT_EQ(record(3).Notes.substr(0, 22), "Bar dries\r\nat springs ");

    click(form, 3);
    click(form, 2);
    EXPECT_EQ(form.depth->text(), "2.5");
    EXPECT_EQ(form.usernotes->toPlainText(), "Bar dries\nat springs");
    QTest::keyClick(form.usernotes, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());

    // A double click renames the port on show, whose tides stay.
    frmChartdepth again(context);
    present(again);
    const double level = session.prediction.z0level;
    click(again, 2);
    QTest::mouseDClick(again.List1->viewport(), Qt::LeftButton, {},
                       again.List1->visualItemRect(again.List1->item(2)).center());
    EXPECT_EQ(QApplication::focusWidget(), again.depth);
    QTest::keyClick(again.depth, Qt::Key_Escape);
    EXPECT_EQ(session.view.portbox, "Port    : Cedar Head");
    EXPECT_EQ(session.prediction.z0level, level);
}

TEST_F(FrmChartdepth, TheDepthOpensSelectedAndADroppedKeyLeavesItSo) {
    storedepth(1, 3.5F, "Dries\u00A04 m");
    frmChartdepth form(context);
    present(form);
    EXPECT_EQ(form.List1->currentRow(), 0);
    EXPECT_EQ(form.noteslimit->text(), "9 of 256 characters");
    QTest::keyClicks(form.depth, "x");
    EXPECT_EQ(form.depth->selectedText(), "3.5");
    EXPECT_EQ(scripted.messages.beeps, 1);
    QTest::keyClicks(form.depth, "5,5");
    QTest::keyClick(form.depth, Qt::Key_Return);
    EXPECT_EQ(record(1).UserDepth, 5.5F);
}

TEST_F(FrmChartdepth, ANoteTakesNoMoreThanItsRecordHolds) {
    frmChartdepth form(context);
    present(form);
    settext(form.usernotes, QString(250, 'a') + "end");
    form.usernotes->moveCursor(QTextCursor::Start);
    QTest::keyClicks(form.usernotes, "1234");
    EXPECT_EQ(form.usernotes->toPlainText(), "123" + QString(250, 'a') + "end") << "the end isn't pushed out";
    EXPECT_EQ(scripted.messages.beeps, 1);

    settext(form.usernotes, QString(100000, 'z'));
    form.cdok->click();
    EXPECT_EQ(record(1).Notes, std::string(256, 'z'));
}

TEST_F(FrmChartdepth, WhatWasTypedIsNotLostUnaskedNorWhenTheWriteFails) {
    frmChartdepth form(context);
    present(form);
    settext(form.usernotes, "Mine");
    scripted.messages.expectaskorcancel(question, Answer::yes, "Tarvane");
    click(form, 1);
    click(form, 0);
    EXPECT_EQ(form.usernotes->toPlainText(), "Mine");

    form.depth->selectAll();
    QTest::keyClicks(form.depth, "9");
    const auto before = filetext(session.settings.depfile);
    std::filesystem::rename(session.folders.depthsfolder(), folder / "away");
    for (const Answer answer : {Answer::yes, Answer::cancel})
        for (const bool leaving : {false, true}) {
            scripted.messages.expectaskorcancel(question, answer);
            if (answer == Answer::yes)
                scripted.messages.expectshow("The depth and the note can't be written: " + session.settings.depfile,
                                             "Tarvane");
            leaving ? static_cast<void>(form.close()) : click(form, 2);
            EXPECT_TRUE(form.isVisible());
            EXPECT_EQ(form.List1->currentRow(), 0);
            EXPECT_EQ(form.depth->text() + infocus(form).c_str(), "9depth");
            EXPECT_EQ(form.noteslimit->text(), "4 of 256 characters, not entered yet");
        }
    std::filesystem::rename(folder / "away", session.folders.depthsfolder());
    scripted.messages.expectaskorcancel(question, Answer::no, "Tarvane");
    QTest::mouseClick(form.cdclose, Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(filetext(session.settings.depfile), before) << "Exit doesn't write";
}

TEST_F(FrmChartdepth, MatchByNameAsksFirstAndShowsWhatIsThere) {
    UserDepthRecord cedar = record(3), birch = record(2);
    cedar.UserDepth = birch.UserDepth = -2;
    birch.Notes = "Bar";
    writedepth(session.settings.depfile, 2, birch);
    writedepth(session.settings.depfile, 3, cedar);
    EXPECT_FALSE(frmChartdepth(context).matchnames->isEnabled());
    AreaBackups backups;
    deleteport(backups, area(), folder / "scratch.hc", 2);
    const auto before = filetext(session.settings.depfile);
    frmChartdepth form(context);
    present(form);
    expectroomfortexts(form);
    EXPECT_EQ(form.matchline->text(),
              "3 of 4 depths and notes were made for another port than the one now at their number.");
    const std::string asked =
        "Match the 4 depths and notes of this area by name?\n\nTo the port of their name: 1\n"
        "Staying where they are: 1\nDropped, with no port of their name any more: 2\n\n"
        "Lost would be what you entered for\nBirch Sound: -2 m and a note\n\n"
        "The file as it is now is kept as UK.DEP.bak.";
    click(form, 1);
    EXPECT_EQ(form.usernotes->toPlainText(), "Bar");
    scripted.messages.expectask(asked, false, "Tarvane");
    QTest::mouseClick(form.matchnames, Qt::LeftButton);
    EXPECT_EQ(filetext(session.settings.depfile), before);
    scripted.messages.expectask(asked, true);
    QTest::mouseClick(form.matchnames, Qt::LeftButton);
    EXPECT_EQ(filetext(session.settings.depfile + ".bak"), before);
    EXPECT_EQ(form.depth->text() + "|" + form.usernotes->toPlainText().left(8), "-2|Position");
    EXPECT_EQ(trim(record(2).DepthPortName), "Cedar Head");
    EXPECT_FALSE(form.matchnames->isEnabled());
    EXPECT_TRUE(form.matchline->isHidden());
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
