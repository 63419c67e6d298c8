#include "dates/typeddate.h"

#include <gtest/gtest.h>

#include <sstream>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

const Date thisday = makedate(2026, 11, 23);

/// Each row: the form, what is typed one way and another, "|" between, and the date as year-month-day or the beginning
/// of the refusal.
using Row = std::array<const char*, 3>;

void expectrows(const std::vector<Row>& rows, const Locale& locale) {
    for (const auto& [form, texts, expected] : rows) {
        std::istringstream all(texts);
        for (std::string typed; std::getline(all, typed, '|');) {
            const ReadDate read = readdate(typed, {form, ""}, locale, thisday);
            const std::string outcome = read.date ? formatdate(locale, *read.date, "yyyy-mm-dd") : read.refusal;
            EXPECT_TRUE(outcome.starts_with(expected)) << form << " " << typed << " " << outcome;
            EXPECT_NE(read.date.has_value(), !read.refusal.empty()) << typed;
        }
    }
}

constexpr const char *DMY = "DD/MM/YYYY", *MDY = "MM-DD-YYYY", *YMD = "YYYY-MM-DD", *YDM = "YYYY.DD.MM";

TEST(ReadDate, NumbersInTheSystemsOrderOrYearFirstWithOrWithoutMarksBetween) {
    expectrows({{DMY, "05/02/2027| 5.2.2027 |5-2, 2027|2027-2-5|05022027|20270205|050227", "2027-02-05"},
                {MDY, "2/5/2027|2027-02-05|02052027|020527", "2027-02-05"},
                {YMD, "2027/2/5|20270205", "2027-02-05"},
                {YDM, "2027.05.02|20270502", "2027-02-05"},
                {"", "5 2 2027", "2027-02-05"},
                {MDY, "12-31-9999", "9999-12-31"},
                {DMY, "1/1/0100", "0100-01-01"},
                {DMY, "29/02/2028", "2028-02-29"},
                {DMY, "20101205", "That can be meant for two days."},
                {DMY, "522027", "There is no month 20: the date is typed as day/month/year."},
                {MDY, "252027", "There is no month 25:"},
                {YMD, "201011", "The date is typed as year-month-day, such as 2026-11-23."},
                {YMD, "05022027", "There is no month 20:"},
                {DMY, "1122026|5", "The date is typed"}},
               ScriptedLocale());
}

TEST(ReadDate, AYearOfTwoDigitsIsTheNearOneAndOnlyBehindDayAndMonth) {
    expectrows({{DMY, "5/2/76", "2076-02-05"},
                {DMY, "5/2/77", "1977-02-05"},
                {MDY, "2/5/00", "2000-02-05"},
                {DMY, "27-02-05", "2005-02-27"},
                {DMY, "5/2/7|5/2/227", "The year is typed with four digits."},
                {DMY, "5/2/0099", "There is no year before 100."},
                {YMD, "27-02-05|05/02/2027", "The date is typed as year-month-day, the year with four digits."}},
               ScriptedLocale());
}

TEST(ReadDate, WhatIsNoDayIsRefusedNotMovedToAnother) {
    expectrows({{DMY, "31022027", "February 2027 has no day 31."},
                {DMY, "29/2/2027", "February 2027 has no day 29."},
                {DMY, "0/5/2027", "May 2027 has no day 0."},
                {DMY, "12/31/2026", "There is no month 31:"},
                {MDY, "31/12/2026", "There is no month 31:"},
                {DMY, "5/0/2027", "There is no month 0:"},
                {DMY, "5/2|5/2/2027/1|005/2/2027|5:2:2027|tomorrow",
                 "The date is typed as day/month/year, such as 23/11/2026."}},
               ScriptedLocale());
    EXPECT_TRUE(readdate("", {DMY, ""}, ScriptedLocale(), thisday).refusal.starts_with("The date is typed"));
}

TEST(ReadDate, MonthsByName) {
    ScriptedLocale french;
    french.months[1] = "f\u00E9vrier";
    french.months[5] = "juin";
    french.months[6] = "juillet";
    french.shortmonths[6] = "juil.";
    expectrows({{DMY, "5 f\u00C9vrier 2027|5f\u00E9v27", "2027-02-05"},
                {MDY, "f\u00E9v. 5, 2027", "2027-02-05"},
                {YMD, "2027 f\u00E9vrier 5", "2027-02-05"},
                {DMY, "5 juil. 2027", "2027-07-05"},
                {DMY, "5 jui 2027", "\"jui\" can be meant for two months."},
                {DMY, "5 ju 2027", "There is no month \"ju\"."},
                {DMY, "31 juin 2027", "juin 2027 has no day 31."},
                {YMD, "27 juin 5", "The year is typed with four digits."},
                {DMY, "2027 juin 2027|juin juin 5", "The date is typed"}},
               french);
}

TEST(ReadDate, EveryDayComesBackFromItsOwnText) {
    const ScriptedLocale locale;
    for (const char* form : {DMY, MDY, YMD, YDM})
        for (Date date = makedate(2027, 12, 25); date < makedate(2029, 1, 5); date += std::chrono::days(1)) {
            const DateConventions conventions{form, ""};
            EXPECT_EQ(readdate(typeddate(date, conventions, locale), conventions, locale, thisday).date, date);
        }
}

}  // namespace
}  // namespace tarvane
