#include "dates/frmtimdat.h"

#include "mainview/mainfixture.h"
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
    EXPECT_EQ(form.windowTitle(), "Date Entry");
    EXPECT_TRUE(control<QLabel>(form, "Label1")
                    .text()
                    .startsWith("Selected a date by selecting the down arrow.\n"
                                "then clicking on a date.\n"));
    auto& picker = control<QDateEdit>(form, "DTPicker");
    EXPECT_EQ(picker.text(), "09/04/2024");
    EXPECT_EQ(shown(control<QLabel>(form, "txtDayName")), "(Tuesday)");
    EXPECT_EQ(infocus(form), "DTPicker");
    EXPECT_EQ(defaultbutton(form), "cmdOK");
    QTest::keyClicks(&picker, "25122026");
    EXPECT_EQ(shown(control<QLabel>(form, "txtDayName")), "(Friday)");
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
    QTest::keyClick(&picker, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.onshow.tidedate, makedate(2026, 12, 25));
    EXPECT_EQ(session.view.tidedatebox, "Date   : 25 December 2026 (Friday)");
}

TEST_F(FrmtimdatTest, ThePickerHoldsEveryYearOfFourDigitsInTheSystemsOrder) {
    const struct {
        const char *form, *text;
    } rows[] = {
        {"DD/MM/YYYY", "31/12/9999"}, {"MM-DD-YYYY", "12-31-9999"}, {"YYYY.MM.DD", "9999.12.31"}, {"", "31/12/9999"}};
    for (const auto& row : rows) {
        session.conventions.dateformat = row.form;
        Frmtimdat form(context);
        auto& picker = control<QDateEdit>(form, "DTPicker");
        for (const QDate date : {QDate(100, 1, 1), QDate(1752, 9, 13), QDate(9999, 12, 31)}) {
            picker.setDate(date);
            EXPECT_EQ(picker.date(), date);
        }
        EXPECT_EQ(picker.text(), row.text);
        QTest::mouseClick(&control<QPushButton>(form, "cmdReset"), Qt::LeftButton);
        EXPECT_EQ(picker.date(), QDate(2024, 4, 9));
        EXPECT_EQ(shown(control<QLabel>(form, "txtDayName")), "(Tuesday)");
    }
}

TEST_F(FrmtimdatTest, ADateIsPickedFromTheLists) {
    scripted.clock.set(2024, 4, 16);
    Frmtimdat form(context);
    present(form);
    auto& days = control<QListWidget>(form, "daylist");
    const auto selected = [&] {
        return shown(control<QLabel>(form, "selectedday")) + " " + shown(control<QLabel>(form, "selectedmonth")) + " " +
               shown(control<QLabel>(form, "selectedyear")) + " " + shown(control<QLabel>(form, "PredictedDay"));
    };
    EXPECT_EQ(selected(), "16 April 2024 (Tuesday)");
    EXPECT_EQ(days.count(), 30);
    EXPECT_NEAR(days.visualItemRect(days.currentItem()).center().y(), days.viewport()->height() / 2, 20);
    clickrow(control<QListWidget>(form, "monthlist"), "January");
    clickrow(days, "31");
    EXPECT_EQ(selected(), "31 January 2024 (Wednesday)");
    clickrow(control<QListWidget>(form, "monthlist"), "February");
    EXPECT_EQ(days.count(), 29);
    EXPECT_EQ(selected(), "29 February 2024 (Thursday)");
    EXPECT_EQ(days.currentItem()->text(), "29");
    clickrow(control<QListWidget>(form, "yearlist"), "2025");
    EXPECT_EQ(days.count(), 28);
    EXPECT_EQ(selected(), "28 February 2025 (Friday)");
    EXPECT_EQ(defaultbutton(form), "date1ok");
    EXPECT_EQ(control<QDateEdit>(form, "DTPicker").date(), QDate(2024, 4, 16));
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_Up);
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.view.tidedatebox, "Date   : 27 February 2025 (Thursday)");
    EXPECT_EQ(session.onshow.tidedayofyear, 58);
}

TEST_F(FrmtimdatTest, EveryWayOutButTheTwoOKsChangesNothing) {
    for (const char* way : {"datecancel", "Command1", "Escape"}) {
        Frmtimdat form(context);
        present(form);
        form.DTPicker->setDate({2001, 1, 1});
        clickrow(*form.monthlist, "August");
        if (auto* button = form.findChild<QPushButton*>(way))
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QTest::keyClick(&form, Qt::Key_Escape);
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
    auto& years = control<QListWidget>(form, "yearlist");
    EXPECT_TRUE(years.selectedItems().isEmpty());
    EXPECT_EQ(years.item(0)->text(), "4");
    EXPECT_EQ(shown(control<QLabel>(form, "selectedyear")), "2024");
    clickrow(years, "4");
    EXPECT_EQ(shown(control<QLabel>(form, "selectedyear")), "4");
}

TEST_F(FrmtimdatTest, EveryTextHasRoomAndTheListsStandUnderTheirWords) {
    scripted.locale.months[8] = "Septembermonth of the year";
    Frmtimdat form(context);
    present(form);
    expectroomfortexts(form);
    const auto& heading = control<QLabel>(form, "Text3");
    EXPECT_EQ(shown(heading), "Day         Month               Year");
    const QFontMetrics metrics(heading.font());
    const struct {
        const char *list, *before;
    } rows[] = {{"daylist", ""}, {"monthlist", "Day         "}, {"yearlist", "Day         Month               "}};
    for (const auto& row : rows) {
        const auto& list = control<QListWidget>(form, row.list);
        const int left = list.mapTo(&form, QPoint()).x() - heading.mapTo(&form, QPoint()).x();
        EXPECT_NEAR(left, metrics.horizontalAdvance(row.before), 2) << row.list;
        EXPECT_GE(list.viewport()->width(), list.sizeHintForColumn(0)) << row.list;
    }
}

}  // namespace
}  // namespace tarvane::tests
