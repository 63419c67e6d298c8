#include "portdata/frmconfig.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "mainview/mainfixture.h"
#include "mainview/portselection.h"
#include "portdata/portscsv.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmConfig : public testing::Test, protected MainFixture {
  protected:
    FrmConfig() {
        std::ifstream file(TARVANE_DATA "/uk-ports.csv");
        std::stringstream text;
        text << file.rdbuf();
        std::vector<std::byte> bytes;
        for (const HarmonicRecord& port : readportscsv(text.str()).ports) {
            const auto record = encode(port);
            bytes.insert(bytes.end(), record.begin(), record.end());
        }
        replacefile(area(), bytes);
        ports = portcount(area());
        load();
        reloadforportlist(context);
    }

    static QString highlighted(const frmconfig& form) {
        const auto selected = form.portlist2->selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text();
    }
    int ports = 0;
};

TEST_F(FrmConfig, ASailorTypesPartOfANameAndPressesEnter) {
    frmconfig form(context);
    present(form);
    EXPECT_EQ(form.windowname(), "frmconfig");
    EXPECT_EQ(form.windowTitle(), "Select Port");
    expectroomfortexts(form);
    EXPECT_EQ(defaultbutton(form), "portconfigok");
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"txtSearch", "cmdSearch", "portlist2", "optSortbyName",
                                                        "cmdSort", "portconfigok", "portconfigcancel"}));
    EXPECT_TRUE(form.optSortbyName->isChecked());
    EXPECT_EQ(form.portlist2->count(), ports - 1);
    EXPECT_EQ(form.portconfigbox->text(), "St Mary's");
    EXPECT_EQ(highlighted(form), "");
    ASSERT_EQ(QApplication::focusWidget(), form.txtSearch);

    QTest::keyClicks(form.txtSearch, "malo");
    EXPECT_EQ(highlighted(form), "Saint-Malo");
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Malo");
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(stored().portnumber, 80);
    EXPECT_EQ(stored().sortmode, -1);
    EXPECT_EQ(session.view.portbox, "Port    : Saint-Malo");
}

TEST_F(FrmConfig, EnterOnATextThatNoPortHasTakesNoPort) {
    frmconfig form(context);
    present(form);
    QTest::keyClick(form.txtSearch, Qt::Key_P);
    QTest::keyClick(form.txtSearch, Qt::Key_O);
    const QString before = highlighted(form);
    ASSERT_FALSE(before.isEmpty());
    QTest::keyClicks(form.txtSearch, "x");
    EXPECT_EQ(highlighted(form), before) << "a text without a hit leaves the selection";
    EXPECT_EQ(form.txtSearch->palette().color(QPalette::Text), QColor(Qt::red));
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(scripted.messages.beeps, 1);
    EXPECT_EQ(stored().portnumber, 1);
    QTest::keyClick(form.txtSearch, Qt::Key_Backspace);
    EXPECT_NE(form.txtSearch->palette().color(QPalette::Text), QColor(Qt::red));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.settings.currentport, 1);
}

TEST_F(FrmConfig, SearchStepsFromHitToHitAndStartsAgain) {
    frmconfig form(context);
    present(form);
    QTest::keyClicks(form.txtSearch, "saint");
    std::vector<QString> hits{highlighted(form)};
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(form.cmdSearch, Qt::LeftButton);
        hits.push_back(highlighted(form));
    }
    EXPECT_EQ(hits, (std::vector<QString>{"Saint-Malo", "Saint-Quay-Portrieux", "Saint-Quay-Portrieux", "Saint-Malo"}));

    form.txtSearch->setFocus();
    QTest::keyClick(form.txtSearch, Qt::Key_Down);
    EXPECT_EQ(highlighted(form), "Saint-Quay-Portrieux") << "the arrows move the list while the text is typed";
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Quay-Portrieux");
}

TEST_F(FrmConfig, TheFilesLastPortIsFoundInTheOrderOfTheFile) {
    frmconfig form(context);
    present(form);
    EXPECT_TRUE(form.portlist2->findItems("Brest", Qt::MatchExactly).isEmpty());
    QTest::mouseClick(form.cmdSort, Qt::LeftButton);
    EXPECT_EQ(form.portlist2->count(), ports - 2);
    form.optSortGeog->setChecked(true);
    EXPECT_EQ(form.portlist2->count(), ports - 2) << "an option does nothing by itself";
    QTest::mouseClick(form.cmdSort, Qt::LeftButton);
    EXPECT_EQ(form.portlist2->count(), ports);
    EXPECT_EQ(highlighted(form), "");

    const auto brest = form.portlist2->findItems("Brest", Qt::MatchExactly);
    ASSERT_EQ(brest.size(), 1);
    form.portlist2->scrollToItem(brest.first());
    const QPoint place = form.portlist2->visualItemRect(brest.first()).center();
    QTest::mouseClick(form.portlist2->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(form.portlist2->viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(stored().portnumber, ports);
    EXPECT_EQ(stored().sortmode, 0);

    frmconfig again(context);
    EXPECT_TRUE(again.optSortGeog->isChecked());
    EXPECT_EQ(again.portlist2->count(), ports);
    EXPECT_EQ(again.portconfigbox->text(), "Brest");
}

TEST_F(FrmConfig, FocusAloneSelectsNothing) {
    frmconfig form(context);
    present(form);
    form.portlist2->setFocus();
    EXPECT_EQ(highlighted(form), "");
    scripted.messages.expectshow("Select a port", "Tarvane");
    QTest::keyClick(form.portlist2, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(form.portlist2, Qt::Key_P);
    QTest::keyClick(form.portlist2, Qt::Key_P);
    EXPECT_TRUE(highlighted(form).startsWith("P"));
    EXPECT_EQ(form.portconfigbox->text(), highlighted(form));
}

TEST_F(FrmConfig, ANewAreaShowsItsPortOfTheSameNumberAsItStands) {
    session.settings.areafile = session.folders.programfolder + "/Two.hc";
    writeport(session.settings.areafile, 1, fixtureport("Dunlin & <b>Point</b>", 7));
    frmconfig form(context);
    EXPECT_EQ(form.portconfigbox->text(), "Dunlin & <b>Point</b>");
    EXPECT_EQ(form.portconfigbox->textFormat(), Qt::PlainText);
    EXPECT_EQ(form.portlist2->count(), 0);
}

}  // namespace
}  // namespace tarvane::tests
