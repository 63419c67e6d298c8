// The command line of `tides`: what it may hold, and what is wrong with one. Must not read files or the clock.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dates/calendar.h"
#include "tides/planoptions.h"
#include "tides/rows.h"
#include "tides/views.h"

namespace tarvane {

inline constexpr int mostdays = 3660;  ///< ten years

struct Options {
    std::string answer;  ///< what --help or --version prints, and nothing else is asked for
    std::optional<std::string> area;
    std::optional<std::string> port;  ///< UTF-8
    std::optional<Date> date;
    int days = 1;
    std::optional<bool> summer;
    const View* view = nullptr;  ///< set after a parse without fault
    bool daysgiven = false;
    PlanOptions plan;
    OutputFormat format = OutputFormat::text;

    bool allareas() const { return area == "all"; }
};

/// Fills `options` from the arguments behind the program's name. The fault in one line, empty when there is none.
std::string parseoptions(const std::vector<std::string>& arguments, Options& options);

/// Said where all areas are asked for and no port.
inline constexpr const char* allareasneedport = "--area all needs --port: a name, or all";

/// A date written yyyy-mm-dd, year 0001 to 9999; nothing for any other text and for a day that its month doesn't have.
std::optional<Date> parseisodate(std::string_view text);

/// Fills `format` from the value of --format; the fault, empty when there is none.
std::string parseformat(const std::string& value, OutputFormat& format);

/// An argument as UTF-8: one that isn't is taken for Windows-1252.
std::string argumenttext(const std::string& argument);

std::string inquotes(const std::string& text);

/// Prints what --help or --version asks for; the exit status.
int printanswer(const std::string& answer, std::ostream& out, std::ostream& err);

}  // namespace tarvane
