// Calendar facts and the date on show. Gregorian throughout; must not ask the system anything.
#pragma once

#include <chrono>

namespace tarvane {

/// A calendar date without a time part.
using Date = std::chrono::sys_days;

/// The date on show. `tideday` and `tidemonth` can lag behind `tidedate`: see the day stepping.
struct DateOnShow {
    Date tidedate{};
    double tideyear = 0;
    double tidemonth = 0;      ///< 1 to 12
    double tideday = 0;        ///< 1 to 31
    double tidedayofyear = 0;  ///< 1 for 1 January
};

int yearof(Date date);
int monthof(Date date);    ///< 1 to 12
int dayof(Date date);      ///< 1 to 31
int weekdayof(Date date);  ///< 0 Sunday to 6 Saturday
int dayofyear(Date date);  ///< 1 for 1 January

/// A date from numbers; a month or a day past its range carries over (month 13 is January of the next year).
Date makedate(int year, int month, int day);

/// "Jan" to "Dec" for months 1 to 12, in English under every locale: for texts that are the same everywhere. Empty for
/// any other month.
const char* englishmonth(int month);

/// Divisible by 4 and not by 100, or divisible by 400.
bool isleapyear(int year);

/// 365, or 366 of a leap year.
int daysinyear(int year);

/// Days of a month: the day number of the date one day before the first of the next.
int DaysInMonth(int year, int month);

/// Sets all five values of the date on show from one date.
void setdateonshow(DateOnShow& onshow, Date date);

}  // namespace tarvane
