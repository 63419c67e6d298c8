// The order in which this machine writes dates, found by experiment, and every date text that the program shows.
// Must not read the clock.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dates/calendar.h"
#include "platform/locale.h"

namespace tarvane {

/// What the probe found.
struct DateConventions {
    std::string dateformat;     ///< one of the twelve forms, "DD/MM/YYYY" ..., or empty when the probe failed
    std::string dateseparator;  ///< the system's, then what today's date text shows
};

/// Today as the probe hands it out.
// kept: only the month is looked at
struct ProbedDate {
    double day = 0;
    double month = 0;  ///< 0 when the system's date text can't be read: the program must end
    double year = 0;
    std::string monthname;
};

/// A date under a pattern of "d", "dd", "ddd", "dddd", "m", "mm", "mmm", "mmmm", "yy", "yyyy" and "y" (day of the
/// year), in either case, with names in the system language; any other character stands for itself.
std::string formatdate(const Locale& locale, Date date, std::string_view pattern);

/// A date text, read by the system's short date order, under a pattern; the text itself when it is no date.
std::string formatdatetext(const Locale& locale, std::string_view text, std::string_view pattern);

/// One information text of the system's locale; empty when it has none.
std::string LocaleInfoText(const Locale& locale, int lcid, int lctype);

/// What an abbreviated day name tells: its language and the date form that follows from it.
struct DayReading {
    std::string_view language;  ///< "ENGLISH", "BASQUE" ...; nothing further depends on it
    std::string_view form;      ///< one of the twelve forms
};

/// Recognises the day word of the probe's test text, whole and by case. `yearplace` is 1 (year first) or 3. Nothing for
/// an unknown word or separator.
std::optional<DayReading> readdayword(int yearplace, std::string_view separator, std::string_view word);

/// The probe: how does this system order day, month and year? `dateformat` stays empty when no day word is recognised
/// or the separator is none of the three.
DateConventions CheckDateFormat(const Locale& locale, Date today, ProbedDate& probed);

/// Today's date as a caption at start. Nothing on the four forms on which the comparison fails.
std::optional<std::string> LongDateText(const Locale& locale, const DateConventions& conventions, Date today);

/// A chosen date as a caption: month by name, parts in the order of `dateformat`, one blank between; empty without a
/// `dateformat`.
std::string DateCaption(const Locale& locale, const DateConventions& conventions, Date date);

/// Month name and day of the month of a day of the year; both stay as they are for a day outside the year.
// kept: a calendar routine beside MonthInfo that no window asks
void DayOfYearToMonth(const Locale& locale, double tideyear, double tidedayofyear, std::string& monthname,
                      double& dayofmonth);

struct MonthFacts {
    int daysinmonth = 0;
    int daysbefore = 0;  ///< days of the year before the month
    std::string monthname;
};

/// Calendar facts of a month, 1 to 12.
MonthFacts MonthInfo(const Locale& locale, int year, int month);

/// The message that ends the program when no date settings were recognised, CR LF between its lines, and its title.
extern const char* const nodatesettingstext;
extern const char* const nodatesettingstitle;

/// The message that ends the program when the system's date text yields no month.
extern const char* const incompatibledatetext;

}  // namespace tarvane
