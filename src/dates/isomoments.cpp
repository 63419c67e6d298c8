#include "dates/isomoments.h"

#include <cstdlib>

namespace tarvane {
namespace {

/// A number from 0 on with leading zeros; plain digits, as there are two dates and a zone in every row.
std::string digits(int number, std::size_t atleast) {
    std::string text;
    for (; number > 0 || text.size() < atleast; number /= 10)
        text.insert(text.begin(), static_cast<char>('0' + number % 10));
    return text;
}

}  // namespace

std::string isodate(Date date) {
    return digits(yearof(date), 4) + "-" + digits(monthof(date), 2) + "-" + digits(dayof(date), 2);
}

std::string isomoment(Date date, const std::string& clock, std::chrono::minutes ahead) {
    const int count = std::abs(static_cast<int>(ahead.count()));
    return isodate(date) + "T" + clock + (ahead.count() < 0 ? "-" : "+") + digits(count / 60, 2) + ":" +
           digits(count % 60, 2);
}

}  // namespace tarvane
