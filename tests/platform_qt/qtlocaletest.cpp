#include "platform/qt/qtlocale.h"

#include <gtest/gtest.h>

#include <tuple>

#include "dates/dateformats.h"

namespace tarvane {
namespace {

QtLocale named(const char* name) {
    return QtLocale{QLocale(QString::fromLatin1(name))};
}

std::string probe(const QtLocale& locale, Date today = makedate(2026, 11, 22)) {
    ProbedDate probed;
    const std::string found = CheckDateFormat(locale, today, probed).dateformat;
    EXPECT_EQ(std::tuple(probed.year, probed.month, probed.day),
              std::tuple(yearof(today), monthof(today), dayof(today)));
    return found;
}

TEST(QtLocale, TheProbeFindsItsOrder) {
    using Row = std::tuple<const char*, const char*, const char*>;
    for (const auto& [name, form, shortdate] :
         {Row{"C", "DD/MM/YYYY", "05/03/2024"}, Row{"en_GB", "DD/MM/YYYY", "05/03/2024"},
          Row{"en_US", "MM/DD/YYYY", "3/5/2024"}, Row{"en_ZA", "YYYY/MM/DD", "2024/03/05"},
          Row{"en_CA", "YYYY-MM-DD", "2024-03-05"}, Row{"de_DE", "DD.MM.YYYY", "05.03.2024"},
          Row{"nl_NL", "DD-MM-YYYY", "05-03-2024"}, Row{"nl_BE", "DD/MM/YYYY", "5/03/2024"},
          Row{"eu_ES", "YYYY/MM/DD", "2024/3/5"}, Row{"ja_JP", "", "2024/03/05"}, Row{"pl_PL", "", "5.03.2024"}}) {
        EXPECT_EQ(probe(named(name)), form) << name;
        EXPECT_EQ(named(name).shortdate(makedate(2024, 3, 5)), shortdate) << name;
    }
}

/// Every territory of the nine languages passes, whatever the day of the year on which the program starts.
TEST(QtLocale, EveryTerritoryPasses) {
    std::size_t count = 0;
    for (const auto language :
         {QLocale::English, QLocale::Basque, QLocale::French, QLocale::German, QLocale::Spanish, QLocale::Portuguese,
          QLocale::NorwegianBokmal, QLocale::Italian, QLocale::Dutch, QLocale::NorwegianNynorsk}) {
        for (const QLocale& locale : QLocale::matchingLocales(language, QLocale::LatinScript, QLocale::AnyTerritory)) {
            const std::string form = probe(QtLocale{locale});
            EXPECT_NE(form, "") << locale.name().toStdString();
            for (const Date day : {makedate(2001, 1, 1), makedate(2028, 12, 31)})
                EXPECT_EQ(probe(QtLocale{locale}, day), form) << locale.name().toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 100U);
}

/// What the system writes it can read, on days all over four years and in every locale there is.
TEST(QtLocale, ReadsWhatItWrites) {
    for (const QLocale& system :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const QtLocale locale{system};
        for (Date day = makedate(2024, 1, 1); day < makedate(2028, 1, 1); day += std::chrono::days{43})
            ASSERT_EQ(locale.parsedate(locale.shortdate(day)), day) << system.name().toStdString();
    }
}

TEST(QtLocale, ReadsDates) {
    const QtLocale british = named("en_GB"), american = named("en_US");
    for (const char* text : {"03-01-2001", "2001.03.01"}) {
        EXPECT_EQ(british.parsedate(text), makedate(2001, 1, 3));
        EXPECT_EQ(american.parsedate(text), makedate(2001, 3, 1));
    }
    EXPECT_EQ(british.parsedate("1/2/24"), makedate(2024, 2, 1));
    EXPECT_EQ(british.parsedate("1/2/30"), makedate(1930, 2, 1));
    for (const char* text :
         {"", "29/02/2023", "00/01/2024", "1/13/2024", "1/2", "1/2/3/4", "1 February 2024", "20240201", "12345/01/02",
          "1/257/2024", "257/1/2024", "1//2024", "-1/2/2024", "٠١/٠٢/٢٠٢٤"})
        EXPECT_FALSE(british.parsedate(text)) << text;
}

TEST(QtLocale, DayWordsAreAsShortAsTheProbes) {
    EXPECT_EQ(named("de_DE").dayabbreviation(0) + named("nb_NO").dayabbreviation(6), "Solø");
    EXPECT_EQ(named("de_DE").dayletter(0) + named("de_DE").dayletter(3), "SM");
    EXPECT_EQ(named("zh_CN").dayletter(0) + named("zh_CN").dayletter(1), "\u65E5\u4E00");
    EXPECT_EQ(named("pt_PT").dayabbreviation(1) + named("sv_SE").dayabbreviation(4), "segtors");
}

TEST(QtLocale, InformationTexts) {
    const QtLocale british{QLocale::c()};
    EXPECT_EQ(british.systemid(), 2057);
    using Row = std::pair<int, const char*>;
    for (const auto& [id, text] : {Row{1, "0809"}, Row{29, "/"}, Row{31, "dd/MM/yyyy"}, Row{33, "1"}, Row{34, "1"},
                                   Row{36, "1"}, Row{4105, "1"}, Row{4097, "English"}, Row{4108, "0"}, Row{4109, "2"}})
        EXPECT_EQ(british.info(2057, id), text) << id;
    EXPECT_FALSE(british.info(2057, 9999));
    EXPECT_FALSE(british.info(1033, 29));
    EXPECT_EQ(*named("en_US").info(1033, 33) + *named("en_US").info(1033, 4108), "06");
    EXPECT_EQ(*named("eu_ES").info(1069, 33) + *named("eu_ES").info(1069, 34), "22");
}

TEST(QtLocale, TheDateCategoryDecides) {
    const std::pair<const char*, QByteArray> before[] = {
        {"LC_ALL", qgetenv("LC_ALL")}, {"LC_TIME", qgetenv("LC_TIME")}, {"LANG", qgetenv("LANG")}};
    qunsetenv("LC_ALL");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LC_TIME", "de_DE.UTF-8");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("de_DE"));
    qunsetenv("LC_TIME");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("en_US"));
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("en_GB"));
    for (const auto& [name, value] : before)
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
}

}  // namespace
}  // namespace tarvane
