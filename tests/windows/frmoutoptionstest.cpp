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
        QTest::keyClick(form.focusWidget(), Qt::Key_Up);
        control<QLineEdit>(form, "draughttext").setText("9");
        control<QRadioButton>(form, "optDaylightSavings").click();
        if (escape)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            QTest::mouseClick(&control<QPushButton>(form, "Command1"), Qt::LeftButton);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(session.settings.currentoutput, 1);
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
    auto& option = control<QRadioButton>(form, "Option1");
    EXPECT_TRUE(option.isChecked());
    EXPECT_FALSE(control<QRadioButton>(form, "optDaylightSavings").isChecked());
    EXPECT_FALSE(control<QRadioButton>(form, "optNonDaylightsavings").isChecked());
    EXPECT_EQ(session.settings.currentoutput, 0);
    option.click();
    EXPECT_EQ(session.settings.currentoutput, 1);
}

TEST_F(FrmoutoptionsTest, TheTickOffersMaintenanceEitherWay) {
    for (int i = 0; i < 2; ++i) {
        session.view.maintenancevisible = false;
        frmoutoptions form(context);
        auto& tick = control<QCheckBox>(form, "Check1");
        EXPECT_FALSE(tick.isChecked());
        if (i == 1) {
            tick.setChecked(true);
            EXPECT_FALSE(session.view.maintenancevisible);
        }
        tick.click();
        EXPECT_EQ(tick.isChecked(), i == 0);
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
    const struct {
        const char *name, *caption;
    } rows[] = {{"Option1", "Heights to chart datum only"},
                {"Option2", "Heights to include users charted depth"},
                {"Option3", "As above with allowance for Draught and Under Keel clearance  "},
                {"optNonDaylightsavings", "Results Displayed for Standard Time"},
                {"optDaylightSavings", "Results Adjusted for Summer Time "},
                {"Check1", "Enable Harmonic Correction Menu"},
                {"optionsok", "O.K."},
                {"Command1", "Cancel"}};
    for (const auto& row : rows)
        EXPECT_EQ(control<QAbstractButton>(form, row.name).text().remove('&'), row.caption);
    EXPECT_EQ(control<QGroupBox>(form, "Frame3").title(), "Draft && Underkeel Clearance");
}

}  // namespace
}  // namespace tarvane::tests
