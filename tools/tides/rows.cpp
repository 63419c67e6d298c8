#include "tides/rows.h"

#include <array>
#include <cassert>
#include <charconv>
#include <string_view>

namespace tarvane {

namespace {

std::string csvcell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

std::string jsonstring(const std::string& text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            quoted += '\\';
            quoted += character;
        } else if (code < 0x20) {
            quoted += "\\u00";
            quoted += digits[code >> 4];
            quoted += digits[code & 0xF];
        } else {
            quoted += character;
        }
    }
    return quoted + '"';
}

std::string jsonnumber(const std::string& text) {
    return text.find_first_of("ni") == std::string::npos ? text : "null";
}

}  // namespace

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

std::string shortest(float value) {
    std::array<char, 100> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    assert(written.ec == std::errc{});
    return std::string(buffer.data(), written.ptr);
}

RowWriter::RowWriter(std::ostream& out, OutputFormat format, std::span<const Column> columns)
    : stream(out), outputformat(format), heads(columns) {
    if (outputformat == OutputFormat::json) {
        stream << "[";
        return;
    }
    for (std::size_t i = 0; i < heads.size(); ++i)
        stream << (i ? "," : "") << heads[i].name;
    stream << "\n";
}

void RowWriter::row(const std::vector<std::string>& cells) {
    assert(cells.size() == heads.size());
    if (outputformat == OutputFormat::csv) {
        for (std::size_t i = 0; i < heads.size(); ++i)
            stream << (i ? "," : "") << csvcell(cells[i]);
        stream << "\n";
        return;
    }
    stream << (first ? "\n{" : ",\n{");
    first = false;
    for (std::size_t i = 0; i < heads.size(); ++i) {
        stream << (i ? ", \"" : "\"") << heads[i].name
               << "\": " << (heads[i].isnumber ? jsonnumber(cells[i]) : jsonstring(cells[i]));
    }
    stream << "}";
}

void RowWriter::finish() {
    if (outputformat == OutputFormat::json) stream << (first ? "]\n" : "\n]\n");
}

}  // namespace tarvane
