// The workshop's window and the windows that it opens, in the order of their use.
#include "adjust/frmharmadjust.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "adjust/frmadjustfileselect.h"
#include "adjust/frmadjustsave.h"
#include "adjust/frmheightenter.h"
#include "adjust/frmselectheightfile.h"
#include "adjust/frmweighting.h"
#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmHarmAdjust : LoadedMain {
    FrmHarmAdjust() {
        HarmonicRecord later = fixtureport("Birch Sound", 4, "L");
        later.M2g = 160;
        writeport(area(), 2, later);
    }
    template <class Window, class Act>
    void expectwindow(const char* name, Act act) {
        scripted.windows.expect(name, [act](ModalWindow& opened) { act(dynamic_cast<Window&>(opened)); });
    }
    static QAction& entry(frmHarmAdjust& shop, const char* name) { return *shop.findChild<QAction*>(name); }
    /// The keyboard comes to a list, which is no choice from it.
    static void tabinto(QListWidget& list) {
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(&list, &focus);
    }
    std::string answer(frmHarmAdjust& shop) { return shown(control<QLabel>(shop, "answer")); }
};

TEST_F(FrmHarmAdjust, StepsTypedValuesAndReadouts) {
    frmHarmAdjust shop(context, nullptr);
    present(shop);
    expectroomfortexts(shop);
    for (const frmHarmAdjust::Column& column : shop.columns)
        EXPECT_NE(column.turning->text(), "") << "the curves are drawn as the window opens";
    EXPECT_EQ(shown(control<QLabel>(shop, "lblportname1")) + shown(control<QLabel>(shop, "P2M2g")), "Alder Quay160");
    auto& box = control<QLineEdit>(shop, "txtM2Hm");
    auto& step = control<StepControl>(shop, "UpDnM2Hm");
    const int before = step.value();
    QTest::mouseClick(step.up, Qt::LeftButton);
    EXPECT_EQ(box.text().toDouble(), (before + 1) / 100.0);
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, "7,5");
    EXPECT_EQ(box.text(), "7.5");
    const auto total = [&](double hours) {
        shop.columns[intermediatecurve].picture->onmousemove(hours, 0);
        return control<QLabel>(shop, "lblheight2").text().toDouble();
    };
    const double low = total(3);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_GT(std::abs(total(3) - low), 1) << "Enter calculates with what was typed";
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.text().toDouble(), before / 100.0) << "a step goes on from the control's own value";
    total(9);
    shop.columns[port1curve].picture->onmousedown(1, 1);
    EXPECT_EQ(total(15), total(9)) << "frozen";
    EXPECT_EQ(shown(control<QLabel>(shop, "timeval")), "09:00");
    scripted.messages.expectaskorcancel(
        "The constants of the intermediate location are not saved, and closing this window ends the program.\n"
        "Save them first?",
        Answer::no);
    QTest::mouseClick(step.down, Qt::LeftButton);
    bool ended = false;
    shop.onclosed = [&] { ended = true; };
    entry(shop, "MnuFileExit").trigger();
    EXPECT_TRUE(ended);
}

TEST_F(FrmHarmAdjust, TheCreeksStory) {
    frmHarmAdjust shop(context, nullptr);
    present(shop);
    EXPECT_FALSE(control<QPushButton>(shop, "cmdFit").isEnabled());
    // Twelve readings half a metre over the middle curve, and a slip of a finger among them.
    expectwindow<frmHeightEnter>("frmHeightEnter", [&](frmHeightEnter& form) {
        for (auto* list : form.findChildren<QListWidget*>())
            tabinto(*list);
        scripted.messages.expectshow("No time selected", "Tarvane");
        form.cmdAdd->click();
        for (int hour = 6; hour < 18; ++hour) {
            shop.columns[intermediatecurve].picture->onmousemove(hour, 0);
            const double height = control<QLabel>(shop, "lblheight2").text().toDouble() + 0.5;
            const int hundredths = qRound(height * 100);
            form.lstHours->setCurrentRow(hour);
            form.lstMins->setCurrentRow(0);
            form.lstMetres->setCurrentRow(hundredths / 100);
            form.lstCms->setCurrentRow(hundredths / 10 % 10);
            form.lstMMs->setCurrentRow(hundredths % 10);
            form.cmdAdd->click();
        }
        form.List1->setCurrentRow(3);
        emit form.List1->itemActivated(form.List1->currentItem());
        EXPECT_EQ(form.lblTime->text(), "09:00");
        const int right = form.lstMetres->currentRow();
        form.lstMetres->setCurrentRow(right + 2);
        form.cmdChange->click();
        scripted.messages.expectshow("No filename chosen", "Tarvane");
        form.Command2->click();
        form.txtFileName->setText("creek");
        form.Command2->click();
        EXPECT_EQ(shown(*form.answer), "creek.ht: 12 readings saved");
        QTest::keyClick(form.txtFileName, Qt::Key_Return);
        EXPECT_EQ(form.List1->count(), 12) << "Enter in the name adds no reading";
        EXPECT_EQ(scripted.messages.beeps, 1);
        form.close();
    });
    entry(shop, "mnuObsEnterData").trigger();
    EXPECT_EQ(shown(control<QLabel>(shop, "heightsname")), "Observed heights: creek.ht");
    const double level = control<QLineEdit>(shop, "txtZ0").text().toDouble();
    control<QPushButton>(shop, "cmdFit").click();
    EXPECT_NEAR(control<QLineEdit>(shop, "txtZ0").text().toDouble(), level + 0.5, 0.02);
    EXPECT_NE(shown(control<QLabel>(shop, "found")).find("Left out as wild: 09:00"), std::string::npos)
        << shown(control<QLabel>(shop, "found"));

    expectwindow<frmAdjustSave>("frmAdjustSave", [&](frmAdjustSave& form) {
        scripted.messages.expectshow("Area must have a name", "Tarvane");
        form.cmdSave->click();
        form.File1->setCurrentRow(0);
        form.Text1->setText("Kingfisher Creek");
        tabinto(*form.List1);
        form.Option1->setChecked(true);
        scripted.messages.expectshow("Select the location to replace", "Tarvane");
        form.cmdSave->click();
        form.Option2->setChecked(true);
        form.cmdSave->click();
    });
    entry(shop, "MnuFileSave").trigger();
    EXPECT_EQ(answer(shop).substr(0, 43), "UK.hc: 5 ports; the new port stands last. G");
    EXPECT_EQ(trimmedname(readport(area(), 5)), "Kingfisher Creek");
    EXPECT_TRUE(shop.mayclose()) << "saved";
}

TEST_F(FrmHarmAdjust, AClickOnTheRowThatIsCurrentAlreadyIsAClick) {
    ASSERT_TRUE(writeheights(session.folders.programfolder + "/fine.ht", {{9.05F, 1.234F}}).written);
    const auto clickcurrent = [](QListWidget& list) {
        list.scrollToItem(list.currentItem());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.currentItem()).center());
    };
    frmHarmAdjust shop(context, nullptr);
    present(shop);
    expectwindow<frmHeightEnter>("frmHeightEnter", [&](frmHeightEnter& form) {
        form.show();
        form.txtFileName->setText("fine");
        QTest::keyClick(form.txtFileName, Qt::Key_Return);
        form.List1->setCurrentRow(0);
        emit form.List1->itemActivated(form.List1->currentItem());
        EXPECT_EQ(form.lblTime->text() + " " + form.lblHeight->text(), "09:03 1.234");
        clickcurrent(*form.lstMins);
        clickcurrent(*form.lstMMs);
        EXPECT_EQ(form.lblTime->text() + " " + form.lblHeight->text(), "09:05 1.23");
        form.File1->setCurrentRow(0);
        form.txtFileName->setText("typed");
        clickcurrent(*form.File1);
        EXPECT_EQ(form.txtFileName->text(), "fine");
        form.close();
    });
    entry(shop, "mnuObsEnterData").trigger();
    expectwindow<frmAdjustSave>("frmAdjustSave", [&](frmAdjustSave& form) {
        form.show();
        form.File1->setCurrentRow(0);
        form.List1->setCurrentRow(1);
        form.txtAreaName->setText("typed");
        form.Text1->setText("typed");
        clickcurrent(*form.List1);
        EXPECT_EQ(form.Text1->text(), "Birch Sound");
        clickcurrent(*form.File1);
        EXPECT_EQ(form.txtAreaName->text(), "UK");
        form.close();
    });
    entry(shop, "MnuFileSave").trigger();
}

TEST_F(FrmHarmAdjust, PortsAreLoadedAndHeightFilesChosen) {
    frmHarmAdjust shop(context, nullptr);
    present(shop);
    expectwindow<FrmAdjustfileselect>("FrmAdjustfileselect", [&](FrmAdjustfileselect& form) {
        scripted.messages.expectshow("Select a location", "Tarvane");
        form.cmdLoad->click();
        form.File1->setCurrentRow(0);
        form.List1->setCurrentRow(2);
        EXPECT_EQ(form.lblselectedport->text(), "Cedar Head");
        form.cmdPort2->click();
        EXPECT_EQ(shown(control<QLabel>(shop, "Portbox3")), "Cedar Head");
        form.List1->setCurrentRow(1);
        form.cmdLoad->click();
    });
    entry(shop, "mnuDataLoad").trigger();
    EXPECT_EQ(control<QLineEdit>(shop, "txtM2g").text(), "160");
    EXPECT_EQ(shown(control<QLabel>(shop, "lblportname1")), "Alder Quay");

    ASSERT_TRUE(writeheights(session.folders.programfolder + "/few.ht", {{1, 1}, {2, 2}}).written);
    expectwindow<frmSelectHeightFile>("frmSelectHeightFile", [&](frmSelectHeightFile& form) {
        scripted.messages.expectshow("Select a file", "Tarvane");
        form.cmdOK->click();
        scripted.messages.expectshow("Not enough data to draw in a curve");
        form.File1->setCurrentRow(0);
        form.cmdOK->click();
    });
    entry(shop, "mnuDataHeightSelect").trigger();
    expectwindow<frmSelectHeightFile>("frmSelectHeightFile",
                                      [](frmSelectHeightFile& form) { form.cmdCancel->click(); });
    entry(shop, "mnuDataHeightSelect").trigger();
    EXPECT_EQ(shown(control<QLabel>(shop, "heightsname")), "No observed heights");
    expectwindow<frmWeighting>("frmWeighting", [](frmWeighting& form) {
        QTest::keyClicks(form.txtlat, "50,20.00n");
        EXPECT_EQ(form.txtlat->text(), "50.20.00N");
        EXPECT_FALSE(form.cmdWeigh->isEnabled());
        form.close();
    });
    entry(shop, "mnuWeigh").trigger();
}

}  // namespace
}  // namespace tarvane::tests
