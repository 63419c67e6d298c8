// The names of months and days in English on every machine, for sentences that are English. Must not ask the system.
#pragma once

#include <array>

#include "dates/dateformats.h"
#include "platform/locale.h"

namespace tarvane {

class EnglishLocale final : public Locale {
  public:
    int systemid() const override { return 0; }
    std::optional<std::string> info(int, int) const override { return std::nullopt; }
    std::string shortdate(std::chrono::sys_days date) const override { return formatdate(*this, date, "yyyy-mm-dd"); }
    std::optional<std::chrono::sys_days> parsedate(std::string_view) const override { return std::nullopt; }

    std::string monthname(int month) const override { return months.at(static_cast<std::size_t>(month - 1)); }
    std::string monthabbreviation(int month) const override { return monthname(month).substr(0, 3); }
    std::string dayname(int weekday) const override { return days.at(static_cast<std::size_t>(weekday)); }
    std::string dayabbreviation(int weekday) const override { return dayname(weekday).substr(0, 3); }
    std::string dayletter(int weekday) const override { return dayname(weekday).substr(0, 1); }

  private:
    static constexpr std::array<const char*, 7> days{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                     "Thursday", "Friday", "Saturday"};
    static constexpr std::array<const char*, 12> months{"January",   "February", "March",    "April",
                                                        "May",       "June",     "July",     "August",
                                                        "September", "October",  "November", "December"};
};

}  // namespace tarvane
