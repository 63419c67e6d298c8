// A system with the date conventions that a test asks for: order, separator, names, and any single answer overridden.
// Must not look at the machine it runs on.
#pragma once

#include <array>
#include <chrono>
#include <map>
#include <optional>
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

    std::optional<std::string> info(int lcid, int lctype) const override;
    std::string shortdate(std::chrono::sys_days date) const override;
    std::optional<std::chrono::sys_days> parsedate(std::string_view text) const override;

    std::string monthname(int month) const override { return months.at(static_cast<std::size_t>(month - 1)); }
    std::string monthabbreviation(int month) const override {
        return shortmonths.at(static_cast<std::size_t>(month - 1));
    }
    std::string dayname(int weekday) const override { return days.at(static_cast<std::size_t>(weekday)); }
    std::string dayabbreviation(int weekday) const override { return shortdays.at(static_cast<std::size_t>(weekday)); }
    std::string dayletter(int weekday) const override { return dayabbreviation(weekday).substr(0, 1); }
};

}  // namespace tarvane
