#include "dates/dateformats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

const Date today = makedate(2026, 11, 22);

ScriptedLocale machine(std::string order, std::string separator) {
    ScriptedLocale locale;
    locale.order = std::move(order);
    locale.separator = std::move(separator);
    return locale;
}

/// A form written with "/" in another separator.
std::string separated(std::string form, const char* separator) {
    std::replace(form.begin(), form.end(), '/', *separator);
    return form;
}

TEST(DateProbe, EveryOrderAndSeparator) {
    struct Row {
        const char* order;
        const char* separator;
        const char* dateformat;
    };
    for (const Row& row :
         {Row{"DMY", "/", "DD/MM/YYYY"}, Row{"DMY", "-", "DD-MM-YYYY"}, Row{"DMY", ".", "DD.MM.YYYY"},
          Row{"MDY", "/", "MM/DD/YYYY"}, Row{"MDY", "-", "MM-DD-YYYY"}, Row{"MDY", ".", "MM.DD.YYYY"},
          Row{"YMD", "/", "YYYY/MM/DD"}, Row{"YMD", "-", "YYYY-MM-DD"}, Row{"YMD", ".", "YYYY.MM.DD"},
          Row{"YDM", "/", "YYYY/DD/MM"}, Row{"YDM", "-", "YYYY-DD-MM"}, Row{"YDM", ".", "YYYY.DD.MM"}}) {
        ProbedDate probed;
        const DateConventions found = CheckDateFormat(machine(row.order, row.separator), today, probed);
        EXPECT_EQ(found.dateformat, row.dateformat) << row.order << row.separator;
        EXPECT_EQ(found.dateseparator, row.separator);
        EXPECT_EQ(probed.day, 22);
        EXPECT_EQ(probed.month, 11);
        EXPECT_EQ(probed.year, 2026);
        EXPECT_EQ(probed.monthname, "November");
    }
}

struct Word {
    const char* wednesday;
    const char* thursday;
    const char* language;
};

constexpr Word words[] = {{"Wed", "Thu", "ENGLISH"}, {"az.", "og.", "BASQUE"},  {"mer.", "jeu", "FRENCH"},
                          {"Mi", "Do", "GERMAN"},    {"mié", "jue", "SPANISH"}, {"qua", "qui", "PORTUGESE"},
                          {"on", "to", "NYNORSK"},   {"mer", "gio", "ITALIAN"}, {"wo", "do", "DUTCH"}};

std::string probedform(ScriptedLocale locale, const char* dayword) {
    locale.shortdays.fill(dayword);
    ProbedDate probed;
    return CheckDateFormat(locale, today, probed).dateformat;
}

// The word alone decides, whatever the machine made of the test text.
TEST(DateProbe, NineLanguages) {
    for (const char* separator : {"-", "/", "."}) {
        for (const char* order : {"YMD", "DMY"}) {
            const bool yearfirst = order[0] == 'Y';
            const std::string s = separator;
            const std::string daysfirst = separated(yearfirst ? "YYYY/DD/MM" : "DD/MM/YYYY", separator);
            const std::string monthsfirst = separated(yearfirst ? "YYYY/MM/DD" : "MM/DD/YYYY", separator);
            for (const Word& word : words) {
                const ScriptedLocale locale = machine(order, separator);
                const bool swapped = yearfirst && s == "-" && std::string{word.language} == "DUTCH";
                EXPECT_EQ(probedform(locale, word.wednesday), swapped ? monthsfirst : daysfirst) << word.wednesday;
                EXPECT_EQ(probedform(locale, word.thursday), swapped ? daysfirst : monthsfirst) << word.thursday;

                const std::string language =
                    !yearfirst && s == "." && std::string{word.language} == "NYNORSK" ? "NORWEGIAN" : word.language;
                for (const char* either : {word.wednesday, word.thursday}) {
                    EXPECT_EQ(readdayword(yearfirst ? 1 : 3, separator, either).value().language, language);
                }
            }
        }
    }
}

TEST(DateProbe, UnknownWordsStopTheProbe) {
    for (const char* word : {"ons", "tor", "wed", "WED", "Wed.", " Wed", "jeu.", "mie", "di", "", "Wednesday"}) {
        EXPECT_EQ(probedform(machine("DMY", "/"), word), "") << word;
        EXPECT_FALSE(readdayword(3, "/", word)) << word;
    }
    EXPECT_FALSE(readdayword(2, "/", "Wed"));
    EXPECT_FALSE(readdayword(3, ":", "Wed"));
    EXPECT_FALSE(readdayword(3, "", "Wed"));
}

// The machine's own reading of one text decides, which in the last row is a year-first text.
TEST(DateProbe, TestTextOfEachRow) {
    struct Row {
        const char* order;
        const char* separator;
        const char* testtext;
    };
    for (const Row& row :
         {Row{"YMD", "-", "2001-03-01"}, Row{"YMD", "/", "2001/03/01"}, Row{"YMD", ".", "2001.03.01"},
          Row{"DMY", "-", "03-01-2001"}, Row{"DMY", "/", "03/01/2001"}, Row{"DMY", ".", "2001.03.01"}}) {
        ScriptedLocale locale = machine(row.order, row.separator);
        const auto formread = [&](std::optional<Date> reading) {
            ProbedDate probed;
            locale.readings[row.testtext] = reading;
            return CheckDateFormat(locale, today, probed).dateformat;
        };
        const std::string daysfirst = formread(makedate(2001, 1, 3));
        EXPECT_LT(daysfirst.find("DD"), daysfirst.find("MM")) << row.testtext;
        const std::string monthsfirst = formread(makedate(2001, 3, 1));
        EXPECT_LT(monthsfirst.find("MM"), monthsfirst.find("DD")) << row.testtext;
        EXPECT_EQ(formread(makedate(2001, 1, 5)), "") << "a Friday";
        EXPECT_EQ(formread(std::nullopt), "") << "no date";
    }
}

TEST(DateProbe, Separators) {
    struct Row {
        std::optional<std::string> system;
        const char* todaytext;
        const char* separator;
        const char* dateformat;
    };
    for (const Row& row : {
             Row{"-", "22/11/2026", "/", "DD/MM/YYYY"},           // today's text overrules the system
             Row{std::nullopt, "22-11-2026", "-", "DD-MM-YYYY"},  // the system doesn't tell
             Row{"/", "22/11-2026", "-", "DD-MM-YYYY"},           // the last that hits wins
             Row{"/", "22-11.2026/", ".", "DD.MM.YYYY"},
             Row{"/", "22 11 2026", "/", "DD/MM/YYYY"},  // none shows: the system's stays
             Row{" ", "22 11 2026", " ", ""}, Row{std::nullopt, "22 11 2026", "", ""},
             Row{"/", "Sun 2026/11/22", "/", "DD/MM/YYYY"},  // year in the middle counts as last
         }) {
        ScriptedLocale locale;
        locale.infotexts[29] = row.system;
        locale.shorttext = row.todaytext;
        locale.readings[row.todaytext] = today;
        ProbedDate probed;
        const DateConventions found = CheckDateFormat(locale, today, probed);
        EXPECT_EQ(found.dateseparator, row.separator) << row.todaytext;
        EXPECT_EQ(found.dateformat, row.dateformat) << row.todaytext;
        EXPECT_EQ(probed.month, 11);
    }
}

TEST(DateProbe, UnreadableTodayYieldsMonthZero) {
    ScriptedLocale locale;
    locale.shorttext = "Sunday";
    ProbedDate probed{5, 6, 7, "x"};
    CheckDateFormat(locale, today, probed);
    EXPECT_EQ(probed.month, 0);
    EXPECT_EQ(probed.day, 5) << "day and year are not touched";
    EXPECT_EQ(probed.year, 7);
}

TEST(DatePatterns, EveryPieceInEitherCase) {
    ScriptedLocale locale;
    const Date date = makedate(2024, 3, 5);
    struct Row {
        const char* pattern;
        const char* text;
    };
    for (const Row& row :
         {Row{"d", "5"}, Row{"dd", "05"}, Row{"ddd", "Tue"}, Row{"dddd", "Tuesday"}, Row{"DDD", "Tue"}, Row{"m", "3"},
          Row{"MM", "03"}, Row{"MMM", "Mar"}, Row{"Mmmm", "March"}, Row{"y", "65"}, Row{"yy", "24"}, Row{"yyy", "2465"},
          Row{"YYYY", "2024"}, Row{"dd mmmm yyyy (dddd)", "05 March 2024 (Tuesday)"}, Row{"YYYYMMDD", "20240305"},
          Row{"[dd/mm]", "[05/03]"}, Row{"", ""}, Row{"...", "..."}, Row{"ddddd", "Tuesday5"}}) {
        EXPECT_EQ(formatdate(locale, date, row.pattern), row.text) << row.pattern;
    }
    EXPECT_EQ(formatdate(locale, makedate(107, 1, 1), "yy yyyy"), "07 0107");
    EXPECT_EQ(formatdatetext(locale, "05/03/2024", "dddd"), "Tuesday");
    EXPECT_EQ(formatdatetext(locale, "31/02/2024", "dddd"), "31/02/2024");
    EXPECT_EQ(formatdatetext(locale, "tomorrow", "yyyy"), "tomorrow");
}

TEST(DateCaptions, TwelveForms) {
    ScriptedLocale locale;
    locale.months[2] = "März";
    const Date date = makedate(2024, 3, 5);
    for (const char* separator : {"/", "-", "."}) {
        const auto check = [&](const char* pattern, const char* caption, bool atstart) {
            const std::string form = separated(pattern, separator);
            const DateConventions conventions{form, separator};
            EXPECT_EQ(DateCaption(locale, conventions, date), caption) << form;
            const std::optional<std::string> expected = atstart ? std::optional<std::string>{caption} : std::nullopt;
            EXPECT_EQ(LongDateText(locale, conventions, date), expected) << form;
        };
        check("MM/DD/YYYY", "März 5 2024", true);
        check("DD/MM/YYYY", "5 März 2024", true);
        check("YYYY/MM/DD", "2024 März 5", false);
        check("YYYY/DD/MM", "2024 5 März", *separator != '.');
    }
}

}  // namespace
}  // namespace tarvane
