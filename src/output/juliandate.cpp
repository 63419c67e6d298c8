#include "output/juliandate.h"

#include <cmath>

namespace tarvane {

double juliandate(int day, int month, int year, int hour, int minute, double second) {
    const double K = year < 1000 ? year + 1900 : year, M = month;
    const double UT = hour + minute / 60.0 + second / 3600;
    const double sign = 100 * K + M - 190002.5 > 0 ? 1 : -1;
    // kept: it counts a 29 February of 2100, and dates behind it are a day late
    return 367 * K - std::trunc(7 * (K + std::trunc((M + 9) / 12)) / 4) + std::trunc(275 * M / 9) + day + 1721013.5 +
           UT / 24 - 0.5 * sign + 0.5;
}

JulianMoment juliantodate(double julian) {
    const double j = julian + 0.5, z = std::trunc(j), f = j - z;
    double a = z;
    if (z >= 2299161) {
        const double alpha = std::trunc((z - 1867216.25) / 36524.25);
        a = z + 1 + alpha - std::trunc(alpha / 4);
    }
    const double b = a + 1524, c = std::trunc((b - 122.1) / 365.25), d = std::trunc(365.25 * c);
    const double e = std::trunc((b - d) / 30.6001);
    JulianMoment moment;
    moment.day = static_cast<int>(b - d - std::trunc(30.6001 * e) + f);
    moment.month = static_cast<int>(e < 13.5 ? e - 1 : e - 13);
    moment.year = static_cast<int>(moment.month > 2.5 ? c - 4716 : c - 4715);
    moment.hour = static_cast<int>(f * 24);
    moment.minute = static_cast<int>((f - moment.hour / 24.0) * 1440);
    moment.second = (f - moment.hour / 24.0 - moment.minute / 1440.0) * 86400;
    return moment;
}

}  // namespace tarvane
