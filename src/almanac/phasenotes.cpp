#include "almanac/phasenotes.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <utility>

#include "output/juliandate.h"

namespace tarvane {
namespace {

struct PhaseName {
    const char *leading, *within;
};

constexpr PhaseName names[] = {{"New moon", "new moon"},
                               {"First quarter", "first quarter"},
                               {"Full moon", "full moon"},
                               {"Last quarter", "last quarter"}};

constexpr const char* dateform = "d mmmm yyyy";

Date dateofjulian(double julian) {
    constexpr int unixday = 2440588;
    return Date{std::chrono::days(static_cast<int>(std::floor(julian + 0.5)) - unixday)};
}

Date dateof(const MoonPhase& phase) {
    return std::chrono::floor<std::chrono::days>(phase.moment);
}

/// What is to be said of a listed phase, whose line bears the date `listed`; empty when that is its own.
std::string noteoflisted(std::size_t phase, Date own, Date listed, const std::vector<MoonPhase>& ofmonth,
                         const Locale& locale) {
    if (own == listed) return {};
    // A lunation earlier the same phase can have come on the very day that the line names.
    const bool right = std::any_of(ofmonth.begin(), ofmonth.end(), [&](const MoonPhase& other) {
        return other.phase == static_cast<int>(phase) && dateof(other) == listed;
    });
    return std::string(names[phase].leading) + " falls on " + formatdate(locale, own, dateform) +
           (right ? " as well" : "");
}

}  // namespace

std::vector<std::string> phasenotes(const LunarTexts& listed, int month, int year, const Locale& locale) {
    const std::vector<MoonPhase> ofmonth = phasesbetween(makedate(year, month, 1), makedate(year, month + 1, 1));
    std::vector<std::string> notes;
    std::array<Date, 4> own, line;
    for (std::size_t phase = 0; phase < own.size(); ++phase) {
        own[phase] = dateofjulian(listed.phasejulians[phase]);
        line[phase] = makedate(year, month, juliantodate(listed.phasejulians[phase]).day);
        std::string note = noteoflisted(phase, own[phase], line[phase], ofmonth, locale);
        if (!note.empty()) notes.push_back(std::move(note));
    }
    for (const MoonPhase& phase : ofmonth) {
        const auto place = static_cast<std::size_t>(phase.phase);
        if (dateof(phase) != own[place] && dateof(phase) != line[place])
            notes.push_back(std::string("Not listed: ") + names[place].within + " on " +
                            formatdate(locale, dateof(phase), dateform));
    }
    return notes;
}

}  // namespace tarvane
