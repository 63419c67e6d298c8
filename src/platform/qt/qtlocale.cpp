#include "platform/qt/qtlocale.h"

#include <QDate>
#include <QRegularExpression>
#include <array>
#include <utility>

#include "platform/daywords.h"

namespace tarvane {

namespace {

constexpr std::array<std::pair<QLocale::Language, std::string_view>, 10> probelanguages{
    {{QLocale::English, "ENGLISH"},
     {QLocale::Basque, "BASQUE"},
     {QLocale::French, "FRENCH"},
     {QLocale::German, "GERMAN"},
     {QLocale::Spanish, "SPANISH"},
     {QLocale::Portuguese, "PORTUGESE"},
     {QLocale::NorwegianBokmal, "NYNORSK"},
     {QLocale::NorwegianNynorsk, "NYNORSK"},
     {QLocale::Italian, "ITALIAN"},
     {QLocale::Dutch, "DUTCH"}}};

struct LocaleNumber {
    const char* name;
    int lcid;
};

constexpr std::array<LocaleNumber, 31> localenumbers{
    {{"en_US", 1033},  {"en_GB", 2057}, {"en_AU", 3081}, {"en_CA", 4105}, {"en_NZ", 5129}, {"en_IE", 6153},
     {"en_ZA", 7177},  {"fr_FR", 1036}, {"fr_BE", 2060}, {"fr_CA", 3084}, {"fr_CH", 4108}, {"fr_LU", 5132},
     {"de_DE", 1031},  {"de_CH", 2055}, {"de_AT", 3079}, {"de_LU", 4103}, {"es_ES", 3082}, {"es_MX", 2058},
     {"es_AR", 11274}, {"pt_BR", 1046}, {"pt_PT", 2070}, {"nb_NO", 1044}, {"nn_NO", 2068}, {"it_IT", 1040},
     {"it_CH", 2064},  {"nl_NL", 1043}, {"nl_BE", 2067}, {"eu_ES", 1069}, {"sv_SE", 1053}, {"da_DK", 1030},
     {"fi_FI", 1035}}};
constexpr int unnumberedlocale = 4096;

/// The words of the locale's language; none for a language that the probe doesn't know.
const DayWords* daywordsof(const QLocale& locale) {
    const QLocale::Language language = QLocale(locale.name()).language();
    for (const auto& [known, name] : probelanguages) {
        if (known != language) continue;
        for (const DayWords& words : daywords)
            if (words.language == name) return &words;
    }
    return nullptr;
}

/// The number fields of a date pattern: their letters in order ("DMY"), how many letters each has, and what stands
/// between the first two. Quoted words and the day's name are passed over.
struct DateFields {
    QString order;
    std::array<qsizetype, 3> widths{1, 1, 4};
    QChar separator{QLatin1Char('/')};
};

DateFields datefields(QString pattern) {
    pattern.remove(QRegularExpression(QStringLiteral("'[^']*'")));
    pattern.remove(QRegularExpression(QStringLiteral("d{3,}")));
    DateFields fields;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar letter = pattern[i];
        const auto place = fields.order.size();
        qsizetype end = i + 1;
        while (end < pattern.size() && pattern[end] == letter)
            ++end;
        if (QStringLiteral("dMy").contains(letter) && place < 3 && !fields.order.contains(letter.toUpper())) {
            fields.widths[static_cast<std::size_t>(place)] = end - i;
            fields.order += letter.toUpper();
        } else if (QStringLiteral("/-.").contains(letter) && place == 1) {
            fields.separator = letter;
        }
        i = end;
    }
    if (fields.order.size() != 3) fields.order = QStringLiteral("DMY");
    return fields;
}

QString numberpattern(const DateFields& fields) {
    QStringList parts;
    for (int i = 0; i < 3; ++i) {
        const QChar field = fields.order[i];
        const bool two = fields.widths[static_cast<std::size_t>(i)] == 2;
        if (field == QLatin1Char('Y'))
            parts << QStringLiteral("yyyy");
        else
            parts << QString(two ? 2 : 1, field == QLatin1Char('D') ? QLatin1Char('d') : field);
    }
    return parts.join(fields.separator);
}

const char* ordernumber(const QString& order) {
    if (order.startsWith(QLatin1Char('M'))) return "0";
    return order.startsWith(QLatin1Char('D')) ? "1" : "2";
}

/// Three runs of up to four digits with one separator between each two, blanks around the whole allowed.
std::optional<std::array<QString, 3>> threenumbers(std::string_view text) {
    const QRegularExpression form(QStringLiteral("^ *([0-9]{1,4})[/.-]([0-9]{1,4})[/.-]([0-9]{1,4}) *$"));
    const auto match = form.match(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    if (!match.hasMatch()) return std::nullopt;
    return std::array<QString, 3>{match.captured(1), match.captured(2), match.captured(3)};
}

int fullyear(const QString& digits) {
    const int year = digits.toInt();
    if (digits.size() > 2) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

QLocale withlanguage(const QLocale& locale) {
    const bool none = locale.name() == QLatin1String("C");
    return none ? QLocale(QLocale::English, QLocale::UnitedKingdom) : locale;
}

}  // namespace

QLocale systemdatelocale() {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return QLocale::system();
#else
    // The toolkit's own system locale takes its language from another category than its dates.
    for (const char* const category : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(category);
        if (!name.isEmpty()) return withlanguage(QLocale(name));
    }
    return withlanguage(QLocale::c());
#endif
}

QtLocale::QtLocale(const QLocale& given) : locale(withlanguage(given)) {
    const DateFields fields = datefields(locale.dateFormat(QLocale::ShortFormat));
    pattern = numberpattern(fields);
    order = fields.order;
}

int QtLocale::systemid() const {
    const QString name = locale.name();
    for (const LocaleNumber& row : localenumbers)
        if (name == QLatin1String(row.name)) return row.lcid;
    return unnumberedlocale;
}

std::optional<std::string> QtLocale::info(int lcid, int lctype) const {
    if (lcid != systemid()) return std::nullopt;
    const QLocale named(locale.name());
    const bool mondayfirst = locale.firstDayOfWeek() == Qt::Monday;
    switch (lctype) {
        case 1:  // language id
            return QStringLiteral("%1").arg(lcid, 4, 16, QLatin1Char('0')).toUpper().toStdString();
        case 2:  // name in the user's language
            return QStringLiteral("%1 (%2)").arg(named.nativeLanguageName(), named.nativeTerritoryName()).toStdString();
        case 29:  // date separator
            return QString(datefields(pattern).separator).toStdString();
        case 31:  // short date
            return pattern.toStdString();
        case 32:  // long date
            return locale.dateFormat(QLocale::LongFormat).toStdString();
        case 33:  // order of the short date
            return ordernumber(order);
        case 34:  // order of the long date
            return ordernumber(datefields(locale.dateFormat(QLocale::LongFormat)).order);
        case 36:  // years with their century
            return "1";
        case 4097:  // language in English
            return QLocale::languageToString(named.language()).toStdString();
        case 4098:  // country in English
            return QLocale::territoryToString(named.territory()).toStdString();
        case 4105:  // Gregorian calendar
            return "1";
        case 4107:  // no other calendar
            return "0";
        case 4108:  // 0 for a week that begins on Monday
            return std::to_string(static_cast<int>(locale.firstDayOfWeek()) - 1);
        case 4109:  // first week: with four days of the year, or with 1 January
            return mondayfirst ? "2" : "0";
        default:
            return std::nullopt;
    }
}

std::string QtLocale::shortdate(std::chrono::sys_days date) const {
    const std::chrono::year_month_day parts{date};
    const QDate day(static_cast<int>(parts.year()), static_cast<int>(static_cast<unsigned>(parts.month())),
                    static_cast<int>(static_cast<unsigned>(parts.day())));
    return day.toString(pattern).toStdString();
}

std::optional<std::chrono::sys_days> QtLocale::parsedate(std::string_view text) const {
    const auto numbers = threenumbers(text);
    if (!numbers) return std::nullopt;
    const bool yearfirst = numbers->front().size() == 4;
    const bool dayfirst = order.indexOf(QLatin1Char('D')) < order.indexOf(QLatin1Char('M'));
    const QString year = yearfirst ? (*numbers)[0] : (*numbers)[2];
    const int first = (*numbers)[yearfirst ? 1 : 0].toInt();
    const int second = (*numbers)[yearfirst ? 2 : 1].toInt();
    const int month = dayfirst ? second : first;
    const int day = dayfirst ? first : second;
    // the calendar keeps a month and a day in a byte each, where 257 would pass for 1
    if (month > 12 || day > 31) return std::nullopt;
    const std::chrono::year_month_day date = std::chrono::year{fullyear(year)} / month / day;
    if (!date.ok()) return std::nullopt;
    return date;
}

std::string QtLocale::monthname(int month) const {
    return locale.standaloneMonthName(month).toStdString();
}

std::string QtLocale::monthabbreviation(int month) const {
    return locale.standaloneMonthName(month, QLocale::ShortFormat).toStdString();
}

std::string QtLocale::dayname(int weekday) const {
    return locale.standaloneDayName(weekday == 0 ? 7 : weekday).toStdString();
}

std::string QtLocale::dayletter(int weekday) const {
    return locale.standaloneDayName(weekday == 0 ? 7 : weekday, QLocale::NarrowFormat).toStdString();
}

std::string QtLocale::dayabbreviation(int weekday) const {
    const QString name = locale.standaloneDayName(weekday == 0 ? 7 : weekday, QLocale::ShortFormat);
    const DayWords* const words = daywordsof(locale);
    if (!words) return name.toStdString();
    if (weekday == 3) return std::string(words->wednesday);
    if (weekday == 4) return std::string(words->thursday);
    return name.left(QString::fromStdString(std::string(words->wednesday)).size()).toStdString();
}

}  // namespace tarvane
