#include "text/singlebyte.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvane {
namespace {

constexpr char32_t unknown = 0xFFFD;

/// Windows-1252 from 0x80 to 0x9F; every other code is its own code point.
constexpr std::array<char32_t, 32> highcodes = {0x20AC,  unknown, 0x201A, 0x0192, 0x201E, 0x2026,  0x2020, 0x2021,
                                                0x02C6,  0x2030,  0x0160, 0x2039, 0x0152, unknown, 0x017D, unknown,
                                                unknown, 0x2018,  0x2019, 0x201C, 0x201D, 0x2022,  0x2013, 0x2014,
                                                0x02DC,  0x2122,  0x0161, 0x203A, 0x0153, unknown, 0x017E, 0x0178};

struct Step {
    char32_t code = unknown;
    std::size_t length = 1;
    bool valid = false;
};

/// The character that starts at `start`; a byte that starts none is one unknown character by itself.
Step decodeat(std::string_view text, std::size_t start) {
    const auto lead = static_cast<unsigned char>(text[start]);
    if (lead < 0x80) return {lead, 1, true};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || start + length > text.size()) return {};
    char32_t code = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[start + i]);
        if ((next & 0xC0) != 0x80) return {};
        code = (code << 6) | (next & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < least[length] || surrogate || code > 0x10FFFF) return {};
    return {code, length, true};
}

void appendutf8(std::string& text, char32_t code) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

std::optional<char> byteof(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(static_cast<unsigned char>(code));
    const auto found = std::find(highcodes.begin(), highcodes.end(), code);
    if (code == unknown || found == highcodes.end()) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - highcodes.begin())));
}

struct LetterPair {
    char32_t upper;
    char32_t lower;
};
/// The letters whose two cases aren't 32 codes apart.
constexpr std::array<LetterPair, 4> oddpairs = {{{0x160, 0x161}, {0x152, 0x153}, {0x17D, 0x17E}, {0x178, 0xFF}}};

char32_t foldup(char32_t code) {
    for (const LetterPair& pair : oddpairs) {
        if (code == pair.lower) return pair.upper;
    }
    const bool accented = code >= 0xE0 && code <= 0xFE && code != 0xF7;
    return (code >= 'a' && code <= 'z') || accented ? code - 32 : code;
}

char32_t folddown(char32_t code) {
    for (const LetterPair& pair : oddpairs) {
        if (code == pair.upper) return pair.lower;
    }
    const bool accented = code >= 0xC0 && code <= 0xDE && code != 0xD7;
    return (code >= 'A' && code <= 'Z') || accented ? code + 32 : code;
}

template <class Fold>
std::string folded(std::string_view utf8, Fold fold) {
    std::string result;
    for (std::size_t i = 0; i < utf8.size();) {
        const Step step = decodeat(utf8, i);
        if (step.valid) {
            appendutf8(result, fold(step.code));
        } else {
            result += utf8[i];
        }
        i += step.length;
    }
    return result;
}

}  // namespace

std::string tosinglebyte(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const Step step = decodeat(utf8, i);
        bytes += byteof(step.code).value_or('?');
        i += step.length;
    }
    return bytes;
}

std::string fromsinglebyte(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        appendutf8(text, code >= 0x80 && code <= 0x9F ? highcodes[code - 0x80u] : code);
    }
    return text;
}

bool fitssinglebyte(std::string_view utf8) {
    for (std::size_t i = 0; i < utf8.size();) {
        const Step step = decodeat(utf8, i);
        if (!byteof(step.code)) return false;
        i += step.length;
    }
    return true;
}

bool validutf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const Step step = decodeat(text, i);
        if (!step.valid) return false;
        i += step.length;
    }
    return true;
}

std::string ltrim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string rtrim(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string trim(std::string_view text) {
    return ltrim(rtrim(text));
}

std::string leftcharacters(std::string_view utf8, std::size_t n) {
    std::size_t end = 0;
    for (std::size_t count = 0; count < n && end < utf8.size(); ++count)
        end += decodeat(utf8, end).length;
    return std::string(utf8.substr(0, end));
}

std::size_t charactercount(std::string_view utf8) {
    return codepoints(utf8).size();
}

std::string uppercase(std::string_view utf8) {
    return folded(utf8, foldup);
}
std::string lowercase(std::string_view utf8) {
    return folded(utf8, folddown);
}

std::u32string codepoints(std::string_view utf8) {
    std::u32string codes;
    for (std::size_t i = 0; i < utf8.size();) {
        const Step step = decodeat(utf8, i);
        codes += step.code;
        i += step.length;
    }
    return codes;
}

}  // namespace tarvane
