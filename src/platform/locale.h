// The system's date conventions. What is made of them (patterns, captions, the probe of the short date order) is not
// here.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tarvane {

class Locale {
  public:
    virtual ~Locale() = default;

    /// GetSystemDefaultLCID: the system's locale id, 0 if it has none.
    virtual int systemid() const = 0;

    /// GetLocaleInfoA: the text of one information id (29 date separator, 31 short date pattern, 32 long date pattern,
    /// 4097 English language name, 4105 calendar type ...). Nothing when the system doesn't know it.
    virtual std::optional<std::string> info(int lcid, int lctype) const = 0;

    /// The date in the system's short form with a four-digit year, "22/11/2026".
    virtual std::string shortdate(std::chrono::sys_days date) const = 0;

    /// A date text read by the system's short date order, the separator being any of "/", "-", "." ; a text that begins
    /// with four digits is read year first, its other two numbers in the system's order of day and month. Nothing if it
    /// is no date.
    virtual std::optional<std::chrono::sys_days> parsedate(std::string_view text) const = 0;

    /// Names in the system language; months 1 to 12, weekdays 0 (Sunday) to 6.
    virtual std::string monthname(int month) const = 0;
    virtual std::string monthabbreviation(int month) const = 0;
    virtual std::string dayname(int weekday) const = 0;
    virtual std::string dayabbreviation(int weekday) const = 0;
    virtual std::string dayletter(int weekday) const = 0;  ///< as narrow as can be; several days may share one
};

}  // namespace tarvane
