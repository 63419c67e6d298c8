#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <limits>
#include <vector>

namespace tarvane {
namespace {

constexpr int doubledigits = 15;
constexpr int floatdigits = 7;

/// A finite value as 0.d1d2d3... times ten to `point`; no digits for zero, no zero at either end.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

Decimal decimalof(double value, int significant) {
    Decimal result;
    if (value == 0) return result;
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::scientific, significant - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    for (const char c : text.substr(0, mark)) {
        if (c != '.') result.digits += c;
    }
    while (result.digits.back() == '0')
        result.digits.pop_back();
    int exponent = 0;
    const std::size_t start = mark + (text[mark + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + start, text.data() + text.size(), exponent);
    result.negative = value < 0;
    result.point = exponent + 1;
    return result;
}

std::string scientifictext(const Decimal& number) {
    std::string text(1, number.digits[0]);
    if (number.digits.size() > 1) text += "." + number.digits.substr(1);
    const int exponent = number.point - 1;
    const std::string size = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (size.size() < 2 ? "0" : "") + size;
}

/// The digits without a sign and without a zero before the point. Scientific below 1E-04 and past the significant
/// digits.
std::string plaindigits(const Decimal& number, int significant) {
    if (number.digits.empty()) return "0";
    if (number.point < -3 || number.point > significant) return scientifictext(number);
    if (number.point <= 0) return "." + std::string(static_cast<std::size_t>(-number.point), '0') + number.digits;
    const auto whole = static_cast<std::size_t>(number.point);
    if (number.digits.size() <= whole) return number.digits + std::string(whole - number.digits.size(), '0');
    return number.digits.substr(0, whole) + "." + number.digits.substr(whole);
}

/// A sign in front of the digits, and a zero before a leading point if asked for.
std::string signedtext(double value, int significant, std::string_view positivesign, bool leadingzero) {
    if (std::isnan(value)) return std::string(positivesign) + "NaN";
    const std::string sign(value < 0 ? "-" : positivesign);
    if (std::isinf(value)) return sign + "Inf";
    const std::string digits = plaindigits(decimalof(value, significant), significant);
    return sign + (leadingzero && digits[0] == '.' ? "0" : "") + digits;
}

/// Rounds to `places` after the point, half away from zero on the digits as they stand.
void rounddecimal(Decimal& number, int places) {
    const int keep = number.point + places;
    if (keep >= static_cast<int>(number.digits.size())) return;
    const bool up = keep >= 0 && number.digits[static_cast<std::size_t>(keep)] >= '5';
    number.digits.resize(keep > 0 ? static_cast<std::size_t>(keep) : 0);
    if (!up) return;
    for (std::size_t i = number.digits.size(); i-- > 0;) {
        if (number.digits[i] != '9') {
            ++number.digits[i];
            return;
        }
        number.digits[i] = '0';
    }
    number.digits.insert(number.digits.begin(), '1');
    ++number.point;
}

/// What one section of a pattern asks for.
struct Pattern {
    int wholedigits = 0;  ///< at least so many before the point
    int leastplaces = 0;
    int mostplaces = 0;
    bool point = false;
    bool grouped = false;
};

Pattern readpattern(std::string_view section) {
    Pattern pattern;
    for (const char c : section) {
        if (c == '.') {
            pattern.point = true;
        } else if (c == ',') {
            pattern.grouped = true;
        } else if (pattern.point && (c == '0' || c == '#')) {
            ++pattern.mostplaces;
            if (c == '0') pattern.leastplaces = pattern.mostplaces;
        } else if (c == '0' || (c == '#' && pattern.wholedigits > 0)) {
            ++pattern.wholedigits;
        }
    }
    return pattern;
}

std::string wholetext(const Decimal& number, const Pattern& pattern) {
    std::string digits;
    for (int i = 0; i < number.point; ++i) {
        const auto index = static_cast<std::size_t>(i);
        digits += index < number.digits.size() ? number.digits[index] : '0';
    }
    const auto least = static_cast<std::size_t>(pattern.wholedigits);
    if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
    if (pattern.grouped) {
        for (std::size_t left = digits.size(); left > 3; left -= 3)
            digits.insert(left - 3, 1, ',');
    }
    return digits;
}

std::string placestext(const Decimal& number, const Pattern& pattern) {
    std::string digits;
    for (int i = number.point; i < number.point + pattern.mostplaces; ++i) {
        const bool held = i >= 0 && static_cast<std::size_t>(i) < number.digits.size();
        digits += held ? number.digits[static_cast<std::size_t>(i)] : '0';
    }
    while (digits.size() > static_cast<std::size_t>(pattern.leastplaces) && digits.back() == '0')
        digits.pop_back();
    return digits;
}

std::vector<std::string_view> sectionsof(std::string_view pattern) {
    std::vector<std::string_view> sections;
    std::size_t start = 0;
    for (std::size_t mark = 0; mark != std::string_view::npos; start = mark + 1) {
        mark = pattern.find(';', start);
        sections.push_back(pattern.substr(start, mark - start));
    }
    return sections;
}

bool isdigit(char c) {
    return c >= '0' && c <= '9';
}

/// Length of a run of digits from `start`.
std::size_t digitrun(std::string_view text, std::size_t start) {
    std::size_t end = start;
    while (end < text.size() && isdigit(text[end]))
        ++end;
    return end - start;
}

/// What an unsigned number outside the range of doubles reads as: the greatest double, or 0 for one too near to 0.
double outofrange(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    if (number.find_first_of("123456789") >= mark) return 0;
    double exponent = 0;
    if (mark < number.size()) {
        const bool below = number[mark + 1] == '-';
        for (const char c : number.substr(mark + 1))
            if (isdigit(c)) exponent = exponent * 10 + (c - '0');
        if (below) exponent = -exponent;
    }
    const auto point = static_cast<double>(std::min(number.find('.'), mark));
    const auto leading = static_cast<double>(number.find_first_of("123456789"));
    return point - leading + exponent > 0 ? std::numeric_limits<double>::max() : 0;
}

}  // namespace

double roundeven(double value) {
    return std::nearbyint(value);
}

std::int16_t cint(double value) {
    using limits = std::numeric_limits<std::int16_t>;
    if (std::isnan(value)) return 0;
    const double whole = roundeven(value);
    if (whole <= limits::min()) return limits::min();
    if (whole >= limits::max()) return limits::max();
    return static_cast<std::int16_t>(whole);
}

double val(std::string_view text) {
    std::string packed;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') packed += c;
    }
    std::size_t start = 0;
    const bool negative = !packed.empty() && packed[0] == '-';
    if (!packed.empty() && (packed[0] == '-' || packed[0] == '+')) start = 1;
    std::size_t end = start + digitrun(packed, start);
    std::size_t digits = end - start;
    if (end < packed.size() && packed[end] == '.') {
        const std::size_t places = digitrun(packed, end + 1);
        digits += places;
        end += 1 + places;
    }
    if (digits == 0) return 0;
    if (end < packed.size() && (packed[end] == 'e' || packed[end] == 'E')) {
        const bool sign = end + 1 < packed.size() && (packed[end + 1] == '+' || packed[end + 1] == '-');
        const std::size_t first = end + (sign ? 2 : 1);
        if (const std::size_t run = digitrun(packed, first); run > 0) end = first + run;
    }
    double value = 0;
    const auto read = std::from_chars(packed.data() + start, packed.data() + end, value);
    if (read.ec == std::errc::result_out_of_range)
        value = outofrange(std::string_view(packed).substr(start, end - start));
    return negative ? -value : value;
}

std::string str(double value) {
    return signedtext(value, doubledigits, " ", false);
}
std::string str(float value) {
    return signedtext(value, floatdigits, " ", false);
}
std::string str(int value) {
    return str(static_cast<double>(value));
}

std::string numbertext(double value) {
    return signedtext(value, doubledigits, "", true);
}
std::string numbertext(float value) {
    return signedtext(value, floatdigits, "", true);
}
std::string numbertext(int value) {
    return numbertext(static_cast<double>(value));
}

std::string shortest(float value) {
    std::array<char, 100> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return std::string(buffer.data(), written.ptr);
}

std::string fixed(double value, int decimals) {
    // 309 digits of the greatest double, a sign, a point and the decimals
    std::array<char, 400> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    assert(written.ec == std::errc{});
    std::string text(buffer.data(), written.ptr);
    if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
    return text;
}

std::string format(double value, std::string_view pattern) {
    if (!std::isfinite(value)) return {};
    const std::vector<std::string_view> sections = sectionsof(pattern);
    const std::size_t wanted = value < 0 ? 1 : value == 0 ? 2 : 0;
    const bool own = wanted < sections.size() && !sections[wanted].empty();
    const Pattern shape = readpattern(sections[own ? wanted : 0]);
    Decimal number = decimalof(value, doubledigits);
    rounddecimal(number, shape.mostplaces);
    std::string text = wholetext(number, shape);
    if (shape.point) text += "." + placestext(number, shape);
    const bool sign = number.negative && text.find_first_of("123456789") != std::string::npos;
    return (sign && !(own && wanted == 1) ? "-" : "") + text;
}

}  // namespace tarvane
