#include "portdata/frmshowconf.h"

#include "mainview/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmshowconfTest : public testing::Test, protected MainFixture {
  protected:
    FrmshowconfTest() {
        HarmonicRecord longest = fixtureport("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", 7);
        for (std::int16_t number = 5; number <= 60; ++number)
            writeport(area(), number, longest);
        load();
        UserDepthRecord record = readdepth(session.settings.depfile, 2);
        record.UserDepth = 2.5F;
        record.Notes = "  <b>Bar</b> & shoal\r\nVHF 80 ";
        writedepth(session.settings.depfile, 2, record);
    }
};

TEST_F(FrmshowconfTest, ThePortsAreLookedThroughAndNothingChanges) {
    const auto before = readwhole(session.folders.cfgpath());
    frmshowconf form(context);
    present(form);
    const auto value = [&](const char* name) { return shown(control<QLabel>(form, name)); };
    EXPECT_EQ(form.windowTitle(), "Current Configuration and User Notes");
    EXPECT_EQ(value("confoutputoption"), " Charted depth, draught and prog.ukc");
    EXPECT_EQ(value("depth"), "0");
    auto& list = control<QListWidget>(form, "confportlist");
    EXPECT_EQ(list.count(), 60);
    ASSERT_EQ(list.selectedItems().size(), 1);
    EXPECT_TRUE(list.selectedItems()[0]->text().startsWith("1  Alder Quay "));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(value("portnolabel"), "2");
    EXPECT_EQ(value("confportnamebox"), "Birch Sound");
    EXPECT_EQ(value("depth"), "2.5");
    auto& notes = control<QPlainTextEdit>(form, "notes");
    EXPECT_EQ(notes.toPlainText(), "<b>Bar</b> & shoal\nVHF 80");
    QTest::keyClicks(&notes, "more");
    EXPECT_EQ(notes.toPlainText(), "<b>Bar</b> & shoal\nVHF 80");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(value("confportnamebox"), "Cedar Head");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.settings.currentport, 1);
    EXPECT_EQ(readwhole(session.folders.cfgpath()), before);
}

TEST_F(FrmshowconfTest, ExitAndEscapeCloseAndTextsHaveRoom) {
    ConfigRecord record = stored();
    record.portnumber = 30;
    SaveConfig(session.folders, record);
    for (const bool escape : {true, false}) {
        frmshowconf form(context);
        present(form);
        expectroomfortexts(form);
        const auto& list = control<QListWidget>(form, "confportlist");
        EXPECT_NEAR(list.visualItemRect(list.currentItem()).center().y(), list.viewport()->height() / 2, 20);
        EXPECT_EQ(defaultbutton(form), "Confexit");
        EXPECT_EQ(taborder(form), (std::vector<std::string>{"confportlist", "notes", "Confexit"}));
        if (escape)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            QTest::mouseClick(&control<QPushButton>(form, "Confexit"), Qt::LeftButton);
        EXPECT_FALSE(form.isVisible());
    }
}

TEST_F(FrmshowconfTest, APortPastTheEndLeavesTheListWithoutOne) {
    ConfigRecord record = stored();
    record.portnumber = 99;
    SaveConfig(session.folders, record);
    frmshowconf form(context);
    present(form);
    EXPECT_TRUE(control<QListWidget>(form, "confportlist").selectedItems().isEmpty());
    EXPECT_EQ(shown(control<QLabel>(form, "portnolabel")), "99");
    EXPECT_EQ(shown(control<QLabel>(form, "confportnamebox")), "");
}

}  // namespace
}  // namespace tarvane::tests
