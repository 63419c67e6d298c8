#include "ports/frmconfig.h"

#include <QApplication>

#include "fakes/mainfixture.h"
#include "ports/portselection.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmConfig : LoadedMain {
    FrmConfig() {
        for (const HarmonicRecord& port : shippedports())
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
    EXPECT_EQ(defaultbutton(form), "portconfigok");
    EXPECT_EQ(form.portlist2->count(), ports - 1);
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"txtSearch", "cmdSearch", "portlist2", "optSortbyName",
                                                        "cmdSort", "portconfigok", "portconfigcancel"}));
    ASSERT_EQ(QApplication::focusWidget(), form.txtSearch);

    QTest::keyClicks(form.txtSearch, "saint");
    QTest::mouseClick(form.cmdSearch, Qt::LeftButton);
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Quay-Portrieux");
    QTest::keyClick(form.focusWidget(), Qt::Key_Up);
    EXPECT_EQ(form.portconfigbox->text(), "Saint-Malo");
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(stored().portnumber, 80);
    EXPECT_EQ(session.view.portbox, "Port    : Saint-Malo");
}

TEST_F(FrmConfig, TheCurrentPortIsInViewYetNoneIsHighlightedAtFirst) {
    session.settings.currentport = 20;
    frmconfig form(context);
    present(form);
    const std::string current = trimmedname(readport(area(), 20));
    EXPECT_EQ(highlighted(form), "");
    EXPECT_EQ(form.portconfigbox->text().toStdString(), current);
    ASSERT_EQ(form.portlist2->currentItem()->text().toStdString(), current);
    EXPECT_TRUE(
        form.portlist2->viewport()->rect().contains(form.portlist2->visualItemRect(form.portlist2->currentItem())));
    scripted.messages.expectshow("Select a port", "Tarvane");
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(form.txtSearch, Qt::Key_Down);
    const int row = form.portlist2->currentRow();
    EXPECT_EQ(form.portlist2->item(row - 1)->text().toStdString(), current);
    EXPECT_EQ(highlighted(form), form.portlist2->item(row)->text());
}

TEST_F(FrmConfig, NeitherFocusNorATextThatNoPortHasTakesAPort) {
    session.settings.areafile = session.folders.programfolder + "/Other.hc";
    writeport(session.settings.areafile, 1, fixtureport("Dunlin & <b>Point</b>", 7));
    writeport(session.settings.areafile, 2, fixtureport("Newhaven", 7));
    writeport(session.settings.areafile, 3, fixtureport("Zennor", 7));
    frmconfig form(context);
    present(form);
    EXPECT_EQ(form.portconfigbox->text(), "Dunlin & <b>Point</b>") << "what has the current port's number here";
    EXPECT_EQ(form.portconfigbox->textFormat(), Qt::PlainText);
    form.portlist2->setFocus();
    scripted.messages.expectshow("Select a port", "Tarvane");
    QTest::keyClick(form.portlist2, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible()) << "in another area no port is the current one";
    QTest::keyClicks(form.txtSearch, "ne");
    QTest::keyClicks(form.txtSearch, "x");
    EXPECT_NE(highlighted(form), "") << "a text without a hit leaves the selection";
    EXPECT_EQ(form.txtSearch->palette().color(QPalette::Text), QColor(Qt::red));
    QTest::keyClick(form.txtSearch, Qt::Key_Return);
    EXPECT_EQ(scripted.messages.beeps, 1);
    EXPECT_EQ(stored().portnumber, 1);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmConfig, LettersPressedFastStepThroughTheirGroup) {
    frmconfig form(context);
    present(form);
    form.portlist2->setFocus();
    for (const char* reached : {"Penarth", "Port Ellen (Islay)", "Port Erin (Isle of Man)"}) {
        QTest::keyClick(form.portlist2, Qt::Key_P);
        EXPECT_EQ(form.portconfigbox->text(), reached);
    }
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(form.portlist2, "dov");
    EXPECT_EQ(form.portconfigbox->text(), "Dover");
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

}  // namespace
}  // namespace tarvane::tests
