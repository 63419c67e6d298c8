#include "ports/frmoutoptions.h"

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmoutoptionsTest : LoadedMain {
    FrmoutoptionsTest() {
        store([](ConfigRecord& record) {
            record.draught = 1.25F;
            record.ukc = 0.75F;
        });
        load();
    }
    std::string filebytes() const { return filetext(session.folders.cfgpath()); }
};

TEST_F(FrmoutoptionsTest, SettingsAreChosenAndStored) {
    const auto before = filebytes();
    frmoutoptions form(context);
    present(form);
    EXPECT_TRUE(form.Option3->isChecked() && form.optNonDaylightsavings->isChecked());
    EXPECT_EQ(form.draughttext->text() + " " + form.ukctext->text(), "1.25 0.75");
    form.Option2->click();
    form.optDaylightSavings->click();
    QTest::mouseDClick(form.draughttext, Qt::LeftButton, {}, {4, form.draughttext->height() / 2});
    QTest::keyClicks(form.draughttext, "1,9");
    form.ukctext->selectAll();
    QTest::keyClicks(form.ukctext, "abc");
    EXPECT_EQ(filebytes(), before);
    QTest::keyClick(form.draughttext, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(stored().outputoption, 2);
    EXPECT_EQ(stored().draught, 1.9F) << "a double click took the whole number";
    EXPECT_EQ(stored().ukc, 0);
    EXPECT_EQ(scripted.messages.beeps, 0);
    EXPECT_EQ(stored().summertimeflag, -1);
}

TEST_F(FrmoutoptionsTest, CancelStoresNothingButTheOptionPickedHolds) {
    const auto before = filebytes();
    for (const bool escape : {true, false}) {
        frmoutoptions form(context);
        present(form);
        QTest::keyClick(form.focusWidget(), Qt::Key_Up);
        form.draughttext->setText("9");
        form.optDaylightSavings->click();
        escape ? QTest::keyClick(&form, Qt::Key_Escape) : form.Command1->click();
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(session.settings.currentoutput, 2);
        EXPECT_EQ(session.settings.currentdraught, 1.25F);
        EXPECT_EQ(filebytes(), before);
    }
}

TEST_F(FrmoutoptionsTest, AnOptionThatStandsCanBeClickedAndTheTickOffersMaintenanceEitherWay) {
    store([](ConfigRecord& record) {
        record.outputoption = 0;
        record.summertimeflag = 2;
    });
    frmoutoptions form(context);
    EXPECT_FALSE(form.optDaylightSavings->isChecked() || form.optNonDaylightsavings->isChecked());
    EXPECT_EQ(session.settings.currentoutput, 0);
    form.Option1->click();
    EXPECT_EQ(session.settings.currentoutput, 1);
    for (int clicks = 0; clicks < 2; ++clicks) {
        session.view.maintenancevisible = session.view.copyportsvisible = session.view.diamondsvisible = false;
        form.Check1->click();
        EXPECT_TRUE(session.view.maintenancevisible && session.view.copyportsvisible && session.view.diamondsvisible);
    }
}

}  // namespace
}  // namespace tarvane::tests
