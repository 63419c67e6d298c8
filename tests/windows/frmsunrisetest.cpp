#include "almanac/frmsunrise.h"

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
    QTest::keyClicks(form.latitude, "x");
    EXPECT_EQ(form.latitude->text(), " 50.30N");
    EXPECT_EQ(shown(*form.port), "User entry");
    form.latitude->selectAll();
    QTest::keyClicks(form.latitude, "4a8.e2-0n");
    form.longitude->selectAll();
    QTest::keyClicks(form.longitude, "n10s.w");
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

}  // namespace
}  // namespace tarvane::tests
