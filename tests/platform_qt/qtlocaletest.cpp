#include "platform/qt/qtlocale.h"

#include <gtest/gtest.h>

#include <set>

#include "dates/dateformats.h"

namespace tarvane {
namespace {

using namespace std::chrono_literals;

Date date(int year, int month, int day) {
    return std::chrono::year{year} / month / day;
}

std::string probe(const char* name, Date today = date(2026, 11, 22)) {
    ProbedDate probed;
    const QtLocale locale{QLocale(QString::fromLatin1(name))};
    const std::string found = CheckDateFormat(locale, today, probed).dateformat;
    EXPECT_EQ(probed.day, dayof(today)) << name;
    EXPECT_EQ(probed.month, monthof(today)) << name;
    EXPECT_EQ(probed.year, yearof(today)) << name;
    return found;
}

struct ProbeRow {
    const char* name;
    const char* form;
    const char* shortdate;  ///< of 5 March 2024
};

TEST(qtlocale, probefindsorder) {
    const ProbeRow rows[] = {{"C", "DD/MM/YYYY", "05/03/2024"},     {"POSIX", "DD/MM/YYYY", "05/03/2024"},
                             {"en_GB", "DD/MM/YYYY", "05/03/2024"}, {"en_US", "MM/DD/YYYY", "3/5/2024"},
                             {"en_ZA", "YYYY/MM/DD", "2024/03/05"}, {"en_CA", "YYYY-MM-DD", "2024-03-05"},
                             {"fr_FR", "DD/MM/YYYY", "05/03/2024"}, {"fr_CA", "YYYY-MM-DD", "2024-03-05"},
                             {"fr_CH", "DD.MM.YYYY", "05.03.2024"}, {"de_DE", "DD.MM.YYYY", "05.03.2024"},
                             {"es_ES", "DD/MM/YYYY", "5/3/2024"},   {"pt_PT", "DD/MM/YYYY", "05/03/2024"},
                             {"nb_NO", "DD.MM.YYYY", "05.03.2024"}, {"nn_NO", "DD.MM.YYYY", "05.03.2024"},
                             {"it_IT", "DD/MM/YYYY", "05/03/2024"}, {"nl_NL", "DD-MM-YYYY", "05-03-2024"},
                             {"nl_BE", "DD/MM/YYYY", "5/03/2024"},  {"eu_ES", "YYYY/MM/DD", "2024/3/5"}};
    for (const ProbeRow& row : rows) {
        EXPECT_EQ(probe(row.name), row.form) << row.name;
        EXPECT_EQ(QtLocale{QLocale(QString::fromLatin1(row.name))}.shortdate(date(2024, 3, 5)), row.shortdate)
            << row.name;
    }
}

TEST(qtlocale, otherlanguagesfailtheprobe) {
    for (const char* name : {"sv_SE", "da_DK", "pl_PL", "ru_RU", "ja_JP", "ar_EG", "fi_FI"})
        EXPECT_EQ(probe(name), "") << name;
}

/// Every territory of the nine languages passes, whatever the day of the year on which the program starts.
TEST(qtlocale, everyterritorypasses) {
    const QLocale::Language languages[] = {
        QLocale::English,    QLocale::Basque,          QLocale::French,  QLocale::German, QLocale::Spanish,
        QLocale::Portuguese, QLocale::NorwegianBokmal, QLocale::Italian, QLocale::Dutch,  QLocale::NorwegianNynorsk};
    int count = 0;
    for (const QLocale::Language language : languages) {
        const auto locales = QLocale::matchingLocales(language, QLocale::LatinScript, QLocale::AnyTerritory);
        EXPECT_FALSE(locales.isEmpty()) << language;
        for (const QLocale& locale : locales) {
            const std::string name = locale.name().toStdString();
            const std::string form = probe(name.c_str());
            EXPECT_NE(form, "") << name;
            EXPECT_EQ(probe(name.c_str(), date(2001, 1, 1)), form) << name;
            EXPECT_EQ(probe(name.c_str(), date(2028, 12, 31)), form) << name;
            ++count;
        }
    }
    EXPECT_GT(count, 100);
}

/// What the system writes it can read, on days all over four years and in every locale there is.
TEST(qtlocale, readswhatitwrites) {
    for (const QLocale& system :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const QtLocale locale{system};
        for (Date day = date(2024, 1, 1); day < date(2028, 1, 1); day += std::chrono::days{43})
            ASSERT_EQ(locale.parsedate(locale.shortdate(day)), day) << system.name().toStdString();
    }
}

TEST(qtlocale, readsdates) {
    const QtLocale british{QLocale(QStringLiteral("en_GB"))};
    const QtLocale american{QLocale(QStringLiteral("en_US"))};
    EXPECT_EQ(british.parsedate("03-01-2001"), date(2001, 1, 3));
    EXPECT_EQ(american.parsedate("03-01-2001"), date(2001, 3, 1));
    EXPECT_EQ(british.parsedate("2001.03.01"), date(2001, 1, 3));
    EXPECT_EQ(american.parsedate("2001.03.01"), date(2001, 3, 1));
    EXPECT_EQ(british.parsedate("1/2/24"), date(2024, 2, 1));
    EXPECT_EQ(british.parsedate("1/2/30"), date(1930, 2, 1));
    EXPECT_EQ(british.parsedate("29/02/2024"), date(2024, 2, 29));
    for (const char* text :
         {"", "29/02/2023", "31/04/2024", "00/01/2024", "1/13/2024", "1/2", "1/2/3/4", "a/b/c", "1 February 2024",
          "20240201", "12345/01/02", "1/257/2024", "257/1/2024", "2024/257/1", "1//2024", "-1/2/2024", "٠١/٠٢/٢٠٢٤"})
        EXPECT_FALSE(british.parsedate(text)) << text;
}

TEST(qtlocale, daywordsareasshortastheprobes) {
    const QtLocale german{QLocale(QStringLiteral("de_DE"))};
    const QtLocale norwegian{QLocale(QStringLiteral("nb_NO"))};
    const QtLocale portuguese{QLocale(QStringLiteral("pt_PT"))};
    const QtLocale swedish{QLocale(QStringLiteral("sv_SE"))};
    EXPECT_EQ(german.dayabbreviation(0), "So");
    EXPECT_EQ(norwegian.dayabbreviation(0), "sø");
    EXPECT_EQ(norwegian.dayabbreviation(6), "lø");
    EXPECT_EQ(portuguese.dayabbreviation(1), "seg");
    EXPECT_EQ(swedish.dayabbreviation(4), "tors");
    EXPECT_EQ(german.dayname(0), "Sonntag");
    EXPECT_EQ(german.monthname(12), "Dezember");
}

TEST(qtlocale, informationtexts) {
    const QtLocale british{QLocale::c()};
    EXPECT_EQ(british.systemid(), 2057);
    const std::pair<int, const char*> rows[] = {{1, "0809"}, {29, "/"},   {31, "dd/MM/yyyy"}, {33, "1"},   {34, "1"},
                                                {36, "1"},   {4105, "1"}, {4097, "English"},  {4108, "0"}, {4109, "2"}};
    for (const auto& [id, text] : rows)
        EXPECT_EQ(british.info(2057, id), text) << id;
    EXPECT_FALSE(british.info(2057, 9999));
    EXPECT_FALSE(british.info(1033, 29));
    const QtLocale american{QLocale(QStringLiteral("en_US"))};
    EXPECT_EQ(american.info(1033, 33), "0");
    EXPECT_EQ(american.info(1033, 34), "0");
    EXPECT_EQ(american.info(1033, 4108), "6");
    const QtLocale basque{QLocale(QStringLiteral("eu_ES"))};
    EXPECT_EQ(basque.info(1069, 33), "2");
    EXPECT_EQ(basque.info(1069, 34), "2");
}

TEST(qtlocale, datecategorydecides) {
    const QByteArray all = qgetenv("LC_ALL");
    const QByteArray time = qgetenv("LC_TIME");
    const QByteArray lang = qgetenv("LANG");
    qunsetenv("LC_ALL");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LC_TIME", "de_DE.UTF-8");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("de_DE"));
    qunsetenv("LC_TIME");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("en_US"));
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(systemdatelocale().name(), QStringLiteral("en_GB"));
    all.isNull() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", all);
    time.isNull() ? qunsetenv("LC_TIME") : qputenv("LC_TIME", time);
    lang.isNull() ? qunsetenv("LANG") : qputenv("LANG", lang);
}

}  // namespace
}  // namespace tarvane
