#include "mainview/dateentry.h"

#include <gtest/gtest.h>

#include "dates/summertime.h"
#include "mainview/mainfixture.h"

namespace tarvane::tests {
namespace {

class DateEntryTest : public testing::Test, protected MainFixture {
  protected:
    DateEntryTest() { load(); }
    DateEntry open() { return opendateentry(context.services); }
    void pickandconfirm(int year, int month, int day) {
        DateEntry entry = open();
        pickdate(entry, scripted.locale, {year, month, day});
        confirmpicker(context, entry);
    }
};

TEST_F(DateEntryTest, OpensOnTodayWhateverDayIsOnShow) {
    pickandconfirm(2030, 1, 31);
    const DateEntry entry = open();
    EXPECT_EQ(entry.pickeddate, makedate(2024, 4, 9));
    EXPECT_EQ(entry.yearstart, makedate(2024, 1, 1));
    EXPECT_EQ(entry.txtDayName, "(Tuesday)");
    const DateLists& lists = entry.lists;
    ASSERT_EQ(lists.yearlist.size(), 51U);
    ASSERT_EQ(lists.monthlist.size(), 12U);
    EXPECT_EQ(lists.monthlist.front(), "January");
    EXPECT_EQ(lists.monthlist.back(), "December");
    EXPECT_EQ(lists.daylist.size(), 30U);
    EXPECT_EQ(predictedday(lists, scripted.locale), "(Tuesday)");
}

TEST_F(DateEntryTest, TheYearsStartFromTheLastFourCharactersOfTodaysText) {
    const struct {
        const char *shorttext, *first, *last;
    } rows[] = {{"09/04/2024", "2024", "2074"},
                {"2024-04-09", "4", "54"},
                {"2024/11/22", "1", "51"},
                {"09 Apr 24", "0", "50"},
                {"2024\u5e744\u67089\u65e5", "4", "54"},
                {"7", "7", "57"},
                {"", "0", "50"}};
    for (const auto& row : rows) {
        scripted.locale.shorttext = row.shorttext;
        const DateEntry entry = open();
        EXPECT_EQ(entry.lists.yearlist.front(), row.first) << row.shorttext;
        EXPECT_EQ(entry.lists.yearlist.back(), row.last) << row.shorttext;
        EXPECT_EQ(entry.lists.selected.year, 2024) << row.shorttext;
    }
}

TEST_F(DateEntryTest, ADayPastTheMonthsEndBecomesItsLast) {
    DateLists lists = open().lists;
    const struct {
        int year, month, day;
        std::size_t days;
    } rows[] = {{2024, 2, 29, 29}, {2025, 2, 28, 28}, {2025, 3, 31, 31}, {2025, 4, 30, 30}, {2074, 12, 31, 31}};
    for (const auto& row : rows) {
        chooseyear(lists, 0);
        choosemonth(lists, 0);
        chooseday(lists, 30);
        choosemonth(lists, row.month - 1);
        chooseyear(lists, row.year - 2024);
        EXPECT_EQ(lists.selected.year, row.year);
        EXPECT_EQ(lists.selected.day, row.day) << row.year << " " << row.month;
        EXPECT_EQ(lists.daylist.size(), row.days);
        EXPECT_EQ(lists.daylist.back(), std::to_string(row.days));
    }
    EXPECT_EQ(predictedday(lists, scripted.locale), "(Monday)");
}

TEST_F(DateEntryTest, ThePickersDateComesOnShow) {
    const struct {
        int year, month, day, dayofyear;
        const char* tidedatebox;
    } rows[] = {{2024, 1, 1, 1, "Date   : 01 January 2024 (Monday)"},
                {2024, 12, 31, 366, "Date   : 31 December 2024 (Tuesday)"},
                {2000, 2, 29, 60, "Date   : 29 February 2000 (Tuesday)"},
                {100, 1, 1, 1, "Date   : 01 January 0100 (Friday)"},
                {9999, 12, 31, 365, "Date   : 31 December 9999 (Friday)"}};
    scripted.locale.order = "YMD";
    for (const auto& row : rows) {
        pickandconfirm(row.year, row.month, row.day);
        const DateOnShow& onshow = session.onshow;
        EXPECT_EQ(onshow.tidedate, makedate(row.year, row.month, row.day));
        EXPECT_EQ((std::vector{onshow.tideyear, onshow.tidemonth, onshow.tideday, onshow.tidedayofyear}),
                  (std::vector<double>{row.year * 1.0, row.month * 1.0, row.day * 1.0, row.dayofyear * 1.0}));
        EXPECT_EQ(session.view.tidedatebox, row.tidedatebox);
        EXPECT_EQ(session.daytable.daylines[2], "Date : " + std::to_string(row.day) + "/" + std::to_string(row.month) +
                                                    "/" + std::to_string(row.year));
    }
}

TEST_F(DateEntryTest, ConfirmingComputesTheDayAndDropsTheMonth) {
    const std::string before = session.daytable.daystide1;
    session.month.monthspredictions = {"a month"};
    session.month.monthcells[31][2][8] = "4.2";
    session.view.monthvisible = true;
    pickandconfirm(2024, 4, 16);
    EXPECT_NE(session.daytable.daystide1, before);
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_EQ(session.month.monthcells[31][2][8], "");
    EXPECT_FALSE(session.view.monthvisible);
    pickandconfirm(2024, 4, 9);
    EXPECT_EQ(session.daytable.daystide1, before);
}

TEST_F(DateEntryTest, TheListsConfirmTheirOwnDate) {
    DateEntry entry = open();
    pickdate(entry, scripted.locale, {2031, 5, 5});
    chooseyear(entry.lists, 4);
    choosemonth(entry.lists, 11);
    chooseday(entry.lists, 30);
    confirmlists(context, entry);
    EXPECT_EQ(session.onshow.tidedate, makedate(2028, 12, 31));
    EXPECT_EQ(session.onshow.tidedayofyear, 366);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 31 December 2028 (Sunday)");

    scripted.locale.order = "YMD";
    scripted.locale.separator = "-";
    scripted.clock.set(2024, 11, 22);
    entry = open();
    confirmlists(context, entry);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 11, 22));
    chooseyear(entry.lists, 0);
    confirmlists(context, entry);
    EXPECT_EQ(session.onshow.tidedate, makedate(1, 11, 22)) << "a year-first system offers the first century";
}

TEST_F(DateEntryTest, TheCorrectionLineFollowsTheUsersChoice) {
    const struct {
        std::int16_t currentsummer;
        int month, day;
        const char* line;
    } rows[] = {{-1, 3, 30, uncorrectedline},    {-1, 3, 31, adjustedline},     {-1, 10, 26, adjustedline},
                {-1, 10, 27, uncorrectedline},   {-1, 12, 25, uncorrectedline}, {0, 7, 1, uncorrectedoffline},
                {0, 12, 25, uncorrectedoffline}, {1, 7, 1, uncorrectedoffline}};
    for (const auto& row : rows) {
        session.settings.currentsummer = session.settings.summerflag2 = row.currentsummer;
        pickandconfirm(2024, row.month, row.day);
        EXPECT_EQ(session.view.disclaimer,
                  "Heights in Metres, all data are derived and should therefore be considered as approximate\r\n" +
                      std::string(row.line))
            << row.currentsummer << " " << row.month << "/" << row.day;
    }
}

TEST_F(DateEntryTest, ResetBringsTodayBackIntoThePickerAlone) {
    DateEntry entry = open();
    pickdate(entry, scripted.locale, {1999, 12, 31});
    EXPECT_EQ(entry.txtDayName, "(Friday)");
    choosemonth(entry.lists, 7);
    scripted.clock.set(2025, 1, 1, 0, 0, 1);
    resetpicker(entry, context.services);
    EXPECT_EQ(entry.pickeddate, makedate(2025, 1, 1));
    EXPECT_EQ(entry.yearstart, makedate(2025, 1, 1));
    EXPECT_EQ(entry.txtDayName, "(Wednesday)");
    EXPECT_EQ(entry.lists.selected.month, 8);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
}

}  // namespace
}  // namespace tarvane::tests
