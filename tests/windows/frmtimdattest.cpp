#include "mainview/frmtimdat.h"

#include <QCalendarWidget>
#include <QMenu>
#include <QTimer>

#include "fakes/mainfixture.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmtimdatTest : LoadedMain {
    void clickrow(QListWidget& list, const char* text) {
        const auto found = list.findItems(text, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << text;
        list.scrollToItem(found[0]);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(found[0]).center());
    }
};

TEST_F(FrmtimdatTest, ADateIsTypedAndEnteredAtOnce) {
    for (const auto& [form_, typed] : {std::pair{"DD/MM/YYYY", "05/02/2027"}, {"MM-DD-YYYY", "2/5/2027"}}) {
        session.conventions.dateformat = form_;
        Frmtimdat form(context);
        present(form);
        EXPECT_EQ(infocus(form) + defaultbutton(form), "DTPickercmdOK");
        QTest::keyClicks(form.DTPicker, typed);
        EXPECT_EQ(shown(*form.txtDayName), "(Friday)");
        QTest::keyClick(form.DTPicker, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(session.view.tidedatebox, "Date   : 05 February 2027 (Friday)");
    }
}

TEST_F(FrmtimdatTest, AnUnreadableDateShowsWhyAndIsNotEntered) {
    Frmtimdat form(context);
    present(form);
    QTest::keyClicks(form.DTPicker, "31022027");
    EXPECT_EQ(shown(*form.refusal), "February 2027 has no day 31.");
    EXPECT_EQ(shown(*form.txtDayName), "");
    QTest::keyClick(form.DTPicker, Qt::Key_Up);
    QTest::keyClick(form.DTPicker, Qt::Key_Return);
    EXPECT_EQ(scripted.messages.beeps, 2);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.DTPicker->selectedText(), "31022027");
    QTest::keyClicks(form.DTPicker, "1 march 25");
    form.daylist->setFocus();
    EXPECT_EQ(form.DTPicker->text(), "01/03/2025") << "left, it shows what was read";
    EXPECT_EQ(shown(*form.refusal), "");
    form.DTPicker->setFocus();
    EXPECT_EQ(defaultbutton(form), "cmdOK");
    QTest::keyClick(form.DTPicker, Qt::Key_Down);
    EXPECT_EQ(form.DTPicker->text() + form.txtDayName->text(), "28/02/2025(Friday)");
    form.cmdReset->click();
    EXPECT_EQ(form.DTPicker->text() + form.txtDayName->text(), "09/04/2024(Tuesday)");
}

TEST_F(FrmtimdatTest, ADateIsClickedInTheCalendar) {
    Frmtimdat form(context);
    present(form);
    auto& calendar = *form.DTPicker->arrow->menu()->findChild<QCalendarWidget*>();
    EXPECT_EQ(calendar.selectedDate(), QDate(2024, 4, 9));
    QTest::keyClicks(form.DTPicker, "24122024");
    QTimer::singleShot(0, &form, [&] {
        EXPECT_TRUE(calendar.isVisible());
        EXPECT_EQ(calendar.selectedDate(), QDate(2024, 12, 24));
        QWidget* keyboard = form.DTPicker->arrow->menu()->focusWidget();
        QTest::keyClick(keyboard, Qt::Key_Right);
        QTest::keyClick(keyboard, Qt::Key_Return);
    });
    QTest::keyClick(form.DTPicker, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(form.DTPicker->text() + form.txtDayName->text(), "25/12/2024(Wednesday)");
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
        QTest::keyClicks(form.DTPicker, "01012001");
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
    EXPECT_EQ(taborder(form), (std::vector<std::string>{"DTPicker", "cmdOK", "cmdReset", "datecancel", "daylist",
                                                        "monthlist", "yearlist", "date1ok", "Command1"}));
    auto& years = *form.yearlist;
    EXPECT_TRUE(years.selectedItems().isEmpty());
    EXPECT_EQ(shown(*form.selectedyear), "2024");
    clickrow(years, "4");
    QTest::keyClick(&years, Qt::Key_Return);
    EXPECT_EQ(session.onshow.tidedate, makedate(4, 4, 9)) << "a year-first system offers the first century";
}

}  // namespace
}  // namespace tarvane::tests
