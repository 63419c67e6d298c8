#include "sunmoon/frmsunrise.h"

#include <QApplication>
#include <QClipboard>

#include "mainview/mainfixture.h"
#include "sunmoon/frmriseresults.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmsunriseTest : public testing::Test, protected MainFixture {
  protected:
    FrmsunriseTest() { load(); }
};

TEST_F(FrmsunriseTest, ComesUpWithThePort) {
    Frmsunrise form(context);
    present(form);
    EXPECT_EQ(form.windowTitle(), "Sunrise and Sunset");
    EXPECT_EQ(shown(*form.port), "Alder Quay");
    EXPECT_EQ(form.latitude->text(), " 50.30N");
    EXPECT_EQ(form.longitude->text(), " 1.15W");
    EXPECT_EQ(defaultbutton(form), "ok");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"latitude", "longitude", "ok", "cancel"}));
    EXPECT_EQ(shown(*form.port), "Alder Quay") << "moving about is no entry";
    expectroomfortexts(form);
}

TEST_F(FrmsunriseTest, KeysAreFilteredAndNameTheEntry) {
    Frmsunrise form(context);
    present(form);
    QTest::keyClick(form.latitude, 'x');
    EXPECT_EQ(form.latitude->text(), " 50.30N") << "a dropped key leaves what is selected";
    EXPECT_EQ(shown(*form.port), "User entry");
    EXPECT_EQ(scripted.messages.beeps, 0);
    form.latitude->selectAll();
    QTest::keyClicks(form.latitude, "4a9.e3-0n");
    EXPECT_EQ(form.latitude->text(), "49.30N");
    QTest::keyClick(form.latitude, Qt::Key_Backspace);
    QTest::keyClicks(form.latitude, "S");
    EXPECT_EQ(form.latitude->text(), "49.30S");
    form.longitude->selectAll();
    QTest::keyClicks(form.longitude, "n1s0.w15e");
    EXPECT_EQ(form.longitude->text(), "10.W15E");
}

TEST_F(FrmsunriseTest, APastePassesTheSameFilter) {
    Frmsunrise form(context);
    present(form);
    QApplication::clipboard()->setText("48.20n x");
    form.latitude->selectAll();
    QTest::keyClick(form.latitude, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.latitude->text(), "48.20N ");
    EXPECT_EQ(shown(*form.port), "User entry");
}

TEST_F(FrmsunriseTest, EnterCalculatesShowsTheResultsAndCloses) {
    Frmsunrise form(context);
    present(form);
    form.latitude->selectAll();
    QTest::keyClicks(form.latitude, "60.00n");
    scripted.windows.expect<Frmriseresults>("Frmriseresults", [&](Frmriseresults& results) {
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(shown(*results.port), "User entry");
        EXPECT_EQ(shown(*results.latitude), "60.00N");
        EXPECT_EQ(shown(*results.longitude), " 1.15W");
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

TEST_F(FrmsunriseTest, EscapeLeavesTheTableAsItIs) {
    session.suntable.suntext[1][1] = "kept";
    Frmsunrise form(context);
    present(form);
    QTest::keyClick(form.longitude, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.suntable.suntext[1][1], "kept");
}

}  // namespace
}  // namespace tarvane::tests
