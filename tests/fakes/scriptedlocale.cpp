#include "fakes/scriptedlocale.h"

#include <cstdio>

namespace tarvane {
namespace {

std::string digits(int value, int width) {
    std::array<char, 16> text;
    std::snprintf(text.data(), text.size(), "%0*d", width, value);
    return text.data();
}

/// The numbers of a text that is three of them with "/", "-" or "." between them.
std::optional<std::array<int, 3>> threenumbers(const std::string& text) {
    std::array<int, 3> numbers{};
    std::size_t length = 0;
    if (std::sscanf(text.c_str(), "%4d%*1[-/.]%4d%*1[-/.]%4d%zn", &numbers[0], &numbers[1], &numbers[2], &length) < 3 ||
        length < text.size())
        return std::nullopt;
    return numbers;
}

}  // namespace

std::optional<std::string> ScriptedLocale::info(int lcid, int lctype) const {
    if (const auto found = infotexts.find(lctype); found != infotexts.end()) return found->second;
    if (lcid != id) return std::nullopt;
    if (lctype == 29) return separator;
    if (lctype == 4097) return "English";
    return std::nullopt;
}

std::string ScriptedLocale::shortdate(std::chrono::sys_days date) const {
    if (shorttext) return *shorttext;
    const std::chrono::year_month_day parts{date};
    std::string text;
    for (const char place : order) {
        if (!text.empty()) text += separator;
        if (place == 'Y') text += digits(static_cast<int>(parts.year()), 4);
        if (place == 'M') text += digits(static_cast<int>(static_cast<unsigned>(parts.month())), 2);
        if (place == 'D') text += digits(static_cast<int>(static_cast<unsigned>(parts.day())), 2);
    }
    return text;
}

std::optional<std::chrono::sys_days> ScriptedLocale::parsedate(std::string_view text) const {
    if (const auto found = readings.find(text); found != readings.end()) return found->second;
    const auto numbers = threenumbers(std::string(text));
    if (!numbers) return std::nullopt;
    const bool yearfirst = text.find_first_of("/-.") == 4;
    const bool dayfirst = order.find('D') < order.find('M');
    const int first = (*numbers)[yearfirst ? 1 : 0];
    const int second = (*numbers)[yearfirst ? 2 : 1];
    const std::chrono::year_month_day date{std::chrono::year{(*numbers)[yearfirst ? 0 : 2]},
                                           std::chrono::month{static_cast<unsigned>(dayfirst ? second : first)},
                                           std::chrono::day{static_cast<unsigned>(dayfirst ? first : second)}};
    if (!date.ok()) return std::nullopt;
    return std::chrono::sys_days{date};
}

}  // namespace tarvane
