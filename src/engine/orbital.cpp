#include "engine/orbital.h"

#include <array>
#include <cmath>
#include <span>

#include "text/numbers.h"

namespace tarvane {
namespace {

// kept: the engine's own pi, three pi and degrees in a radian, whose last digits are not the true ones
constexpr double pi = 3.14159265358598;
constexpr double threepi = 9.42477796075794;
constexpr double radtodeg = 57.29577951;

/// Mean longitudes in degrees: moon, sun, lunar perigee, lunar node, solar perigee.
struct MeanLongitudes {
    double s, h, p, N, p1;
};

constexpr MeanLongitudes dailyrates{13.176396, 0.985647, 0.111404, -0.052954, 0.000047};

constexpr int firsttableyear = 1991;
constexpr std::array<MeanLongitudes, 10> yeartable{{
    {100.91, 280.15, 77.11, 299.13, 282.78},
    {230.30, 279.91, 117.78, 279.80, 282.80},
    {12.86, 280.66, 158.55, 260.42, 282.82},
    {142.24, 280.42, 199.21, 241.09, 282.84},
    {271.63, 280.18, 239.87, 221.76, 282.85},
    {41.01, 279.94, 280.54, 202.44, 282.87},
    {183.57, 280.69, 321.31, 183.06, 282.89},
    {312.96, 280.45, 1.97, 163.73, 282.90},
    {82.34, 280.21, 42.64, 144.40, 282.92},
    {211.73, 279.97, 83.30, 125.07, 282.94},
}};
constexpr int walkstart = 1992;

MeanLongitudes stepyear(const MeanLongitudes& from, double days) {
    return {wrap360(from.s + days * dailyrates.s), wrap360(from.h + days * dailyrates.h),
            wrap360(from.p + days * dailyrates.p), wrap360(from.N + days * dailyrates.N),
            wrap360(from.p1 + days * dailyrates.p1)};
}

/// The length that a year's own number asks for; `otherwise` for a year that divides by no 4.
int yearlength(int year, int otherwise) {
    int length = otherwise;
    if (year % 4 == 0) length = 366;
    if (year % 100 == 0) length = year % 400 == 0 ? 366 : 365;
    return length;
}

MeanLongitudes yearrow(int year) {
    if (year >= firsttableyear && year <= 2000) return yeartable[static_cast<std::size_t>(year - firsttableyear)];
    // kept: 1990 has neither a row nor a walk, and is computed from zeros
    if (year == 1990) return {};
    // kept: years past the table too are walked to from 1992, and needn't follow on from the row of 2000
    MeanLongitudes row = yeartable[walkstart - firsttableyear];
    int length = 366;
    if (year > 2000) {
        for (int counter = walkstart; counter != year;) {
            row = stepyear(row, length);
            length = yearlength(++counter, 365);
        }
        return row;
    }
    // kept: walking back takes the length of the year being left, and only a century sets it back to 365
    for (int counter = walkstart; counter != year; --counter) {
        length = yearlength(counter, length);
        row = stepyear(row, -length);
    }
    return row;
}

/// Angles of the day in degrees, and the node's in the mixed units that its sums take.
struct DayArguments {
    double s, h, p, p1;
    double N;        ///< radians
    double N2, N3;   ///< degrees, though sines are taken of them
    double A, B, C;  ///< radians: 2p, 2p - N, 2p - 2N
};

DayArguments dayarguments(int year, int daynumber) {
    const MeanLongitudes row = yearrow(year);
    const double days = daynumber - 1;
    DayArguments day{};
    day.s = wrap360(row.s + dailyrates.s * days);
    day.h = wrap360(row.h + dailyrates.h * days);
    day.p = wrap360(row.p + dailyrates.p * days);
    const double node = wrap360(row.N + dailyrates.N * days);
    day.p1 = row.p1 + dailyrates.p1 * days;
    // kept: the doubled and tripled node stay in degrees, and their sines and cosines are taken as if they were radians
    day.N2 = wrap360(node + node);
    day.N3 = wrap360(3 * node);
    day.A = degtorad(wrap360(2 * day.p));
    day.B = degtorad(wrap360(2 * day.p - node));
    day.C = degtorad(wrap360(2 * day.p - 2 * node));
    day.N = degtorad(node);
    return day;
}

/// Nodal angles (degrees) and factors of the constituents that have them.
struct NodalTerms {
    double uM2, uL2, uO1, uK1, uJ1, uK2;
    double fM2, fL2, fO1, fK1, fJ1, fK2;
};

std::optional<NodalTerms> nodalterms(const DayArguments& day) {
    const double sinN = std::sin(day.N), cosN = std::cos(day.N);
    const double sinN2 = std::sin(day.N2), cosN2 = std::cos(day.N2);
    const double sinN3 = std::sin(day.N3), cosN3 = std::cos(day.N3);
    const double X = -0.25 * std::sin(day.A) - 0.1102 * std::sin(day.B) - 0.0156 * std::sin(day.C) - 0.037 * sinN;
    const double Y = 1 - 0.25 * std::cos(day.A) - 0.1102 * std::cos(day.B) - 0.0156 * std::cos(day.C) - 0.037 * cosN;
    NodalTerms terms{};
    terms.uL2 = polarangle(X, Y);
    const double divisor = std::sin(degtorad(terms.uL2));
    if (divisor == 0) return std::nullopt;
    terms.fL2 = X / divisor;
    terms.uM2 = -2.14 * sinN;
    terms.uO1 = -1.34 * sinN2 + 10.8 * sinN + 0.19 * sinN3;
    terms.uK1 = 0.68 * sinN2 - 8.86 * sinN - 0.07 * sinN3;
    terms.uJ1 = 1.34 * sinN2 - 12.94 * sinN - 0.19 * sinN3;
    terms.uK2 = 0.68 * sinN2 - 17.74 * sinN - 0.04 * sinN3;
    terms.fO1 = 1.0089 + 0.1871 * cosN - 0.0147 * cosN2 + 0.0014 * cosN3;
    terms.fK1 = 1.006 + 0.115 * cosN - 0.0088 * cosN2 + 0.0006 * cosN3;
    terms.fJ1 = 1.0129 + 0.1676 * cosN - 0.017 * cosN2 + 0.0016 * cosN3;
    terms.fM2 = 1.0004 - 0.0373 * cosN + 0.0002 * cosN2;
    terms.fK2 = 1.0246 + 0.2863 * cosN + 0.0083 * cosN2 - 0.0015 * cosN3;
    return terms;
}

/// A member of a group: its angle before wrapping (nodal angle + V - lag, degrees) and its radius.
struct Member {
    double angle;
    double radius;
};

struct Folded {
    double angle;  ///< degrees
    double factor;
};

Folded fold(std::span<const Member> members) {
    double A = 0, B = 0;
    for (const Member& member : members) {
        double sinepart = 0, cosinepart = 0;
        vectorparts(wrap360(member.angle), member.radius, sinepart, cosinepart);
        A += sinepart;
        B += cosinepart;
    }
    return {polarangle(A, B), std::sqrt(A * A + B * B)};
}

Folded foldm2(const DayArguments& d, const NodalTerms& n) {
    const Member members[] = {
        {n.uM2 + (2 * d.h - 4 * d.s + 2 * d.p) + 30, n.fM2 * 0.02534},  // 2N2
        {n.uM2 + (4 * d.h - 4 * d.s) + 30, n.fM2 * 0.03057},            // mu2
        {n.uM2 + (2 * d.h - 3 * d.s + d.p) + 15, n.fM2 * 0.19146},      // N2
        {n.uM2 + (4 * d.h - 3 * d.s - d.p) + 15, n.fM2 * 0.03636},      // nu2
        {n.uM2 + (2 * d.h - 2 * d.s), n.fM2},                           // M2
        {n.uM2 + (-d.s + d.p + 180) - 15, n.fM2 * 0.00738},             // lambda2
        {n.uL2 + (2 * d.h - d.s - d.p + 180) - 15, n.fL2 * 0.02827},    // L2
    };
    return fold(members);
}

Folded folds2(const DayArguments& d, const NodalTerms& n) {
    const Member members[] = {
        {d.p1 - d.h, 0.05861},               // T2
        {0, 1},                              // S2
        {n.uK2 + 2 * d.h, n.fK2 * 0.27215},  // K2
    };
    return fold(members);
}

Folded foldk1(const DayArguments& d, const NodalTerms& n) {
    const Member members[] = {
        {d.p1 - 2 * d.h - 90, 0.01939},                   // pi1
        {-d.h - 90, 0.33093},                             // P1
        {n.uK1 + d.h + 90, n.fK1},                        // K1
        {3 * d.h + 90, 0.01424},                          // phi1
        {n.uJ1 + d.h + d.s - d.p + 90, n.fJ1 * 0.05591},  // J1
    };
    return fold(members);
}

Folded foldo1(const DayArguments& d, const NodalTerms& n) {
    const Member members[] = {
        {n.uO1 + d.h - 4 * d.s + 2 * d.p - 90, n.fO1 * 0.02534},  // 2Q1
        {n.uO1 + 3 * d.h - 4 * d.s - 90, n.fO1 * 0.03056},        // sigma1
        {n.uO1 + d.h - 3 * d.s + d.p - 90, n.fO1 * 0.1946},       // Q1
        {n.uO1 + 3 * d.h - 3 * d.s - d.p - 90, n.fO1 * 0.03637},  // rho1
        {n.uO1 + d.h - 2 * d.s - 90, n.fO1},                      // O1
    };
    return fold(members);
}

std::int16_t roundedthenwrapped(double angle) {
    return static_cast<std::int16_t>(wrap360(cint(360 - angle)));
}

/// The whole turn over a day: the first of start, start + 360, ... that is greater than `threshold`.
double wholeturn(int from, int to, double threshold) {
    double turn = from - to;
    while (turn <= threshold)
        turn += 360;
    return turn;
}

}  // namespace

double wrap360(double x) {
    if (!std::isfinite(x)) return x;
    // Far out the steps below would be too many, or too small to count; fmod gives what they would.
    if (std::abs(x) > 1e7) {
        const double rest = std::fmod(x, 360);
        if (rest == 0) return x < 0 ? 0 : 360;
        x = rest;
    }
    if (x < 0) {
        while (x < 0)
            x += 360;
        return x;
    }
    if (x > 360) {
        // kept: what comes down to exactly 360 stays 360; only 360 itself gives 0
        while (x > 360)
            x -= 360;
        return x;
    }
    return x == 360 ? 0 : x;
}

double degtorad(double x) {
    return (x * pi) / 180;
}

double polarangle(double a, double b) {
    double angle = 0;
    if (a > 0) {
        if (b > 0) angle = std::atan(a / b);
        if (b < 0) angle = std::atan(std::abs(b / a)) + pi / 2;
        if (b == 0) angle = pi / 2;
    } else if (a == 0) {
        if (b < 0) angle = pi;
    } else if (a < 0) {
        if (b > 0) angle = std::atan(std::abs(b / a)) + threepi / 2;
        if (b < 0) angle = std::atan(std::abs(a / b)) + pi;
        if (b == 0) angle = threepi / 2;
    }
    return angle * radtodeg;
}

void polarform(double a, double b, double& radius, double& angle) {
    radius = std::sqrt(a * a + b * b);
    angle = polarangle(a, b);
}

void vectorparts(double angle, double radius, double& sinepart, double& cosinepart) {
    if (!(angle >= 0 && angle <= 360)) return;
    const double x = pi * ((angle * 2) / 360);
    sinepart = radius * std::sin(x);
    cosinepart = radius * std::cos(x);
}

std::optional<AnglesAndFactors> orbitalconstants(int year, int daynumber) {
    const DayArguments day = dayarguments(year, daynumber);
    const std::optional<NodalTerms> terms = nodalterms(day);
    if (!terms) return std::nullopt;
    const Folded m2 = foldm2(day, *terms);
    const Folded s2 = folds2(day, *terms);
    const Folded k1 = foldk1(day, *terms);
    const Folded o1 = foldo1(day, *terms);
    AnglesAndFactors result;
    result.ma = roundedthenwrapped(m2.angle);
    result.mf = m2.factor;
    // kept: S2 alone wraps first and rounds then, so that 360 can come out
    result.sa = cint(wrap360(360 - s2.angle));
    result.sf = s2.factor;
    result.ka = roundedthenwrapped(k1.angle);
    result.kf = k1.factor;
    result.oa = roundedthenwrapped(o1.angle);
    result.of = o1.factor;
    return result;
}

SpeedsAndRates speedsandrates(const AnglesAndFactors& day, const AnglesAndFactors& next) {
    SpeedsAndRates rates;
    rates.dam = wholeturn(day.ma, next.ma, 600) / 24;
    rates.das = wholeturn(day.sa, next.sa, 600) / 24;
    rates.dak = wholeturn(day.ka, next.ka, 300) / 24;
    rates.dao = wholeturn(day.oa, next.oa, 300) / 24;
    rates.dfm = (next.mf - day.mf) / 24;
    rates.dfs = (next.sf - day.sf) / 24;
    rates.dfk = (next.kf - day.kf) / 24;
    rates.dfo = (next.of - day.of) / 24;
    return rates;
}

std::optional<OrbitalSpan> orbitalspan(int year, int daynumber) {
    const auto day = orbitalconstants(year, daynumber);
    const auto next = orbitalconstants(year, daynumber + 1);
    if (!day || !next) return std::nullopt;
    return OrbitalSpan{*day, *next, speedsandrates(*day, *next)};
}

}  // namespace tarvane
