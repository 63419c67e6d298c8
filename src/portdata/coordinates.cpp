#include "portdata/coordinates.h"

#include <cmath>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

double parse(std::string_view text, char turning) {
    const std::size_t point = text.find('.');
    double result = val(text.substr(0, point));
    if (point != std::string_view::npos) {
        const std::string_view rest = text.substr(point + 1);
        result += val(rest.substr(0, rest.find('.'))) / 60;
    }
    // kept: two turning letters cancel each other
    for (const char c : text) {
        if (c == turning) result *= -1;
    }
    return result;
}

/// The short form, with the letters for values below and above 0.
std::string shorttext(double degrees, const char* below, const char* above) {
    const double whole = std::trunc(degrees);
    const double rest = std::fabs(whole - degrees);
    // kept: a rest that rounds to a whole degree reads 60 minutes
    const double minutes = cint(rest * 60 * 100) / 100.0;
    const std::string text = (minutes < 10 ? "0" : "") + ltrim(str(minutes));
    const char* letter = degrees < 0 ? below : degrees > 0 ? above : "";
    return str(std::fabs(whole)) + "." + leftcharacters(text, 5) + letter;
}

struct Split {
    double degrees;
    double minutes;
};

Split withpoint(double value) {
    Split split{std::fabs(value < 0 ? std::trunc(value) : std::trunc(value + 0.00001)), 0};
    split.minutes = 60 * std::fabs(split.degrees - std::fabs(value));
    // kept: minutes just below 60 stay and are written as "60.00"
    if (split.minutes == 60) return {split.degrees + 1, 0};
    return split;
}

Split withcomma(double value) {
    Split split{std::fabs(std::trunc(value)), 0};
    split.minutes = 60 * (std::fabs(split.degrees - std::fabs(value)) + 0.00000001);
    if (split.minutes >= 60) return {split.degrees + 1, 0};
    return split;
}

std::string hundredthstext(double minutes) {
    const double hundredths = 100 * (minutes - std::trunc(minutes));
    if (hundredths <= 0.999) return "00";
    // kept: above 9 and below 10 the cut number is "9."
    const std::string text = (hundredths >= 1 && hundredths <= 9 ? "0" : "") + numbertext(hundredths);
    return leftcharacters(text, 2);
}

std::string edittext(double value, DecimalMark mark, const char* width, const char* below, const char* above) {
    const std::string letter = value < 0 ? below : above;
    if (mark == DecimalMark::point) {
        const Split split = withpoint(value);
        return format(split.degrees, width) + "." + leftcharacters(format(split.minutes, "00.00"), 5) + letter;
    }
    const Split split = withcomma(value);
    return format(split.degrees, width) + "." + format(std::trunc(split.minutes), "00") + "." +
           hundredthstext(split.minutes) + letter;
}

}  // namespace

double ParseLatitude(std::string_view text) {
    return parse(text, 'S');
}
double ParseLongitude(std::string_view text) {
    return parse(text, 'W');
}

std::string LatitudeText(double degrees) {
    return shorttext(degrees, "S", "N");
}
std::string LongitudeText(double degrees) {
    return shorttext(degrees, "W", "E");
}

std::string LatitudeEditText(double degrees, DecimalMark mark) {
    return edittext(degrees, mark, "00", "S", "N");
}
std::string LongitudeEditText(double degrees, DecimalMark mark) {
    return edittext(degrees, mark, "000", "W", "E");
}

}  // namespace tarvane
