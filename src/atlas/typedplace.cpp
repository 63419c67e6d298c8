#include "atlas/typedplace.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr double quarterturn = 90, halfturn = 180;

/// A number or a letter of a hemisphere.
struct Part {
    double number = 0;
    bool signedone = false, whole = true;
    char32_t letter = 0;
};

bool isdigit(char32_t letter) {
    return letter >= U'0' && letter <= U'9';
}

/// Marks of degrees, minutes and seconds, and what parts latitude from longitude.
bool isbetween(char32_t letter) {
    return std::u32string_view(U" \t\r\n\u00A0\u202F,;/°º˚'′’´\"″”").find(letter) != std::u32string_view::npos;
}

/// Decimal commas as points. Beside a point one parts the numbers, unless letters do that.
std::u32string pointed(std::u32string text) {
    const bool letters = text.find_first_of(U"nsew") != std::u32string::npos;
    if (!letters && text.find(U'.') != std::u32string::npos) return text;
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (text[i] == U',' && isdigit(text[i - 1]) && isdigit(text[i + 1])) text[i] = U'.';
    return text;
}

/// A dash between figures beside letters of hemispheres parts degrees from minutes.
std::u32string undashed(std::u32string text) {
    if (text.find_first_of(U"nsew") == std::u32string::npos) return text;
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (text[i] == U'-' && isdigit(text[i - 1]) && isdigit(text[i + 1])) text[i] = U' ';
    return text;
}

/// "lat 50.1 lon -1.4" without its words, latitude first; any other text as it is.
std::string unnamed(const std::string& text) {
    struct Name {
        std::size_t at = std::string::npos, end = 0;
    };
    const auto find = [&](std::initializer_list<std::string_view> words) {
        for (const std::string_view word : words)
            if (const std::size_t at = text.find(word); at != std::string::npos)
                return Name{at, std::min(text.find_first_not_of(".:= ", at + word.size()), text.size())};
        return Name{};
    };
    const Name lat = find({"latitude", "lat"}), lon = find({"longitude", "long", "lon", "lng"});
    const std::size_t first = std::min(lat.at, lon.at);
    if (std::max(lat.at, lon.at) == std::string::npos || text.find_first_not_of(" \t\r\n") != first) return text;
    if (lat.at < lon.at) return text.substr(lat.end, lon.at - lat.end) + " " + text.substr(lon.end);
    return text.substr(lat.end) + " " + text.substr(lon.end, lat.at - lon.end);
}

/// Nothing where anything else stands in the text.
std::optional<std::vector<Part>> partsof(std::string_view utf8) {
    const std::u32string text = undashed(pointed(codepoints(unnamed(lowercase(utf8)))));
    std::vector<Part> found;
    for (std::size_t i = 0; i < text.size();) {
        if (isbetween(text[i])) {
            ++i;
            continue;
        }
        if (std::u32string_view(U"nsew").find(text[i]) != std::u32string_view::npos) {
            found.push_back({.letter = text[i++]});
            continue;
        }
        std::string digits;
        const bool minus = text[i] == U'-' || text[i] == U'\u2212', sign = minus || text[i] == U'+';
        for (i += sign; i < text.size() && (isdigit(text[i]) || text[i] == U'.'); ++i)
            digits += static_cast<char>(text[i]);
        Part part{.signedone = sign, .whole = digits.find('.') == std::string::npos};
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), part.number);
        if (read.ec != std::errc() || read.ptr != digits.data() + digits.size()) return std::nullopt;
        if (minus) part.number = -part.number;
        found.push_back(part);
    }
    return found;
}

/// Degrees of up to three numbers: only the last may have decimals, minutes and seconds are below 60.
std::optional<double> degreesof(const std::vector<Part>& numbers) {
    if (numbers.empty() || numbers.size() > 3) return std::nullopt;
    double degrees = 0, unit = 1;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const Part& part = numbers[i];
        if (part.signedone || (i > 0 && part.number >= 60) || (i + 1 < numbers.size() && !part.whole))
            return std::nullopt;
        degrees += part.number * unit;
        unit /= 60;
    }
    return degrees;
}

std::optional<EarthPlace> placefrom(std::optional<double> latitude, std::optional<double> longitude) {
    if (!latitude || !longitude || std::abs(*latitude) > quarterturn || std::abs(*longitude) > halfturn)
        return std::nullopt;
    return EarthPlace{*latitude, *longitude};
}

/// Each with its letter before it or behind it, in either order.
std::optional<EarthPlace> letteredplace(const std::vector<Part>& parts) {
    const bool before = parts.front().letter != 0;
    std::optional<double> latitude, longitude;
    std::vector<Part> numbers;
    const auto close = [&](char32_t letter) {
        std::optional<double>& which = letter == U'n' || letter == U's' ? latitude : longitude;
        const auto degrees = degreesof(numbers);
        if (which || !degrees) return false;
        which = letter == U's' || letter == U'w' ? -*degrees : *degrees;
        numbers.clear();
        return true;
    };
    char32_t open = 0;
    for (const Part& part : parts) {
        if (!part.letter) {
            numbers.push_back(part);
        } else if (before) {
            if (open && !close(open)) return std::nullopt;
            open = part.letter;
        } else if (!close(part.letter)) {
            return std::nullopt;
        }
    }
    if (before ? !close(open) : !numbers.empty()) return std::nullopt;
    return placefrom(latitude, longitude);
}

std::string axistext(double degrees, const char* letters) {
    const long tenths = std::lround(std::abs(degrees) * 600);
    return std::to_string(tenths / 600) + "° " + (tenths % 600 < 100 ? "0" : "") +
           fixed(static_cast<double>(tenths % 600) / 10, 1) + "' " + letters[degrees < 0];
}

}  // namespace

std::optional<EarthPlace> readplace(std::string_view text) {
    const auto parts = partsof(text);
    if (!parts || parts->empty()) return std::nullopt;
    for (const Part& part : *parts)
        if (part.letter) return letteredplace(*parts);
    if (parts->size() != 2) return std::nullopt;
    return placefrom((*parts)[0].number, (*parts)[1].number);
}

std::string placetext(EarthPlace place) {
    return axistext(place.latitude, "NS") + ", " + axistext(std::remainder(place.longitude, 2 * halfturn), "EW");
}

}  // namespace tarvane
