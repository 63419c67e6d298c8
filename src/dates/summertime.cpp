#include "dates/summertime.h"

namespace tarvane {

const char* const adjustedline = "Times are from midnight local time - ADJUSTED FOR SUMMER TIME";
const char* const uncorrectedline = "Times are from midnight local time - WITHOUT SUMMER TIME CORRECTION";
const char* const uncorrectedoffline = "Times from midnight local time - WITHOUT SUMMER TIME CORRECTION";

namespace {

Date lastsunday(int year, int month) {
    const Date last = makedate(year, month, DaysInMonth(year, month));
    return last - std::chrono::days{weekdayof(last)};
}

bool insummer(Date date) {
    const auto year = static_cast<std::int16_t>(yearof(date));
    return date > SummerStart(year) && date < SummerEnd(year);
}

}  // namespace

Date SummerStart(std::int16_t year) {
    return lastsunday(year, 3) - std::chrono::days{1};
}

Date SummerEnd(std::int16_t year) {
    return lastsunday(year, 10);
}

std::int16_t IsSummerDate(Date date) {
    return insummer(date) ? std::int16_t{-1} : std::int16_t{0};
}

std::int16_t summershift(Date date, std::int16_t summerflag2) {
    return summerflag2 == 0 ? std::int16_t{0} : IsSummerDate(date);
}

bool issummermonth(double month) {
    return month >= 4 && month <= 10;
}

std::string correctionline(std::int16_t shift, Date date) {
    // kept: the line for no shift lacks the "are" that the other two have
    if (shift == 0) return uncorrectedoffline;
    return insummer(date) ? adjustedline : uncorrectedline;
}

}  // namespace tarvane
