#include "sunmoon/lunarphases.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <span>
#include <utility>

#include "dates/calendar.h"
#include "text/numbers.h"

namespace tarvane {

namespace {

// Middle of each month as a fraction of a year.
constexpr std::array<double, 12> commonyear{
    0.0424375935815675, 0.123205916849712, 0.203974240117857, 0.287480472649328, 0.3709867051808,   0.454492937712271,
    0.537999170243743,  0.622874357406878, 0.706380589938349, 0.789886822469821, 0.873393055001292, 0.956899287532764,
};
constexpr std::array<double, 12> leapyear{
    0.0424375935815675, 0.124574871481376, 0.20534319474952,  0.288849427280992, 0.372355659812463, 0.455861892343935,
    0.539368124875406,  0.624243312038541, 0.707749544570013, 0.791255777101484, 0.874762009632956, 0.958268242164428,
};

// Index: quarters of a lunation after the new moon.
constexpr std::array<const char*, 4> phasenames{"NEW MOON     ", "FIRST QUARTER", "FULL MOON    ", "LAST QUARTER "};
// kept: before 1900 the new and full moon texts are one blank longer
constexpr std::array<const char*, 4> earlyphasenames{"NEW MOON      ", "FIRST QUARTER", "FULL MOON     ",
                                                     "LAST QUARTER "};

/// One periodic term in days: (constant + pert T) times the sine of a sum of multiples of the three arguments.
struct Term {
    double constant;
    double pert;
    int M, Mp, F;
};

// kept: the coefficient 0.0006000001 of both tables, and the last quarter term's argument 2M - Mp
constexpr std::array<Term, 13> newandfull{{{0.1734, -0.000393, 1, 0, 0},
                                           {0.0021, 0, 2, 0, 0},
                                           {-0.4068, 0, 0, 1, 0},
                                           {0.0161, 0, 0, 2, 0},
                                           {-0.0004, 0, 0, 3, 0},
                                           {0.0104, 0, 0, 0, 2},
                                           {-0.0051, 0, 1, 1, 0},
                                           {-0.0074, 0, 1, -1, 0},
                                           {0.0004, 0, 1, 0, 2},
                                           {-0.0004, 0, -1, 0, 2},
                                           {-0.0006000001, 0, 0, 1, 2},
                                           {0.001, 0, 0, -1, 2},
                                           {0.0005, 0, 1, 2, 0}}};

constexpr std::array<Term, 15> quarters{{{0.1721, -0.0004, 1, 0, 0},
                                         {0.0021, 0, 2, 0, 0},
                                         {-0.628, 0, 0, 1, 0},
                                         {0.0089, 0, 0, 2, 0},
                                         {-0.0004, 0, 0, 3, 0},
                                         {0.0079, 0, 0, 0, 2},
                                         {-0.0119, 0, 1, 1, 0},
                                         {-0.0047, 0, 1, -1, 0},
                                         {0.0003, 0, 1, 0, 2},
                                         {-0.0004, 0, -1, 0, 2},
                                         {-0.0006000001, 0, 0, 1, 2},
                                         {0.0021, 0, 0, -1, 2},
                                         {0.0003, 0, 1, 2, 0},
                                         {0.0004, 0, 1, -2, 0},
                                         {-0.0003, 0, 2, -1, 0}}};

double reduced(double degrees) {
    // kept: only an angle above 360 is brought back, a negative one stays as it is
    if (degrees > 360) degrees = 360 * (degrees / 360 - std::trunc(degrees / 360));
    return degrees;
}

/// Julian date of a phase: k lunations after the new moon of January 1900, phase 0 new, 1 first quarter, 2 full, 3 last
/// quarter.
double phasedate(double k, int phase) {
    const double T = k / 1236.85;
    const double T2 = T * T;
    const double T3 = T2 * T;
    // kept: this pi, with its odd last digits
    const double rad = 3.14159265358598 / 180;
    const double M = rad * reduced(359.2242 + 29.10535608 * k - 0.0000333 * T2 - 0.00000347 * T3);
    const double Mp = rad * reduced(306.0253 + 385.81691806 * k + 0.0107306 * T2 + 0.00001236 * T3);
    const double F = rad * reduced(21.2964 + 390.67050646 * k - 0.0016528 * T2 - 0.00000239 * T3);

    // kept: the 0.009173 term stands outside the sine
    double J = 2415020.75933 + 29.53058868 * k + 0.0001178 * T2 - 0.000000155 * T3 +
               (0.00033 * std::sin(166.56 * rad + 132.87 * rad * T) - T2 * (0.009173 * rad));
    const bool syzygy = phase % 2 == 0;
    for (const Term& term : syzygy ? std::span<const Term>{newandfull} : std::span<const Term>{quarters}) {
        J += (term.constant + term.pert * T) * std::sin(term.F * F + term.M * M + term.Mp * Mp);
    }
    if (phase == 1) J = J + 0.0028 - 0.0004 * std::cos(M) + 0.0003 * std::cos(Mp);
    if (phase == 3) J = J - 0.0028 + 0.0004 * std::cos(M) - 0.0003 * std::cos(Mp);
    return J;
}

/// Day of the month of a Julian date: Gregorian from October 1582, Julian before.
int dayofmonth(double J) {
    J += 0.5;
    const double Z = std::trunc(J);
    const double w = J - Z;
    double A = Z;
    if (Z >= 2299161) {
        const double a = std::floor((Z - 1867216.25) / 36524.25);
        A = Z + 1 + a - std::floor(a / 4);
    }
    const double B = A + 1524;
    const double C = std::floor((B - 122.1) / 365.25);
    const double D = std::floor(365.25 * C);
    const double E = std::floor((B - D) / 30.6001);
    return static_cast<int>(B - D - std::floor(30.6001 * E) + w);
}

std::string phaseline(int day, int month, int year, const char* name) {
    // kept: the line carries the selected month and year, also for a phase that falls just outside them
    return "   " + std::string{day < 10 ? "0" : ""} + numbertext(day) + " " + englishmonth(month) + " " +
           numbertext(year) + std::string(7, ' ') + name;
}

void sortlines(LunarTexts& texts) {
    for (int last = texts.lunarcount; last > 1; --last) {
        for (int i = 1; i < last; ++i) {
            std::string& left = texts.lunarlist[static_cast<std::size_t>(i)];
            std::string& right = texts.lunarlist[static_cast<std::size_t>(i) + 1];
            if (val(left) > val(right)) SwapText(left, right);
        }
    }
}

}  // namespace

void LunarPhases(int month, int year, LunarTexts& texts) {
    assert(month >= 1 && month <= 12);
    std::fill(texts.lunarlist.begin() + 1, texts.lunarlist.end(), std::string{});
    texts.lunarcount = 1;

    const auto& middles = isleapyear(year) ? leapyear : commonyear;
    const double y = year + middles[static_cast<std::size_t>(month - 1)];
    const int lunation = cint((y - 1900) * 12.3685);
    for (int phase = 0; phase < 4; ++phase) {
        const double k = lunation + 0.25 * phase;
        const auto& names = k < 0 ? earlyphasenames : phasenames;
        const auto place = static_cast<std::size_t>(phase);
        texts.phasejulians[place] = phasedate(k, phase);
        ++texts.lunarcount;
        texts.lunarlist[static_cast<std::size_t>(texts.lunarcount)] =
            phaseline(dayofmonth(texts.phasejulians[place]), month, year, names[place]);
    }
    sortlines(texts);

    texts.lunartext = "    \r";
    for (int i = 1; i <= texts.lunarcount; ++i) {
        texts.lunartext += texts.lunarlist[static_cast<std::size_t>(i)] + "\r";
    }
}

std::vector<MoonPhase> phasesbetween(std::chrono::sys_seconds from, std::chrono::sys_seconds until) {
    using std::chrono::seconds;
    constexpr double lunationsofyear = 12.3685, unixday = 2440587.5, secondsofday = 86400;
    std::vector<MoonPhase> phases;
    const int year = yearof(std::chrono::floor<std::chrono::days>(from));
    // Two lunations ahead of the year's start by the mean count.
    const int first = 4 * (static_cast<int>(std::floor((year - 1900) * lunationsofyear)) - 2);
    for (int quarter = first;; ++quarter) {
        const int phase = ((quarter % 4) + 4) % 4;
        const double J = phasedate(quarter / 4.0, phase);
        const std::chrono::sys_seconds moment{seconds(std::llround((J - unixday) * secondsofday))};
        if (moment >= until) return phases;
        if (moment >= from) phases.push_back({moment, phase});
    }
}

void SwapText(std::string& first, std::string& second) {
    std::swap(first, second);
}

}  // namespace tarvane
