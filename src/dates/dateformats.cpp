#include "dates/dateformats.h"

#include <algorithm>
#include <array>

#include "platform/daywords.h"
#include "text/numbers.h"

namespace tarvane {

const char* const nodatesettingstext =
    "TARVANE CANNOT DETECT THE REQUIRED TIME AND DATE SETTINGS\r\n"
    "\r\n"
    "To setup use the Control Panel -> Regional Settings -> Date Tab\r\n"
    "\r\n"
    "Set as follows :\r\n"
    "\r\n"
    "      Short date Style dd/MM/yyyy\r\n"
    "\r\n"
    "      Date separator = /\r\n"
    "\r\n"
    "      Long Date style = dd MMMM yyyy\r\n"
    "\r\n"
    "      PLEASE CONTACT US IF YOU REQUIRE ANY SUPPORT";
const char* const nodatesettingstitle = "Apologies !!";
const char* const incompatibledatetext =
    "DATE FORMAT INCOMPATIBLE WITH PROGRAM - "
    "Change in 'Control Panel' -> 'International Settings' and set short date to 'MM/DD/YY'";

namespace {

constexpr int dateseparatorinfo = 29;

struct ProbeRow {
    int yearplace;
    std::string_view separator;
    std::string_view testtext;
    std::string_view wednesdayform;
    std::string_view thursdayform;
};

// 3 January 2001 is a Wednesday, 1 March 2001 a Thursday.
constexpr std::array<ProbeRow, 6> proberows{{
    {1, "-", "2001-03-01", "YYYY-DD-MM", "YYYY-MM-DD"},
    {1, "/", "2001/03/01", "YYYY/DD/MM", "YYYY/MM/DD"},
    {1, ".", "2001.03.01", "YYYY.DD.MM", "YYYY.MM.DD"},
    {3, "-", "03-01-2001", "DD-MM-YYYY", "MM-DD-YYYY"},
    {3, "/", "03/01/2001", "DD/MM/YYYY", "MM/DD/YYYY"},
    // kept: the test text is year-first although this row's year stands last
    {3, ".", "2001.03.01", "DD.MM.YYYY", "MM.DD.YYYY"},
}};

const ProbeRow* findrow(int yearplace, std::string_view separator) {
    const auto row = std::find_if(proberows.begin(), proberows.end(), [&](const ProbeRow& candidate) {
        return candidate.yearplace == yearplace && candidate.separator == separator;
    });
    return row == proberows.end() ? nullptr : &*row;
}

/// A number with leading zeros up to a width.
std::string padded(int value, std::size_t width) {
    std::string text = numbertext(value);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string daypart(const Locale& locale, Date date, std::size_t length) {
    if (length == 1) return numbertext(dayof(date));
    if (length == 2) return padded(dayof(date), 2);
    return length == 3 ? locale.dayabbreviation(weekdayof(date)) : locale.dayname(weekdayof(date));
}

std::string monthpart(const Locale& locale, Date date, std::size_t length) {
    if (length == 1) return numbertext(monthof(date));
    if (length == 2) return padded(monthof(date), 2);
    return length == 3 ? locale.monthabbreviation(monthof(date)) : locale.monthname(monthof(date));
}

std::string yearpart(Date date, std::size_t length) {
    if (length == 1) return numbertext(dayofyear(date));
    return length == 2 ? padded(yearof(date) % 100, 2) : padded(yearof(date), 4);
}

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The place of the year in today's date text: 1 when it opens the text, else 3, also where it isn't found at all.
int placeofyear(std::string_view today, std::string_view year) {
    return today.substr(0, year.size()) == year ? 1 : 3;
}

/// Name of a month as a date in it reads; the day equals the month, so the order of the two can't matter.
std::string nameofmonth(const Locale& locale, int year, int month) {
    return formatdate(locale, makedate(year, month, month), "MMMM");
}

}  // namespace

std::string formatdate(const Locale& locale, Date date, std::string_view pattern) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size();) {
        const char letter = lowered(pattern[at]);
        std::size_t run = 1;
        while (run < 4 && at + run < pattern.size() && lowered(pattern[at + run]) == letter)
            ++run;
        if (letter == 'y' && run == 3) run = 2;
        if (letter == 'd') {
            text += daypart(locale, date, run);
        } else if (letter == 'm') {
            text += monthpart(locale, date, run);
        } else if (letter == 'y') {
            text += yearpart(date, run);
        } else {
            text += pattern.substr(at, run);
        }
        at += run;
    }
    return text;
}

std::string formatdatetext(const Locale& locale, std::string_view text, std::string_view pattern) {
    const std::optional<Date> date = locale.parsedate(text);
    return date ? formatdate(locale, *date, pattern) : std::string{text};
}

std::string LocaleInfoText(const Locale& locale, int lcid, int lctype) {
    return locale.info(lcid, lctype).value_or("");
}

std::optional<DayReading> readdayword(int yearplace, std::string_view separator, std::string_view word) {
    const ProbeRow* row = findrow(yearplace, separator);
    if (row == nullptr) return std::nullopt;
    for (const DayWords& words : daywords) {
        DayReading reading{words.language, {}};
        if (word == words.wednesday) reading.form = row->wednesdayform;
        if (word == words.thursday) reading.form = row->thursdayform;
        if (reading.form.empty()) continue;
        // kept: the last row calls its "on" and "to" Norwegian
        if (row == &proberows.back() && words.language == "NYNORSK") reading.language = "NORWEGIAN";
        // kept: the first row takes the two Dutch words the wrong way round
        if (row == &proberows.front() && words.language == "DUTCH") {
            reading.form = word == words.thursday ? row->wednesdayform : row->thursdayform;
        }
        return reading;
    }
    return std::nullopt;
}

DateConventions CheckDateFormat(const Locale& locale, Date today, ProbedDate& probed) {
    DateConventions found;
    found.dateseparator = LocaleInfoText(locale, locale.systemid(), dateseparatorinfo);
    const std::string todaytext = locale.shortdate(today);
    for (const char* candidate : {"/", "-", "."}) {
        if (todaytext.find(candidate) != std::string::npos) found.dateseparator = candidate;
    }

    const int yearplace = placeofyear(todaytext, formatdatetext(locale, todaytext, "YYYY"));
    if (const ProbeRow* row = findrow(yearplace, found.dateseparator)) {
        const std::string word = formatdatetext(locale, row->testtext, "DDD");
        if (const auto reading = readdayword(yearplace, found.dateseparator, word)) found.dateformat = reading->form;
    }

    probed.monthname = formatdatetext(locale, todaytext, "MMMM");
    probed.month = val(formatdatetext(locale, todaytext, "MM"));
    if (probed.month != 0) {
        probed.day = val(formatdatetext(locale, todaytext, "DD"));
        probed.year = val(formatdatetext(locale, todaytext, "YYYY"));
    }
    return found;
}

std::optional<std::string> LongDateText(const Locale& locale, const DateConventions& conventions, Date today) {
    // kept: these four forms fail here, so that the first caption after start holds no date on such a system
    for (const char* failing : {"YYYY.DD.MM", "YYYY/MM/DD", "YYYY-MM-DD", "YYYY.MM.DD"}) {
        if (conventions.dateformat == failing) return std::nullopt;
    }
    return DateCaption(locale, conventions, today);
}

std::string DateCaption(const Locale& locale, const DateConventions& conventions, Date date) {
    std::string caption;
    char previous = 0;
    for (const char place : conventions.dateformat) {
        const bool opensapart = place != previous && (place == 'D' || place == 'M' || place == 'Y');
        previous = place;
        if (!opensapart) continue;
        if (!caption.empty()) caption += ' ';
        if (place == 'D') caption += numbertext(dayof(date));
        if (place == 'M') caption += locale.monthname(monthof(date));
        if (place == 'Y') caption += numbertext(yearof(date));
    }
    return caption;
}

void DayOfYearToMonth(const Locale& locale, double tideyear, double tidedayofyear, std::string& monthname,
                      double& dayofmonth) {
    const int year = static_cast<int>(tideyear);
    const bool leap = isleapyear(year);
    int offset = 0;
    for (int month = 1; month <= 12; ++month) {
        const int length = DaysInMonth(year, month);
        if (tidedayofyear >= offset + 1 && tidedayofyear <= offset + length) {
            // kept: December of a normal year is named in English whatever the system's language
            monthname = month == 12 && !leap ? "December" : nameofmonth(locale, leap ? 2000 : 2001, month);
            dayofmonth = tidedayofyear - offset;
            return;
        }
        offset += length;
    }
}

MonthFacts MonthInfo(const Locale& locale, int year, int month) {
    MonthFacts facts;
    if (month < 1 || month > 12) return facts;
    facts.daysinmonth = DaysInMonth(year, month);
    for (int before = 1; before < month; ++before)
        facts.daysbefore += DaysInMonth(year, before);
    facts.monthname = nameofmonth(locale, 2001, month);
    return facts;
}

}  // namespace tarvane
