#include "mainview/dateentry.h"

#include <gtest/gtest.h>

#include <tuple>

#include "dates/summertime.h"
#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

struct DateEntryTest : LoadedMain {
    DateEntry open() { return opendateentry(context); }
    void pickandconfirm(int year, int month, int day) {
        DateEntry entry = open();
        pickdate(context, entry, makedate(year, month, day));
        EXPECT_TRUE(confirmpicker(context, entry));
    }
};

TEST_F(DateEntryTest, OpensOnTodayWhateverDayIsOnShowAndResetBringsItBackIntoThePickerAlone) {
    pickandconfirm(2030, 1, 31);
    DateEntry entry = open();
    EXPECT_EQ(entry.pickeddate, makedate(2024, 4, 9));
    EXPECT_EQ(predictedday(entry.lists, scripted.locale), "(Tuesday)");

    choosemonth(entry.lists, 7);
    scripted.clock.set(2025, 1, 1, 0, 0, 1);
    resetpicker(context, entry);
    EXPECT_EQ(entry.pickeddate, makedate(2025, 1, 1));
    EXPECT_EQ(entry.txtDayName, "(Wednesday)");
    EXPECT_EQ(entry.lists.selected.month, 8);
    EXPECT_EQ(session.onshow.tidedate, makedate(2030, 1, 31));
}

TEST_F(DateEntryTest, TheYearsStartFromTheLastFourCharactersOfTodaysText) {
    for (const auto& [shorttext, first] : {std::pair{"09/04/2024", "2024"}, std::pair{"2024-04-09", "4"},
                                           std::pair{"09 Apr 24", "0"}, std::pair{"", "0"}}) {
        scripted.locale.shorttext = shorttext;
        const DateLists lists = open().lists;
        EXPECT_EQ(lists.yearlist.front(), first) << shorttext;
        EXPECT_EQ(lists.yearlist.size(), 51U);
        EXPECT_EQ(lists.selected.year, 2024);
    }
}

TEST_F(DateEntryTest, ThePickersFirstAndLastDateComeOnShow) {
    pickandconfirm(100, 1, 1);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 01 January 0100 (Friday)");
    EXPECT_EQ(session.daytable.daylines[2], "Date : 1/1/100");
    pickandconfirm(9999, 12, 31);
    EXPECT_EQ(session.onshow.tidedayofyear, 365);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 31 December 9999 (Friday)");
}

TEST_F(DateEntryTest, ATypedDateComesInHandAndARefusedOneIsNotConfirmed) {
    DateEntry entry = open();
    EXPECT_EQ(entry.typed, "09/04/2024");
    typedate(context, entry, "5/2/27");
    EXPECT_EQ(entry.pickeddate, makedate(2027, 2, 5));
    EXPECT_EQ(entry.txtDayName, "(Friday)");
    EXPECT_EQ(entry.typed, "5/2/27") << "what is typed isn't put in order while it is typed";
    EXPECT_TRUE(stepdate(context, entry, -5));
    EXPECT_EQ(entry.typed, "31/01/2027");

    typedate(context, entry, "31022027");
    EXPECT_EQ(entry.refusal, "February 2027 has no day 31.");
    EXPECT_EQ(entry.txtDayName, "");
    EXPECT_FALSE(stepdate(context, entry, 1));
    EXPECT_FALSE(confirmpicker(context, entry));
    EXPECT_EQ(scripted.messages.beeps, 1);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 9));
    resetpicker(context, entry);
    EXPECT_TRUE(confirmpicker(context, entry));

    for (const auto& [date, days] : {std::pair{makedate(9999, 12, 31), 1}, {makedate(100, 1, 1), -1}}) {
        pickdate(context, entry, date);
        EXPECT_TRUE(stepdate(context, entry, days));
        EXPECT_EQ(entry.pickeddate, date);
    }
}

TEST_F(DateEntryTest, TheListsConfirmTheirOwnDateAndDropTheMonth) {
    const std::string before = session.daytable.daystide1;
    session.month.monthspredictions = {"a month"};
    DateEntry entry = open();
    pickdate(context, entry, makedate(2031, 5, 5));
    chooseyear(entry.lists, 4);
    choosemonth(entry.lists, 11);
    chooseday(entry.lists, 30);
    confirmlists(context, entry);
    EXPECT_EQ(session.view.tidedatebox, "Date   : 31 December 2028 (Sunday)");
    EXPECT_NE(session.daytable.daystide1, before);
    EXPECT_TRUE(session.month.monthspredictions.empty());
}

TEST_F(DateEntryTest, TheCorrectionLineFollowsTheUsersChoice) {
    using Row = std::tuple<std::int16_t, int, const char*>;
    for (const auto& [choice, month, line] : {Row{-1, 7, adjustedline}, Row{-1, 12, uncorrectedline},
                                              Row{0, 7, uncorrectedoffline}, Row{1, 7, uncorrectedoffline}}) {
        session.settings.currentsummer = session.settings.summerflag2 = choice;
        pickandconfirm(2024, month, 1);
        EXPECT_TRUE(session.view.disclaimer.ends_with("approximate\r\n" + std::string(line))) << choice << month;
    }
}

}  // namespace
}  // namespace tarvane::tests
