#include "dates/dateformats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

const Date today = makedate(2026, 11, 22);

ScriptedLocale machine(const std::string& order, const std::string& separator) {
    ScriptedLocale locale;
    locale.order = order;
    locale.separator = separator;
    return locale;
}

/// A form written with "/" in another separator.
std::string separated(std::string form, const std::string& separator) {
    std::replace(form.begin(), form.end(), '/', separator[0]);
    return form;
}

std::string probedform(ScriptedLocale locale) {
    ProbedDate probed;
    return CheckDateFormat(locale, today, probed).dateformat;
}

TEST(DateProbe, EveryOrderAndSeparator) {
    using Row = std::pair<const char*, const char*>;
    for (const char* separator : {"/", "-", "."}) {
        for (const auto& [order, form] :
             {Row{"DMY", "DD/MM/YYYY"}, Row{"MDY", "MM/DD/YYYY"}, Row{"YMD", "YYYY/MM/DD"}, Row{"YDM", "YYYY/DD/MM"}}) {
            ProbedDate probed;
            const DateConventions found = CheckDateFormat(machine(order, separator), today, probed);
            EXPECT_EQ(found.dateformat, separated(form, separator));
            EXPECT_EQ(found.dateseparator, separator);
            EXPECT_EQ(std::tuple(probed.day, probed.month, probed.year, probed.monthname),
                      std::tuple(22, 11, 2026, "November"));
        }
    }
}

// The word alone decides, whatever the machine made of the test text.
TEST(DateProbe, NineLanguages) {
    const std::tuple<const char*, const char*, std::string> words[] = {
        {"Wed", "Thu", "ENGLISH"}, {"az.", "og.", "BASQUE"},  {"mer.", "jeu", "FRENCH"},
        {"Mi", "Do", "GERMAN"},    {"mié", "jue", "SPANISH"}, {"qua", "qui", "PORTUGESE"},
        {"on", "to", "NYNORSK"},   {"mer", "gio", "ITALIAN"}, {"wo", "do", "DUTCH"}};
    for (const std::string separator : {"-", "/", "."}) {
        for (const bool yearfirst : {true, false}) {
            const std::string daysfirst = separated(yearfirst ? "YYYY/DD/MM" : "DD/MM/YYYY", separator);
            const std::string monthsfirst = separated(yearfirst ? "YYYY/MM/DD" : "MM/DD/YYYY", separator);
            for (const auto& [wednesday, thursday, language] : words) {
                const bool swapped = yearfirst && separator == "-" && language == "DUTCH";
                const bool norwegian = !yearfirst && separator == "." && language == "NYNORSK";
                for (const char* word : {wednesday, thursday}) {
                    ScriptedLocale locale = machine(yearfirst ? "YMD" : "DMY", separator);
                    locale.shortdays.fill(word);
                    EXPECT_EQ(probedform(locale), (word == wednesday) == swapped ? monthsfirst : daysfirst) << word;
                    EXPECT_EQ(readdayword(yearfirst ? 1 : 3, separator, word).value().language,
                              norwegian ? "NORWEGIAN" : language);
                }
            }
        }
    }
}

TEST(DateProbe, UnknownWordsStopTheProbe) {
    for (const char* word : {"ons", "WED", "Wed.", " Wed", "jeu.", "mie", "", "Wednesday"}) {
        ScriptedLocale locale;
        locale.shortdays.fill(word);
        EXPECT_EQ(probedform(locale), "") << word;
    }
    EXPECT_FALSE(readdayword(2, "/", "Wed") || readdayword(3, ":", "Wed") || readdayword(3, "", "Wed"));
}

// The machine's own reading of one text decides, which in the last row is a year-first text.
TEST(DateProbe, TestTextOfEachRow) {
    using Row = std::tuple<const char*, const char*, const char*>;
    for (const auto& [order, separator, testtext] :
         {Row{"YMD", "-", "2001-03-01"}, Row{"YMD", "/", "2001/03/01"}, Row{"YMD", ".", "2001.03.01"},
          Row{"DMY", "-", "03-01-2001"}, Row{"DMY", "/", "03/01/2001"}, Row{"DMY", ".", "2001.03.01"}}) {
        ScriptedLocale locale = machine(order, separator);
        locale.readings[testtext] = makedate(2001, 1, 3);
        const std::string daysfirst = probedform(locale);
        EXPECT_LT(daysfirst.find("DD"), daysfirst.find("MM")) << testtext;
        locale.readings[testtext] = makedate(2001, 3, 1);
        const std::string monthsfirst = probedform(locale);
        EXPECT_LT(monthsfirst.find("MM"), monthsfirst.find("DD")) << testtext;
    }
}

TEST(DateProbe, Separators) {
    using Text = std::optional<std::string>;
    // today's text overrules the system, of several the last that hits wins, and none leaves the system's
    using Row = std::tuple<Text, const char*, const char*, const char*>;
    for (const auto& [system, todaytext, separator, form] :
         {Row{"-", "22/11/2026", "/", "DD/MM/YYYY"}, Row{Text{}, "22-11-2026", "-", "DD-MM-YYYY"},
          Row{"/", "22/11-2026", "-", "DD-MM-YYYY"}, Row{"/", "22-11.2026/", ".", "DD.MM.YYYY"},
          Row{"/", "22 11 2026", "/", "DD/MM/YYYY"}, Row{" ", "22 11 2026", " ", ""}, Row{Text{}, "22 11 2026", "", ""},
          Row{"/", "Sun 2026/11/22", "/", "DD/MM/YYYY"}}) {
        ScriptedLocale locale;
        locale.infotexts[29] = system;
        locale.shorttext = todaytext;
        locale.readings[todaytext] = today;
        ProbedDate probed;
        const DateConventions found = CheckDateFormat(locale, today, probed);
        EXPECT_EQ(found.dateseparator, separator) << todaytext;
        EXPECT_EQ(found.dateformat, form) << todaytext;
    }
}

TEST(DateProbe, UnreadableTodayYieldsMonthZero) {
    ScriptedLocale locale;
    locale.shorttext = "Sunday";
    ProbedDate probed{5, 6, 7, "x"};
    CheckDateFormat(locale, today, probed);
    EXPECT_EQ(std::tuple(probed.day, probed.month, probed.year), std::tuple(5, 0, 7)) << "day and year stay";
}

TEST(DatePatterns, EveryPieceInEitherCase) {
    const ScriptedLocale locale;
    using Row = std::pair<const char*, const char*>;
    for (const auto& [pattern, text] :
         {Row{"d", "5"}, Row{"dd", "05"}, Row{"DDD", "Tue"}, Row{"dddd", "Tuesday"}, Row{"m", "3"}, Row{"MM", "03"},
          Row{"MMM", "Mar"}, Row{"Mmmm", "March"}, Row{"y", "65"}, Row{"yy", "24"}, Row{"yyy", "2465"},
          Row{"dd mmmm yyyy (dddd)", "05 March 2024 (Tuesday)"}, Row{"YYYYMMDD", "20240305"}, Row{"[dd/mm]", "[05/03]"},
          Row{"...", "..."}, Row{"ddddd", "Tuesday5"}})
        EXPECT_EQ(formatdate(locale, makedate(2024, 3, 5), pattern), text) << pattern;
    EXPECT_EQ(formatdate(locale, makedate(107, 1, 1), "yy yyyy"), "07 0107");
    EXPECT_EQ(formatdatetext(locale, "05/03/2024", "dddd"), "Tuesday");
    EXPECT_EQ(formatdatetext(locale, "31/02/2024", "dddd"), "31/02/2024");
}

TEST(DateCaptions, TwelveForms) {
    ScriptedLocale locale;
    locale.months[2] = "März";
    const Date date = makedate(2024, 3, 5);
    for (const char* separator : {"/", "-", "."}) {
        using Row = std::tuple<const char*, const char*, bool>;
        for (const auto& [pattern, caption, atstart] :
             {Row{"MM/DD/YYYY", "März 5 2024", true}, Row{"DD/MM/YYYY", "5 März 2024", true},
              Row{"YYYY/MM/DD", "2024 März 5", false}, Row{"YYYY/DD/MM", "2024 5 März", *separator != '.'}}) {
            const DateConventions conventions{separated(pattern, separator), separator};
            EXPECT_EQ(DateCaption(locale, conventions, date), caption) << conventions.dateformat;
            EXPECT_EQ(LongDateText(locale, conventions, date),
                      atstart ? std::optional<std::string>{caption} : std::nullopt)
                << conventions.dateformat;
        }
    }
}

}  // namespace
}  // namespace tarvane
