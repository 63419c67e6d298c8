#include "ports/frmconfig.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <fstream>
#include <iterator>

#include "fakes/mainfixture.h"
#include "portdata/portscsv.h"
#include "ports/portselection.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmConfig : public testing::Test, protected MainFixture {
  protected:
    FrmConfig() {
        std::ifstream file(TARVANE_DATA "/uk-ports.csv");
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (const HarmonicRecord& port : readportscsv(text).ports)
            writeport(area(), static_cast<std::int16_t>(++ports), port);
        load();
        reloadforportlist(context);
    }

    static QString highlighted(const frmconfig& form) {
        const auto selected = form.portlist2->selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text();
    }
    int ports = 0;
};

TEST_F(FrmConfig, ASailorTypesPartOfANameSearchesOnStepsBackAndPressesEnter) {
    frmconfig form(context);
    present(form);
    expectroomfortexts(form);
    EXPECT_EQ(defaultbutton(form), "portconfigok");
    EXPECT_EQ(form.portlist2->count(), ports - 1);
    EXPECT_EQ(form.portconfigbox->text(), "St Mary's");
    ASSERT_EQ(QApplication::focusWidget(), form.txtSearch);

    QTest::keyClicks(form.txtSearch, "saint");
    form.cmdSearch->click();
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Quay-Portrieux");
    QTest::keyClick(form.txtSearch, Qt::Key_Up);
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Malo");
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(stored().portnumber, 80);
    EXPECT_EQ(session.view.portbox, "Port    : Saint-Malo");
}

TEST_F(FrmConfig, NeitherFocusNorATextThatNoPortHasTakesAPort) {
    frmconfig form(context);
    present(form);
    form.portlist2->setFocus();
    scripted.messages.expectshow("Select a port", "Tarvane");
    QTest::keyClick(form.portlist2, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClicks(form.txtSearch, "po");
    QTest::keyClicks(form.txtSearch, "x");
    EXPECT_NE(highlighted(form), "") << "a text without a hit leaves the selection";
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_EQ(scripted.messages.beeps, 1);
    EXPECT_EQ(stored().portnumber, 1);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmConfig, TheFilesLastPortIsFoundInTheOrderOfTheFile) {
    frmconfig form(context);
    present(form);
    QTest::mouseClick(form.cmdSort, Qt::LeftButton);
    EXPECT_EQ(form.portlist2->count(), ports - 2);
    form.optSortGeog->setChecked(true);
    QTest::mouseClick(form.cmdSort, Qt::LeftButton);
    EXPECT_EQ(form.portlist2->count(), ports);

    const auto brest = form.portlist2->findItems("Brest", Qt::MatchExactly);
    form.portlist2->scrollToItem(brest.first());
    const QPoint place = form.portlist2->visualItemRect(brest.first()).center();
    QTest::mouseClick(form.portlist2->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(form.portlist2->viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(stored().portnumber, ports);
    EXPECT_EQ(stored().sortmode, 0);

    frmconfig again(context);
    EXPECT_TRUE(again.optSortGeog->isChecked());
    EXPECT_EQ(again.portconfigbox->text(), "Brest");
}

TEST_F(FrmConfig, ANewAreaShowsItsPortOfTheSameNumberAsItStands) {
    session.settings.areafile = session.folders.programfolder + "/Two.hc";
    writeport(session.settings.areafile, 1, fixtureport("Dunlin & <b>Point</b>", 7));
    frmconfig form(context);
    EXPECT_EQ(form.portconfigbox->text(), "Dunlin & <b>Point</b>");
    EXPECT_EQ(form.portconfigbox->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace tarvane::tests
