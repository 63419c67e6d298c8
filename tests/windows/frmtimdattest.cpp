#include "mainview/frmtimdat.h"

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

class FrmtimdatTest : public testing::Test, protected MainFixture {
  protected:
    FrmtimdatTest() { load(); }

    void clickrow(QListWidget& list, const char* text) {
        const auto found = list.findItems(text, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << text;
        list.scrollToItem(found[0]);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(found[0]).center());
    }
};

TEST_F(FrmtimdatTest, ADateIsTypedAndEnteredAtOnce) {
    Frmtimdat form(context);
    present(form);
    EXPECT_EQ(infocus(form), "DTPicker");
    QTest::keyClicks(form.DTPicker, "25122026");
    EXPECT_EQ(shown(*form.txtDayName), "(Friday)");
    QTest::keyClick(form.DTPicker, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.view.tidedatebox, "Date   : 25 December 2026 (Friday)");
}

TEST_F(FrmtimdatTest, ThePickerHoldsEveryYearOfFourDigitsInTheSystemsOrder) {
    for (const auto& [pattern, text] : {std::pair{"MM-DD-YYYY", "12-31-9999"}, std::pair{"", "31/12/9999"}}) {
        session.conventions.dateformat = pattern;
        Frmtimdat form(context);
        auto& picker = *form.DTPicker;
        picker.setDate({100, 1, 1});
        EXPECT_EQ(picker.date(), QDate(100, 1, 1));
        picker.setDate({9999, 12, 31});
        EXPECT_EQ(picker.text(), text);
        form.cmdReset->click();
        EXPECT_EQ(picker.date(), QDate(2024, 4, 9));
    }
}

TEST_F(FrmtimdatTest, ADateIsPickedFromTheListsADayPastTheMonthsEndBecomingItsLast) {
    scripted.clock.set(2024, 4, 16);
    scripted.locale.months[8] = "Septembermonth of the year";
    Frmtimdat form(context);
    present(form);
    expectroomfortexts(form);
    EXPECT_GE(form.monthlist->viewport()->width(), form.monthlist->sizeHintForColumn(0));
    auto& days = *form.daylist;
    const auto selected = [&] {
        return shown(*form.selectedday) + " " + shown(*form.selectedmonth) + " " + shown(*form.selectedyear) + " " +
               shown(*form.PredictedDay);
    };
    EXPECT_EQ(selected(), "16 April 2024 (Tuesday)");
    EXPECT_NEAR(days.visualItemRect(days.currentItem()).center().y(), days.viewport()->height() / 2, 20);
    clickrow(*form.monthlist, "January");
    clickrow(days, "31");
    clickrow(*form.monthlist, "February");
    EXPECT_EQ(days.currentItem()->text(), "29");
    clickrow(*form.yearlist, "2025");
    EXPECT_EQ(selected(), "28 February 2025 (Friday)");
    EXPECT_EQ(defaultbutton(form), "date1ok");
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_Up);
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.view.tidedatebox, "Date   : 27 February 2025 (Thursday)");
}

TEST_F(FrmtimdatTest, EveryWayOutButTheTwoOKsChangesNothing) {
    for (const char* way : {"datecancel", "Command1", "Escape"}) {
        Frmtimdat form(context);
        present(form);
        form.DTPicker->setDate({2001, 1, 1});
        clickrow(*form.monthlist, "August");
        auto* button = form.findChild<QPushButton*>(way);
        button ? button->click() : QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible()) << way;
        EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
    }
}

TEST_F(FrmtimdatTest, TabPassesOverTheYearsWithoutChoosingOne) {
    scripted.locale.order = "YMD";
    Frmtimdat form(context);
    present(form);
    taborder(form);
    auto& years = *form.yearlist;
    EXPECT_TRUE(years.selectedItems().isEmpty());
    EXPECT_EQ(shown(*form.selectedyear), "2024");
    clickrow(years, "4");
    QTest::keyClick(&years, Qt::Key_Return);
    EXPECT_EQ(session.onshow.tidedate, makedate(4, 4, 9)) << "a year-first system offers the first century";
}

}  // namespace
}  // namespace tarvane::tests
