#include "atlas/tablefields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "dates/isomoments.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr double mostmetres = 30;

struct Unit {
    const char* name;
    double metres;
};

constexpr std::array<Unit, 10> units{{{"metres", 1},
                                      {"meters", 1},
                                      {"metre", 1},
                                      {"meter", 1},
                                      {"feet", 0.3048},
                                      {"foot", 0.3048},
                                      {"ft", 0.3048},
                                      {"cm", 0.01},
                                      {"m", 1},
                                      {"'", 0.3048}}};

/// Cuts "am" or "pm" off a text.
std::optional<int> takehalfday(std::string& text) {
    for (const std::size_t length : {4U, 2U}) {
        if (text.size() <= length) continue;
        const auto half = readhalfday(text.substr(text.size() - length));
        if (!half) continue;
        text = trim(text.substr(0, text.size() - length));
        return half;
    }
    return std::nullopt;
}

}  // namespace

bool onlydigits(std::string_view text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<double> unitmetres(std::string_view word) {
    const auto unit = std::find_if(units.begin(), units.end(), [&](const Unit& each) { return word == each.name; });
    return unit == units.end() ? std::nullopt : std::optional(unit->metres);
}

std::optional<int> readhalfday(const std::string& typed) {
    std::string word = lowercase(typed);
    std::erase(word, '.');
    if (word == "am") return 0;
    if (word == "pm") return 12;
    return std::nullopt;
}

std::optional<Amount> readamount(const std::string& typed) {
    std::string text = lowercase(trim(typed));
    constexpr std::string_view minus = "\u2212";
    if (text.starts_with(minus)) text.replace(0, minus.size(), "-");
    if (text.ends_with('.')) text.pop_back();
    Amount amount;
    double scale = 1;
    for (const Unit& unit : units)
        if (!amount.unit && text.ends_with(unit.name)) {
            text = trim(text.substr(0, text.size() - std::string_view(unit.name).size()));
            amount.unit = true;
            scale = unit.metres;
        }
    std::replace(text.begin(), text.end(), ',', '.');
    if (text.starts_with('+')) text.erase(0, 1);
    const auto read = std::from_chars(text.data(), text.data() + text.size(), amount.metres, std::chars_format::fixed);
    const bool number = !text.empty() && read.ec == std::errc() && read.ptr == text.data() + text.size();
    amount.metres *= scale;
    return number && std::isfinite(amount.metres) ? std::optional(amount) : std::nullopt;
}

std::optional<WaterKind> readkind(const std::string& typed) {
    const std::string word = lowercase(trim(typed));
    const auto among = [&](std::initializer_list<const char*> words) {
        return std::find(words.begin(), words.end(), word) != words.end();
    };
    if (word.empty()) return WaterKind::either;
    if (among({"high", "hw", "h", "high water", "hochwasser", "pleine mer", "pleamar", "preamar"}))
        return WaterKind::high;
    if (among({"low", "lw", "l", "low water", "nw", "niedrigwasser", "basse mer", "bajamar", "baixa-mar"}))
        return WaterKind::low;
    return std::nullopt;
}

std::optional<int> readtime(const std::string& typed) {
    std::string text = lowercase(trim(typed));
    const auto half = takehalfday(text);
    const std::size_t mark = text.find_first_of(":h.");
    if (half && mark != std::string::npos && text[mark] == 'h') return std::nullopt;
    std::string hour = text, minute = "00";
    if (mark != std::string::npos) {
        hour = text.substr(0, mark);
        minute = text.substr(mark + 1);
        // Seconds that a table has are noughts.
        if (text[mark] == ':' && minute.ends_with(":00")) minute.resize(minute.size() - 3);
    } else if (onlydigits(text, 3, 4)) {
        hour = text.substr(0, text.size() - 2);
        minute = text.substr(text.size() - 2);
    } else if (!half) {
        return std::nullopt;
    }
    if (!onlydigits(hour, 1, 2) || !onlydigits(minute, 2, 2) || std::stoi(minute) > 59) return std::nullopt;
    int hours = std::stoi(hour);
    if (half && (hours < 1 || hours > 12)) return std::nullopt;
    if (half) hours = hours % 12 + *half;
    if (!half && hours == 24 && std::stoi(minute) == 0) return hours * 60;
    return hours < 24 ? std::optional(hours * 60 + std::stoi(minute)) : std::nullopt;
}

std::string tidytime(const std::string& typed) {
    std::string text = trim(typed);
    const auto minute = readtime(text);
    if (!minute || !takehalfday(text)) return typed;
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return two(*minute / 60) + ":" + two(*minute % 60);
}

std::optional<double> readheight(const std::string& typed) {
    const auto amount = readamount(typed);
    return amount && std::abs(amount->metres) <= mostmetres ? std::optional(amount->metres) : std::nullopt;
}

std::optional<Date> readisodate(const std::string& typed) {
    const std::string text = trim(typed);
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const std::string year = text.substr(0, 4), month = text.substr(5, 2), day = text.substr(8);
    if (!onlydigits(year, 4, 4) || !onlydigits(month, 2, 2) || !onlydigits(day, 2, 2) || std::stoi(year) == 0)
        return std::nullopt;
    const Date date = makedate(std::stoi(year), std::stoi(month), std::stoi(day));
    return isodate(date) == text ? std::optional(date) : std::nullopt;
}

}  // namespace tarvane
