#include "planner/plantexts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "dates/dateformats.h"
#include "sunmoon/lunarphases.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::minutes;

constexpr const char* phasewords[] = {"New moon", "First quarter", "Full moon", "Last quarter"};

double keyof(Moment moment) {
    return static_cast<double>(moment.time_since_epoch().count());
}

/// Whether the clock is changed between the plan's ends.
bool clockchanges(const Plan& plan) {
    return plan.clock().at(plan.begins()).ahead != plan.clock().at(plan.ends() - minutes(1)).ahead;
}

/// "Sat 18 Jul", and the clock time, with its offset where the clock is changed within the plan.
std::string timecell(const Plan& plan, Moment moment, bool changes) {
    const ClockTime time = plan.clock().at(moment);
    return clocktext(time) + (changes ? " " + utname(time.ahead) : "");
}

std::string daycell(const Plan& plan, Moment moment, const Locale& locale) {
    return daytext(locale, plan.clock().at(moment).date);
}

std::string percent(double share) {
    return std::to_string(std::lround(share * 100)) + " %";
}

std::string kindword(const Water& water) {
    return std::string(water.high ? "High" : "Low") + (water.stand ? " (stand)" : "");
}

/// "rising 0.8 m/h"; a tide of less than 5 cm an hour stands.
std::string tendency(double rate) {
    if (std::abs(rate) < 0.05) return "standing";
    return std::string(rate > 0 ? "rising " : "falling ") + metres(std::abs(rate)) + "/h";
}

std::string cutwords(const Window& window) {
    if (window.cutatstart && window.cutatend) return "open before and after";
    return window.cutatstart ? "open before" : window.cutatend ? "open after" : "";
}

std::string windowwords(const Plan& plan, const PlannedWindow& window, const Locale& locale) {
    const ClockTime opens = plan.clock().at(window.opens), closes = plan.clock().at(window.closes);
    std::string words = daytext(locale, opens.date) + " " + clocktext(opens) + " to ";
    if (closes.date != opens.date) words += daytext(locale, closes.date) + " ";
    return words + clocktext(closes);
}

std::string waterwords(const Plan& plan, const char* name, const std::optional<PlannedWater>& water, Moment now) {
    if (!water) return "";
    const auto togo = std::chrono::duration_cast<minutes>(water->moment - now);
    return std::string(" ") + name + " water " + metres(water->water.height) + " at " +
           clocktext(plan.clock().at(water->moment)) + ", in " + durationtext(togo) + ".";
}

/// The first moment within a day's light and the last one.
void addlightcells(const Plan& plan, const std::vector<std::pair<Moment, Moment>>& light, Date date, bool changes,
                   PlanTable::Row& row) {
    std::string from = "-", until = "-";
    for (const auto& [begins, ends] : light) {
        if (plan.clock().at(begins).date == date && begins > plan.begins()) from = timecell(plan, begins, changes);
        if (plan.clock().at(ends).date == date && ends < plan.ends()) until = timecell(plan, ends, changes);
    }
    row.cells.push_back(from);
    row.cells.push_back(until);
}

}  // namespace

std::string clocktext(const ClockTime& time) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", time.hour(), time.minuteofhour());
    return text;
}

std::string daytext(const Locale& locale, Date date) {
    return formatdate(locale, date, "ddd d mmm");
}

std::string metres(double height, int decimals) {
    char text[48];
    std::snprintf(text, sizeof text, "%.*f", decimals, height);
    std::string number = text;
    if (number.find_first_not_of("-0.") == std::string::npos && number[0] == '-') number.erase(0, 1);
    return number + " m";
}

std::string durationtext(minutes duration) {
    const auto count = duration.count();
    if (count < 60) return std::to_string(count) + " min";
    if (duration >= days(3)) return std::to_string(count / (24 * 60)) + " days";
    const auto rest = count % 60;
    return std::to_string(count / 60) + " h " + (rest < 10 ? "0" : "") + std::to_string(rest) + " min";
}

PlanTable tidestable(const Plan& plan, const Locale& locale) {
    PlanTable table{{"Day", "Time", "Height", "", "Of springs"}, {}};
    const bool changes = clockchanges(plan);
    for (const PlannedWater& each : plan.waters())
        table.rows.push_back({each.moment,
                              {daycell(plan, each.moment, locale), timecell(plan, each.moment, changes),
                               metres(each.water.height), kindword(each.water), percent(each.water.springshare)},
                              {keyof(each.moment), keyof(each.moment), each.water.height, double(each.water.high),
                               each.water.springshare}});
    return table;
}

PlanTable accesstable(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale) {
    PlanTable table{{"Opens", "Closes", "For", "Greatest depth", "In daylight", ""}, {}};
    const bool changes = clockchanges(plan);
    for (const PlannedWindow& each : access.windows) {
        const double depth = each.window.greatestheight + passage.bottom;
        const auto length = static_cast<double>(each.window.minutes());
        table.rows.push_back({each.opens,
                              {daycell(plan, each.opens, locale) + " " + timecell(plan, each.opens, changes),
                               daycell(plan, each.closes, locale) + " " + timecell(plan, each.closes, changes),
                               durationtext(minutes(each.window.minutes())), metres(depth),
                               percent(length > 0 ? static_cast<double>(each.window.daylightminutes) / length : 0),
                               cutwords(each.window)},
                              {keyof(each.opens), keyof(each.closes), length, depth,
                               static_cast<double>(each.window.daylightminutes), 0}});
    }
    return table;
}

PlanTable suntable(const Plan& plan, const Locale& locale) {
    PlanTable table{{"Day", "First light", "Dusk ends", "Sunrise", "Sunset", "Moon"}, {}};
    const bool changes = clockchanges(plan);
    const auto civil = plan.light(true), sun = plan.light(false);
    const std::vector<MoonPhase> phases = phasesbetween(plan.begins(), plan.ends());
    for (int i = 0; i < plan.planof().days; ++i) {
        const Date date = plan.planof().first + days(i);
        PlanTable::Row row{plan.clock().startof(date), {daytext(locale, date)}, {}};
        addlightcells(plan, civil, date, changes, row);
        addlightcells(plan, sun, date, changes, row);
        std::string moon;
        for (const MoonPhase& each : phases)
            if (plan.clock().at(each.moment).date == date) moon = phasewords[each.phase];
        row.cells.push_back(moon);
        row.keys.assign(row.cells.size(), keyof(row.moment));
        table.rows.push_back(row);
    }
    return table;
}

std::string tabbedtext(const PlanTable& table) {
    std::string text;
    const auto addline = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            text += (i > 0 ? "\t" : "") + cells[i];
        text += "\n";
    };
    addline(table.headings);
    for (const PlanTable::Row& row : table.rows)
        addline(row.cells);
    return text;
}

std::string momenttext(const Plan& plan, Moment moment, const std::optional<Passage>& passage, const Locale& locale) {
    const ClockTime time = plan.clock().at(moment);
    std::string text = daytext(locale, time.date) + " " + clocktext(time) + " " + time.name + ": ";
    const auto height = plan.height(moment);
    if (!height) return text + "no prediction";
    text += metres(*height, 2) + ", " + tendency(plan.rate(moment).value_or(0));
    if (!passage) return text;
    const double depth = *height + passage->bottom;
    return text + (depth > 0 ? ", " + metres(depth) + " over the bottom" : ", the bottom is dry");
}

std::string accesstext(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale) {
    constexpr std::size_t told = 3;
    const std::string needed = "needed " + metres(passage.needed());
    if (plan.waters().empty() && *plan.whynot() != '\0') return plan.whynot();
    if (access.never) return "Never in these days: " + needed + ", and the tide does not reach it.";
    if (access.always) return "Always in these days: the tide never falls below what is " + needed + ".";
    if (access.windows.empty()) return "There is water enough at times (" + needed + "), but not as you wish it.";
    std::string text;
    for (std::size_t i = 0; i < std::min(told, access.windows.size()); ++i)
        text += (i > 0 ? "; " : "") + windowwords(plan, access.windows[i], locale);
    if (access.windows.size() > told) text += "; and " + std::to_string(access.windows.size() - told) + " more";
    return text + ".";
}

std::string nowtext(const Plan& plan, Moment moment) {
    const auto now = plan.now(moment);
    const std::string when = "Now " + clocktext(plan.clock().at(moment)) + ": ";
    if (!now) return when + "no prediction.";
    return when + metres(now->height) + ", " + tendency(now->rate) + "." +
           waterwords(plan, "High", now->nexthigh, moment) + waterwords(plan, "Low", now->nextlow, moment);
}

}  // namespace tarvane
