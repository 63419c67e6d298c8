#include "portdata/frmoutoptions.h"

#include "mainview/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmoutoptionsTest : public testing::Test, protected MainFixture {
  protected:
    FrmoutoptionsTest() { load(); }
    std::vector<std::byte> filebytes() const { return readwhole(session.folders.cfgpath()); }
};

TEST_F(FrmoutoptionsTest, SettingsAreChosenAndStored) {
    const auto before = filebytes();
    frmoutoptions form(context);
    present(form);
    EXPECT_EQ(form.windowTitle(), "Program Settings");
    EXPECT_TRUE(control<QRadioButton>(form, "Option3").isChecked());
    EXPECT_TRUE(control<QRadioButton>(form, "optNonDaylightsavings").isChecked());
    auto& draught = control<QLineEdit>(form, "draughttext");
    EXPECT_EQ(draught.text(), "0.5");
    QTest::mouseClick(&control<QRadioButton>(form, "Option2"), Qt::LeftButton, {}, {10, 10});
    QTest::mouseClick(&control<QRadioButton>(form, "optDaylightSavings"), Qt::LeftButton, {}, {10, 10});
    QTest::mouseDClick(&draught, Qt::LeftButton, {}, {4, draught.height() / 2});
    QTest::keyClicks(&draught, "1.9");
    QTest::keyClick(&form, Qt::Key_U, Qt::AltModifier);
    EXPECT_EQ(infocus(form), "ukctext");
    QTest::keyClicks(form.focusWidget(), "none");
    EXPECT_EQ(filebytes(), before);
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());

    const ConfigRecord record = stored();
    EXPECT_EQ(record.outputoption, 2);
    EXPECT_EQ(record.draught, 1.9F) << "a double click took the whole number";
    EXPECT_EQ(record.ukc, 0);
    EXPECT_EQ(record.summertimeflag, -1);
    EXPECT_TRUE(session.view.disclaimer.ends_with("ADJUSTED FOR SUMMER TIME"));
}

TEST_F(FrmoutoptionsTest, CancelStoresNothingButTheOptionPickedHolds) {
    const auto before = filebytes();
    for (const bool escape : {true, false}) {
        frmoutoptions form(context);
        present(form);
        EXPECT_EQ(infocus(form), "Option3");
        QTest::keyClick(form.focusWidget(), Qt::Key_Up);
        EXPECT_EQ(session.settings.currentoutput, 2);
        form.draughttext->setText("9");
        form.optDaylightSavings->click();
        if (escape)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            QTest::mouseClick(form.Command1, Qt::LeftButton);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(session.settings.currentoutput, 2);
        EXPECT_EQ(session.settings.currentdraught, 0.5F);
        EXPECT_EQ(session.settings.currentsummer, 0);
        EXPECT_EQ(filebytes(), before);
    }
}

TEST_F(FrmoutoptionsTest, AnOptionThatStandsCanBeClicked) {
    ConfigRecord record = stored();
    record.outputoption = 0;
    record.summertimeflag = 2;
    SaveConfig(session.folders, record);
    frmoutoptions form(context);
    EXPECT_TRUE(form.Option1->isChecked());
    EXPECT_FALSE(form.optDaylightSavings->isChecked() || form.optNonDaylightsavings->isChecked());
    EXPECT_EQ(session.settings.currentoutput, 0);
    form.Option1->click();
    EXPECT_EQ(session.settings.currentoutput, 1);
}

TEST_F(FrmoutoptionsTest, TheTickOffersMaintenanceEitherWay) {
    frmoutoptions form(context);
    for (const bool ticked : {true, false}) {
        session.view.maintenancevisible = false;
        form.Check1->click();
        EXPECT_EQ(form.Check1->isChecked(), ticked);
        EXPECT_TRUE(session.view.maintenancevisible);
    }
}

TEST_F(FrmoutoptionsTest, TextsAndTheWayOfTab) {
    QWidget mainwindow;
    mainwindow.setGeometry(100, 50, 600, 500);
    mainwindow.show();
    frmoutoptions form(context, &mainwindow);
    present(form);
    EXPECT_LE((form.frameGeometry().center() - mainwindow.frameGeometry().center()).manhattanLength(), 4);
    expectroomfortexts(form);
    EXPECT_EQ(defaultbutton(form), "optionsok");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"Option3", "optNonDaylightsavings", "draughttext", "ukctext",
                                                        "Check1", "optionsok", "Command1"}));
    EXPECT_EQ(control<QGroupBox>(form, "Frame3").title(), "Draft && Underkeel Clearance");
}

}  // namespace
}  // namespace tarvane::tests
