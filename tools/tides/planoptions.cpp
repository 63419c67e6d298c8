#include "tides/planoptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "planner/planlimits.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

namespace {

/// Plain decimals with a point or a comma, and a sign at most.
std::optional<double> decimals(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    const char* const end = text.data() + text.size();
    double value = 0;
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (read.ec != std::errc{} || read.ptr != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::string takemetres(const char* option, PlanLimit limit, const std::string& value, std::optional<double>& metres) {
    metres = decimals(value);
    if (metres && limit.holds(*metres)) return "";
    return std::string(option) + " takes metres from " + numbertext(limit.least) + " to " + numbertext(limit.most) +
           ", not '" + value + "'";
}

/// Metres as they were typed into a box of the program, kept in single precision.
std::string takestored(const char* option, PlanLimit limit, float stored, std::optional<double> given, double& metres) {
    metres = given.value_or(val(shortest(stored)));
    if (given || limit.holds(static_cast<double>(stored))) return "";
    return std::string("what is stored is no use; give ") + option;
}

constexpr std::array<const char*, 7> weekdaynames{"sunday",   "monday", "tuesday", "wednesday",
                                                  "thursday", "friday", "saturday"};

/// A day of the week by its name or the first three letters of it; none of the set for any other text.
Weekdays weekdaynamed(const std::string& text) {
    const std::string name = lowercase(text);
    for (std::size_t i = 0; i < weekdaynames.size(); ++i) {
        const std::string whole = weekdaynames.at(i);
        if (name == whole || name == whole.substr(0, 3)) return 1U << i;
    }
    return 0;
}

}  // namespace

std::string takeclock(const std::string& value, PlanOptions& options) {
    if (value == "port") options.clock = ClockChoice::port;
    if (value == "ut") options.clock = ClockChoice::ut;
    if (value == "zone") options.clock = ClockChoice::zone;
    return options.clock ? "" : "--clock takes port, ut or zone, not '" + value + "'";
}

std::string takedraught(const std::string& value, PlanOptions& options) {
    return takemetres("--draught", planlimits::draught, value, options.draught);
}

std::string takeclearance(const std::string& value, PlanOptions& options) {
    return takemetres("--clearance", planlimits::clearance, value, options.clearance);
}

std::string takebottom(const std::string& value, PlanOptions& options) {
    return takemetres("--bottom", planlimits::bottom, value, options.bottom);
}

std::string takeceiling(const std::string& value, PlanOptions& options) {
    return takemetres("--ceiling", planlimits::ceiling, value, options.ceiling);
}

std::string takedaylight(const std::string& value, PlanOptions& options) {
    constexpr std::array<const char*, 3> names{"none", "part", "whole"};
    const auto name = std::find(names.begin(), names.end(), value);
    if (name == names.end()) return "--daylight takes none, part or whole, not '" + value + "'";
    options.wishes.daylight = static_cast<Daylight>(name - names.begin());
    return "";
}

std::string takeleast(const std::string& value, PlanOptions& options) {
    constexpr auto most = static_cast<int>(planlimits::leastminutes.most);
    const bool digits = value.find_first_not_of("0123456789") == std::string::npos && value.size() < 6;
    options.wishes.leastminutes = digits ? static_cast<int>(val(value)) : most + 1;
    if (options.wishes.leastminutes <= most) return "";
    return "--least takes a whole number of minutes from 0 to " + numbertext(most) + ", not '" + value + "'";
}

std::string takeweekdays(const std::string& value, PlanOptions& options) {
    Weekdays days = 0;
    for (std::size_t from = 0; from <= value.size();) {
        const std::size_t comma = std::min(value.find(',', from), value.size());
        const Weekdays day = weekdaynamed(value.substr(from, comma - from));
        if (day == 0) return "--weekdays takes days like sat,sun, not '" + value + "'";
        days |= day;
        from = comma + 1;
    }
    options.wishes.weekdays = days;
    return "";
}

std::string takepassage(const PlanOptions& options, const Settings& settings, Passage& passage, WindowWishes& wishes) {
    std::string fault =
        takestored("--draught", planlimits::draught, settings.currentdraught, options.draught, passage.draught);
    if (fault.empty())
        fault =
            takestored("--clearance", planlimits::clearance, settings.currentukc, options.clearance, passage.clearance);
    passage.bottom = options.bottom.value_or(0);
    passage.bridge = options.ceiling;
    wishes = options.wishes;
    return fault;
}

}  // namespace tarvane
