#include "almanac/frmriseresults.h"

#include <QWheelEvent>

#include "almanac/frmsunrise.h"
#include "almanac/sunview.h"
#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

using FrmsunriseTest = LoadedMain;

struct FrmriseresultsTest : LoadedMain {
    FrmriseresultsTest() {
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
    const char* names[] = {"nautdawn", "civildawn", "risetime", "settime", "civildusk", "nautdusk"};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(shown(control<QLabel>(form, names[i])), row[i + 2]) << names[i];
    EXPECT_TRUE(form.Label2->text().contains("\n   08 Apr 2024       NEW MOON     \n"));
    EXPECT_EQ(shown(*form.lblphasenotes), "Last quarter falls on 1 May 2024\nNot listed: last quarter on 2 April 2024");
    EXPECT_TRUE(session.view.stepbuttonsvisible);
    EXPECT_EQ(infocus(form), "VScroll1");
    EXPECT_EQ(defaultbutton(form), "cancel");
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
    EXPECT_NE(filetext(folder / "sun.csv"), "");
    session.view.stepbuttonsvisible = false;
    QTest::keyClick(form.VScroll1, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(session.view.stepbuttonsvisible);
}

TEST_F(FrmsunriseTest, APositionIsTypedCalculatedAndShown) {
    Frmsunrise form(context);
    present(form);
    EXPECT_EQ(form.latitude->text() + form.longitude->text(), " 50.30N 1.15W");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"latitude", "longitude", "ok", "cancel"}));
    EXPECT_EQ(shown(*form.port), "Alder Quay") << "moving about is no entry";
    QTest::keyClicks(form.latitude, "x");
    EXPECT_EQ(form.latitude->text(), " 50.30N");
    EXPECT_EQ(shown(*form.port), "User entry");
    form.latitude->selectAll();
    QTest::keyClicks(form.latitude, "4a8.e2-0n");
    form.longitude->selectAll();
    QTest::keyClicks(form.longitude, "n10s.w");
    scripted.windows.expect("Frmriseresults", [&](ModalWindow& modal) {
        auto& results = dynamic_cast<Frmriseresults&>(modal);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(shown(*results.port), "User entry");
        EXPECT_EQ(shown(*results.latitude), "48.20N");
        EXPECT_EQ(shown(*results.longitude), "10.W");
    });
    QTest::keyClick(form.latitude, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmsunriseTest, ARefusedBoxIsShownForMending) {
    for (const bool badlatitude : {true, false}) {
        Frmsunrise form(context);
        present(form);
        QLineEdit* box = badlatitude ? form.latitude : form.longitude;
        box->setText("360.00");
        form.ok->setFocus();
        QTest::mouseClick(form.ok, Qt::LeftButton);
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(box->hasFocus());
        EXPECT_EQ(box->selectedText(), "360.00");
    }
    EXPECT_EQ(scripted.messages.beeps, 2);
}

}  // namespace
}  // namespace tarvane::tests
