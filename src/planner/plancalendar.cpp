#include "planner/plancalendar.h"

#include <cmath>
#include <cstdio>

#include "dates/isomoments.h"
#include "planner/plantexts.h"
#include "portdata/aboutwords.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr std::size_t mostbytes = 75;

/// "20260714T044000Z"
std::string utmoment(Moment moment) {
    const Date date = std::chrono::floor<std::chrono::days>(moment);
    const auto seconds = (moment - Moment(date)).count();
    char text[48];
    std::snprintf(text, sizeof text, "%04d%02d%02dT%02d%02d%02dZ", yearof(date), monthof(date), dayof(date),
                  static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                  static_cast<int>(seconds % 60));
    return text;
}

/// Letters, digits, "-" and "." as they are, every other byte as "%E9": two texts never become one.
std::string plainname(const std::string& text) {
    std::string plain;
    for (const char character : text) {
        const bool kept = (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
                          (character >= 'a' && character <= 'z') || character == '-' || character == '.';
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(character)));
        plain += kept ? std::string(1, character) : escaped;
    }
    return plain;
}

std::string tidename(const TideName& name) {
    return std::string(name.high ? "high" : "low") + std::to_string(name.tide) + "-" + std::to_string(name.nth);
}

std::string identifier(const std::string& event, const PlanPort& port) {
    return event + "-port" + std::to_string(port.number) + "-" + plainname(port.area) + "@tarvane-tides.invalid";
}

struct Event {
    std::string identifier;
    Moment begins, ends;
    std::string summary, description;
};

std::string eventtext(const Event& event, const PlanPort& port, const HarmonicRecord& record, Moment stamp) {
    std::string text = "BEGIN:VEVENT\r\n";
    text += calendarline("UID:" + event.identifier);
    text += calendarline("DTSTAMP:" + utmoment(stamp));
    text += calendarline("DTSTART:" + utmoment(event.begins));
    text += calendarline("DTEND:" + utmoment(event.ends));
    text += calendarline("SUMMARY:" + calendartext(event.summary));
    text += calendarline("DESCRIPTION:" + calendartext(event.description));
    text += calendarline("LOCATION:" + calendartext(port.name));
    if (std::abs(record.PortLat) <= 90 && std::abs(record.PortLong) <= 180)
        text += calendarline("GEO:" + fixed(record.PortLat, 5) + ";" + fixed(record.PortLong, 5));
    return text + "TRANSP:TRANSPARENT\r\nEND:VEVENT\r\n";
}

/// "2026-07-14 05:40 BST"
std::string clockwords(const PortClock& clock, Moment moment) {
    const ClockTime time = clock.at(moment);
    return isodate(time.date) + " " + clocktext(time) + " " + time.name;
}

/// What stands under every event: how far its port is to be trusted.
std::string caution(const PlanPort& port) {
    std::string words = port.trust;
    if (!words.empty() && words[0] >= 'a' && words[0] <= 'z') words[0] = static_cast<char>(words[0] - 'a' + 'A');
    return words + (words.empty() ? "" : ".\n") + "Approximate, not for navigation.";
}

}  // namespace

std::string calendarline(const std::string& line) {
    std::string folded;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < line.size();) {
        std::size_t length = 1;
        while (i + length < line.size() && (static_cast<unsigned char>(line[i + length]) & 0xC0U) == 0x80U)
            ++length;
        if (bytes + length > mostbytes) {
            folded += "\r\n ";
            bytes = 1;
        }
        folded.append(line, i, length);
        bytes += length;
        i += length;
    }
    return folded + "\r\n";
}

std::string calendartext(const std::string& text) {
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        const auto code = static_cast<unsigned char>(character);
        if (character == '\\' || character == ',' || character == ';') {
            escaped += std::string("\\") + character;
        } else if (character == '\n') {
            escaped += "\\n";
        } else if (character == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        } else {
            escaped += code < 0x20 || code == 0x7F ? '?' : character;
        }
    }
    return escaped;
}

std::string calendarstart() {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tarvane Tides//Planner//EN\r\nCALSCALE:GREGORIAN\r\n";
}

std::string calendarend() {
    return "END:VCALENDAR\r\n";
}

std::string waterevent(const PlanPort& port, const HarmonicRecord& record, const PortClock& clock,
                       const PlannedWater& water, Moment stamp) {
    const std::string what =
        std::string(water.water.high ? "High" : "Low") + " water " + metres(water.water.height) + ", " + port.name;
    std::string words =
        clockwords(clock, water.moment) + ": " + metres(water.water.height, 2) + " above " + chartdatum(port.datum);
    if (water.water.springshare > 0)
        words += ", " + std::to_string(std::lround(100 * water.water.springshare)) + " % of the mean spring range";
    if (water.water.stand) words += "; a stand";
    return eventtext({identifier(tidename(water.name), port), water.moment, water.moment + std::chrono::minutes(1),
                      what, words + ".\n" + caution(port)},
                     port, record, stamp);
}

std::string windowevent(const PlanPort& port, const HarmonicRecord& record, const PortClock& clock,
                        const PlannedWindow& window, const Passage& passage, Moment stamp) {
    const Window& found = window.window;
    std::string words = clockwords(clock, window.opens) + " to " + clockwords(clock, window.closes) + ", " +
                        durationtext(std::chrono::minutes(found.minutes())) + ".\nLevel needed " +
                        metres(passage.needed(), 2) + " above " + chartdatum(port.datum);
    if (const auto ceiling = passage.ceiling()) words += ", not above " + metres(*ceiling, 2);
    words += "; greatest height " + metres(found.greatestheight, 2) + ".";
    if (found.cutatstart) words += "\nIt was open before: the days looked at begin there.";
    if (found.cutatend) words += "\nIt stays open: the days looked at end there.";
    const std::string part = window.part > 0 ? "-" + std::to_string(window.part) : "";
    const std::string opening = window.opening ? tidename(*window.opening) : "always";
    return eventtext({identifier("passage-" + opening + part, port), window.opens, window.closes,
                      "Passable, " + port.name, words + "\n" + caution(port)},
                     port, record, stamp);
}

std::string waterscalendar(const Plan& plan, const PlanPort& port, Moment stamp) {
    if (plan.waters().empty()) return {};
    std::string text = calendarstart();
    for (const PlannedWater& each : plan.waters())
        text += waterevent(port, plan.planof().port, plan.clock(), each, stamp);
    return text + calendarend();
}

std::string windowscalendar(const Plan& plan, const PlannedAccess& access, const Passage& passage, const PlanPort& port,
                            Moment stamp) {
    if (access.windows.empty()) return {};
    std::string text = calendarstart();
    for (PlannedWindow each : access.windows) {
        plan.nameopening(each, passage);
        text += windowevent(port, plan.planof().port, plan.clock(), each, passage, stamp);
    }
    return text + calendarend();
}

}  // namespace tarvane
