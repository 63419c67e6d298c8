#include "ports/frmshowconf.h"

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmshowconfTest : LoadedMain {
    FrmshowconfTest() {
        for (std::int16_t number = 5; number <= 60; ++number)
            writeport(area(), number, fixtureport(std::string(35, 'W'), 7));
        store([](ConfigRecord& record) {
            record.draught = 1.25F;
            record.ukc = 0.75F;
        });
        load();
        storedepth(2, 2.5F, "  <b>Bar</b> & shoal\r\nVHF 80 ");
    }
};

TEST_F(FrmshowconfTest, ThePortsAreLookedThroughAndNothingChanges) {
    const auto before = filetext(session.folders.cfgpath());
    frmshowconf form(context);
    present(form);
    const auto value = [&](const char* name) { return shown(control<QLabel>(form, name)); };
    expectroomfortexts(form);
    EXPECT_EQ(value("sealabel") + value("confoutputoption"), "UK Charted depth, draught and prog.ukc");
    EXPECT_EQ(value("confdraughtbox") + " " + value("confukcbox"), "1.25 0.75");
    auto& list = control<QListWidget>(form, "confportlist");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(value("depth"), "2.5");
    auto& notes = control<QPlainTextEdit>(form, "notes");
    QTest::keyClicks(&notes, "more");
    EXPECT_EQ(notes.toPlainText(), "<b>Bar</b> & shoal\nVHF 80");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(value("confportnamebox"), "Cedar Head");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(filetext(session.folders.cfgpath()), before);
}

TEST_F(FrmshowconfTest, OpensOnTheCurrentPortInViewOrOnNoneAndEscapeCloses) {
    for (const float number : {30.0F, 99.0F}) {
        store([&](ConfigRecord& record) { record.portnumber = number; });
        frmshowconf form(context);
        present(form);
        const auto& list = control<QListWidget>(form, "confportlist");
        EXPECT_EQ(list.selectedItems().size(), number == 30 ? 1 : 0);
        if (number == 30) {
            EXPECT_NEAR(list.visualItemRect(list.currentItem()).center().y(), list.viewport()->height() / 2, 20);
        }
        EXPECT_EQ(shown(control<QLabel>(form, "portnolabel")), number == 30 ? "30" : "99");
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    }
}

}  // namespace
}  // namespace tarvane::tests
