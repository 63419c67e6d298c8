#include "almanac/frmriseresults.h"

#include <QWheelEvent>

#include "almanac/sunview.h"
#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmriseresultsTest : public testing::Test, protected MainFixture {
  protected:
    FrmriseresultsTest() {
        load();
        preparesunview(session);
        calculatesun(context, portsuninput(session));
    }

    static void wheel(QWidget& over, int delta) {
        QWheelEvent event(QPointF(2, 2), QPointF(2, 2), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&over, &event);
    }
};

TEST_F(FrmriseresultsTest, ComesUpOnTheDayOnShow) {
    session.view.stepbuttonsvisible = false;
    Frmriseresults form(context);
    present(form);
    EXPECT_EQ(shown(*form.risedate), " 9Apr  2024");
    const auto& row = session.suntable.suntext[9];
    const QLabel* labels[] = {form.nautdawn, form.civildawn, form.risetime,
                              form.settime,  form.civildusk, form.nautdusk};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(shown(*labels[i]), row[i + 2]);
    EXPECT_TRUE(form.Label2->text().contains("\n   08 Apr 2024       NEW MOON     \n"));
    EXPECT_TRUE(session.view.stepbuttonsvisible);
    EXPECT_EQ(infocus(form), "VScroll1");
    EXPECT_EQ(defaultbutton(form), "cancel");
    expectroomfortexts(form);
}

TEST_F(FrmriseresultsTest, ArrowsAndNotchesOfTheWheelStepADay) {
    Frmriseresults form(context);
    present(form);
    for (QWidget* over : {static_cast<QWidget*>(form.VScroll1), static_cast<QWidget*>(&form)}) {
        wheel(*over, -120);
        EXPECT_EQ(shown(*form.risedate), " 10Apr  2024");
        wheel(*over, 60);
        EXPECT_EQ(shown(*form.risedate), " 10Apr  2024");
        wheel(*over, 60);
        EXPECT_EQ(shown(*form.risedate), " 9Apr  2024");
    }
    form.Command1->setFocus();
    QTest::keyClick(form.Command1, Qt::Key_Down);
    EXPECT_EQ(shown(*form.risedate), " 10Apr  2024");
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(form.VScroll1, Qt::Key_Down);
    EXPECT_EQ(shown(*form.risedate), " 30Apr  2024");
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(form.cancel, Qt::Key_Up);
    EXPECT_EQ(shown(*form.risedate), " 1Apr  2024");
}

TEST_F(FrmriseresultsTest, SavesPrintsAndLeaves) {
    Frmriseresults form(context);
    present(form);
    scripted.messages.expectask("Print Sun and Lunar times?", true);
    QTest::keyClick(&form, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return scripted.printer.documents == 1; }));
    scripted.filedialogs.expectsave(folder / "sun");
    QTest::mouseClick(form.Command1, Qt::LeftButton);
    EXPECT_EQ(shown(*form.risedate), "9/4/2024") << "the file's form of the date stays on show";
    EXPECT_TRUE(canopen(folder / "sun.csv"));
    session.view.stepbuttonsvisible = false;
    QTest::keyClick(form.VScroll1, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(session.view.stepbuttonsvisible);
}

}  // namespace
}  // namespace tarvane::tests
