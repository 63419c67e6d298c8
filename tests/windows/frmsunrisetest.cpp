#include "almanac/frmsunrise.h"

#include <QApplication>
#include <QClipboard>

#include "almanac/frmriseresults.h"
#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmsunriseTest : public testing::Test, protected MainFixture {
  protected:
    FrmsunriseTest() { load(); }
};

TEST_F(FrmsunriseTest, APositionIsTypedCalculatedAndShown) {
    Frmsunrise form(context);
    present(form);
    EXPECT_EQ(form.latitude->text() + form.longitude->text(), " 50.30N 1.15W");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"latitude", "longitude", "ok", "cancel"}));
    expectroomfortexts(form);
    EXPECT_EQ(shown(*form.port), "Alder Quay") << "moving about is no entry";
    QTest::keyClick(form.latitude, 'x');
    EXPECT_EQ(form.latitude->text(), " 50.30N") << "a dropped key leaves what is selected";
    EXPECT_EQ(shown(*form.port), "User entry");
    form.latitude->selectAll();
    QTest::keyClicks(form.latitude, "4a9.e3-0n");
    EXPECT_EQ(form.latitude->text(), "49.30N");
    QTest::keyClick(form.latitude, Qt::Key_Backspace);
    QTest::keyClicks(form.latitude, "S");
    EXPECT_EQ(form.latitude->text(), "49.30S");
    form.longitude->selectAll();
    QTest::keyClicks(form.longitude, "n10s.w");
    QApplication::clipboard()->setText("48.20n x");
    form.latitude->selectAll();
    QTest::keyClick(form.latitude, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.latitude->text(), "48.20N ") << "a paste passes the same filter";
    scripted.windows.expect<Frmriseresults>("Frmriseresults", [&](Frmriseresults& results) {
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
