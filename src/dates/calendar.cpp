#include "dates/calendar.h"

#include <array>

namespace tarvane {

using std::chrono::days;
using std::chrono::months;
using std::chrono::year_month_day;

int yearof(Date date) {
    return static_cast<int>(year_month_day{date}.year());
}

int monthof(Date date) {
    return static_cast<int>(static_cast<unsigned>(year_month_day{date}.month()));
}

int dayof(Date date) {
    return static_cast<int>(static_cast<unsigned>(year_month_day{date}.day()));
}

int weekdayof(Date date) {
    return static_cast<int>(std::chrono::weekday{date}.c_encoding());
}

int dayofyear(Date date) {
    return static_cast<int>((date - makedate(yearof(date), 1, 1)).count()) + 1;
}

Date makedate(int year, int month, int day) {
    const auto first = std::chrono::year{year} / std::chrono::January / 1 + months{month - 1};
    return Date{first} + days{day - 1};
}

const char* englishmonth(int month) {
    static constexpr std::array<const char*, 13> names{"",    "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return month >= 1 && month <= 12 ? names[static_cast<std::size_t>(month)] : "";
}

bool isleapyear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysinyear(int year) {
    return isleapyear(year) ? 366 : 365;
}

int DaysInMonth(int year, int month) {
    return dayof(makedate(year, month + 1, 1) - days{1});
}

void setdateonshow(DateOnShow& onshow, Date date) {
    onshow.tidedate = date;
    onshow.tideyear = yearof(date);
    onshow.tidemonth = monthof(date);
    onshow.tideday = dayof(date);
    onshow.tidedayofyear = dayofyear(date);
}

}  // namespace tarvane
