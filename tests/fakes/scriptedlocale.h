// A system with the date conventions that a test asks for: order, separator, names, and any single answer overridden.
// Must not look at the machine it runs on.
#pragma once

#include <array>
#include <chrono>
#include <cstdio>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <string_view>

#include "platform/locale.h"

namespace tarvane {

class ScriptedLocale : public Locale {
  public:
    std::string order = "DMY";  ///< "DMY", "MDY", "YMD" or "YDM"
    std::string separator = "/";
    int id = 2057;
    std::array<std::string, 12> months{"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
    std::array<std::string, 12> shortmonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::array<std::string, 7> days{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    std::array<std::string, 7> shortdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

    /// Overrides: an information text by its id (nothing = the system doesn't know it), the short text of every date,
    /// and what one date text is read as (nothing = no date).
    std::map<int, std::optional<std::string>> infotexts;
    std::optional<std::string> shorttext;
    std::map<std::string, std::optional<std::chrono::sys_days>, std::less<>> readings;

    int systemid() const override { return id; }

    std::optional<std::string> info(int lcid, int lctype) const override {
        if (const auto found = infotexts.find(lctype); found != infotexts.end()) return found->second;
        if (lcid != id) return std::nullopt;
        if (lctype == 29) return separator;
        if (lctype == 4097) return "English";
        return std::nullopt;
    }

    std::string shortdate(std::chrono::sys_days date) const override {
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

    std::optional<std::chrono::sys_days> parsedate(std::string_view text) const override {
        if (const auto found = readings.find(text); found != readings.end()) return found->second;
        const auto numbers = threenumbers(text);
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

    std::string monthname(int month) const override { return months.at(static_cast<std::size_t>(month - 1)); }
    std::string monthabbreviation(int month) const override {
        return shortmonths.at(static_cast<std::size_t>(month - 1));
    }
    std::string dayname(int weekday) const override { return days.at(static_cast<std::size_t>(weekday)); }
    std::string dayabbreviation(int weekday) const override { return shortdays.at(static_cast<std::size_t>(weekday)); }

  private:
    static std::string digits(int value, int width) {
        std::array<char, 16> text;
        std::snprintf(text.data(), text.size(), "%0*d", width, value);
        return text.data();
    }

    static std::optional<std::array<int, 3>> threenumbers(std::string_view text) {
        const std::regex pattern("([0-9]{1,4})[-/.]([0-9]{1,4})[-/.]([0-9]{1,4})");
        std::cmatch match;
        if (!std::regex_match(text.data(), text.data() + text.size(), match, pattern)) return std::nullopt;
        return std::array{std::stoi(match[1]), std::stoi(match[2]), std::stoi(match[3])};
    }
};

}  // namespace tarvane
