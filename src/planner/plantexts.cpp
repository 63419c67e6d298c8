#include "planner/plantexts.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>

#include "dates/dateformats.h"
#include "portdata/aboutwords.h"
#include "sunmoon/lunarphases.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::minutes;

constexpr double standingrate = 0.05;  // metres an hour
constexpr const char* phasewords[] = {"New moon", "First quarter", "Full moon", "Last quarter"};

double keyof(Moment moment) {
    return static_cast<double>(moment.time_since_epoch().count());
}

/// Whether the clock is changed within the plan; a year has two changes, after which it is as it was.
bool clockchanges(const Plan& plan) {
    // A first day may begin with the change.
    const auto ahead = plan.clock().at(plan.begins() - minutes(1)).ahead;
    for (Moment moment = plan.begins(); moment < plan.ends(); moment += days(1))
        if (plan.clock().at(moment).ahead != ahead) return true;
    return plan.clock().at(plan.ends() - minutes(1)).ahead != ahead;
}

/// The clock time, with its offset where the clock is changed within the plan.
std::string timecell(const Plan& plan, Moment moment, bool changes) {
    const ClockTime time = plan.clock().at(moment);
    return clocktext(time) + (changes ? " " + utname(time.ahead) : "");
}

std::string daycell(const Plan& plan, Moment moment, const Locale& locale, bool year = false) {
    return daytext(locale, plan.clock().at(moment).date, year);
}

constexpr const char* nosuchdaycell = "no such day";

std::vector<Date> daysleftout(const Plan& plan) {
    std::vector<Date> leftout;
    for (Date date = plan.planof().first; date < plan.planof().first + days(plan.planof().days); date += days(1))
        if (!hasday(plan.clock(), date)) leftout.push_back(date);
    return leftout;
}

std::string percent(double share) {
    return std::to_string(std::lround(share * 100)) + " %";
}

std::string kindword(const Water& water) {
    return std::string(water.high ? "High" : "Low") + (water.stand ? " (stand)" : "");
}

/// "rising 0.8 m/h"; what stands has no rate.
std::string tendency(double rate) {
    const std::string word = tendencyword(rate);
    return std::abs(rate) < standingrate ? word : word + " " + metres(std::abs(rate)) + "/h";
}

std::string cutwords(const Window& window) {
    if (window.cutatstart && window.cutatend) return "open before and after";
    return window.cutatstart ? "open before" : window.cutatend ? "open after" : "";
}

std::string windowwords(const Plan& plan, const PlannedWindow& window, const Locale& locale) {
    const ClockTime opens = plan.clock().at(window.opens), closes = plan.clock().at(window.closes);
    const WindowClocks times = windowclocks(plan.clock(), window);
    const std::string from = daytext(locale, opens.date) + " " + times.opens,
                      until = daytext(locale, closes.date) + " " + times.closes;
    if (window.window.cutatstart && !window.window.cutatend) return "until " + until;
    if (window.window.cutatend && !window.window.cutatstart) return "from " + from + " on";
    std::string words = from + " to ";
    if (closes.date != opens.date) words += daytext(locale, closes.date) + " ";
    return words + times.closes;
}

std::string waterwords(const Plan& plan, const char* name, const std::optional<PlannedWater>& water, Moment now) {
    if (!water) return "";
    // From minute to minute, as both are shown.
    const auto togo = std::chrono::floor<minutes>(water->moment) - std::chrono::floor<minutes>(now);
    return std::string(" ") + name + " water " + metres(water->water.height) + " at " +
           clocktext(plan.clock().at(water->moment)) + (water->water.stand ? " (stand)" : "") + ", in " +
           durationtext(togo) + ".";
}

/// Why she never passes, as the tide's own heights have it.
std::string neverwords(const PlannedAccess& access, const Passage& passage) {
    const std::string needed = "the level needed is " + metres(passage.needed(), 2);
    const auto ceiling = passage.ceiling();
    if (ceiling && *ceiling < passage.needed())
        return needed + ", but above " + metres(*ceiling, 2) + " the mast does not pass the bridge";
    if (*access.greatestheight < passage.needed())
        return needed + ", and the tide does not rise above " + metres(*access.greatestheight, 2);
    if (ceiling && *access.leastheight > *ceiling)
        return "the mast passes the bridge up to " + metres(*ceiling, 2) + ", and the tide does not fall below " +
               metres(*access.leastheight, 2) + "; " + needed;
    return needed + (ceiling ? ", the most under the bridge " + metres(*ceiling, 2) : "") +
           ", and the tide does not keep to that for a minute";
}

std::string lackingwords(const std::string& whynot) {
    if (whynot == nosuchday) return " One of these days is left out: it does not exist on this clock.";
    return whynot.empty() ? "" : " No prediction for some of these days: " + whynot + ".";
}

std::string alwayswords(const PlannedAccess& access, const Passage& passage) {
    std::string words = "the level needed is " + metres(passage.needed(), 2) + ", and the tide does not fall below " +
                        metres(*access.leastheight, 2);
    if (const auto ceiling = passage.ceiling())
        words += "; the mast passes the bridge up to " + metres(*ceiling, 2) + ", and the tide does not rise above " +
                 metres(*access.greatestheight, 2);
    return words;
}

/// The time of day that a cell of light shows, in minutes; ahead of and behind all for what isn't one.
double lightkey(const Plan& plan, std::optional<Moment> shown, bool lit) {
    if (!shown) return lit ? HUGE_VAL : -1;
    const ClockTime time = plan.clock().at(*shown);
    return time.hour() * 60 + time.minuteofhour();
}

/// The first moment within a day's light and the last one; words for a day that is all light or all dark.
void addlightcells(const Plan& plan, const std::vector<std::pair<Moment, Moment>>& light, Date date, bool changes,
                   PlanTable::Row& row) {
    const Moment noon = plan.clock().startof(date) + std::chrono::hours(12);
    const bool lit = std::any_of(light.begin(), light.end(),
                                 [&](const auto& each) { return each.first <= noon && noon < each.second; });
    std::optional<Moment> from, until;
    for (const auto& [begins, ends] : light) {
        if (plan.clock().at(begins).date == date && begins > plan.begins()) from = begins;
        if (plan.clock().at(ends).date == date && ends < plan.ends()) until = ends;
    }
    for (const std::optional<Moment>& each : {from, until}) {
        row.cells.push_back(each ? timecell(plan, *each, changes) : lit ? "all day" : "none");
        row.keys.push_back(lightkey(plan, each, lit));
    }
}

}  // namespace

std::string daytext(const Locale& locale, Date date, bool year) {
    return formatdate(locale, date, year ? "ddd d mmm yyyy" : "ddd d mmm");
}

std::string metres(double height, int decimals) {
    char text[48];
    std::snprintf(text, sizeof text, "%.*f", decimals, height);
    std::string number = text;
    if (number.find_first_not_of("-0.") == std::string::npos && number[0] == '-') number.erase(0, 1);
    return number + " m";
}

std::string levelmetres(double height) {
    return metres(height, std::abs(height * 10 - std::round(height * 10)) < 0.05 ? 1 : 2);
}

std::string plainclock(const PortClock& clock, Moment moment) {
    const ClockTime time = clock.at(moment);
    return clocktext(time) + (clockchangeson(clock, time.date) ? " " + time.name : "");
}

WindowClocks windowclocks(const PortClock& clock, const PlannedWindow& window) {
    const ClockTime opens = clock.at(window.opens), closes = clock.at(window.closes);
    const bool named =
        opens.ahead != closes.ahead || clockchangeson(clock, opens.date) || clockchangeson(clock, closes.date);
    const auto told = [&](const ClockTime& time) { return clocktext(time) + (named ? " " + time.name : ""); };
    return {told(opens), told(closes)};
}

bool clockchangeson(const PortClock& clock, Date date) {
    const auto aheadat = [&](Date end) { return clock.at(clock.startof(end) - minutes(1)).ahead; };
    return aheadat(date) != aheadat(date + days(1));
}

std::string timesby(const PortClock& clock) {
    const std::string& words = clock.description();
    return std::string("times by ") + (words.starts_with("port's") ? "the " : "") + words;
}

std::string durationtext(minutes duration) {
    const auto count = duration.count();
    if (count < 60) return std::to_string(count) + " min";
    if (duration >= days(3)) return std::to_string(std::chrono::round<days>(duration).count()) + " days";
    const auto rest = count % 60;
    return std::to_string(count / 60) + " h " + (rest < 10 ? "0" : "") + std::to_string(rest) + " min";
}

const char* tendencyword(double rate) {
    if (std::abs(rate) < standingrate) return "standing";
    return rate > 0 ? "rising" : "falling";
}

PlanTable tidestable(const Plan& plan, const Locale& locale) {
    PlanTable table{{"Day", "Time", "Height", "Water", "Of springs"}, {}};
    const bool changes = clockchanges(plan);
    for (const Date date : daysleftout(plan))
        table.rows.push_back({plan.clock().startof(date),
                              {daytext(locale, date), nosuchdaycell, "", "", ""},
                              {keyof(plan.clock().startof(date)), keyof(plan.clock().startof(date)), 0, 0, 0},
                              {daytext(locale, date, true)}});
    for (const PlannedWater& each : plan.waters())
        table.rows.push_back({each.moment,
                              {daycell(plan, each.moment, locale), timecell(plan, each.moment, changes),
                               metres(each.water.height), kindword(each.water), percent(each.water.springshare)},
                              {keyof(each.moment), keyof(each.moment), each.water.height, double(each.water.high),
                               each.water.springshare},
                              {daycell(plan, each.moment, locale, true)}});
    std::stable_sort(table.rows.begin(), table.rows.end(),
                     [](const PlanTable::Row& one, const PlanTable::Row& other) { return one.moment < other.moment; });
    return table;
}

PlanTable accesstable(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale) {
    PlanTable table{{"Opens", "Closes", "For", "Greatest depth", "In daylight", ""}, {}};
    const bool changes = clockchanges(plan);
    for (const PlannedWindow& each : access.windows) {
        const double depth = each.window.greatestheight + passage.bottom;
        const auto length = static_cast<double>(each.window.minutes());
        const double lit = length > 0 ? static_cast<double>(each.window.daylightminutes) / length : 0;
        const auto cell = [&](Moment moment, bool year) {
            return daycell(plan, moment, locale, year) + " " + timecell(plan, moment, changes);
        };
        table.rows.push_back(
            {each.opens,
             {cell(each.opens, false), cell(each.closes, false), durationtext(minutes(each.window.minutes())),
              metres(depth), percent(lit), cutwords(each.window)},
             {keyof(each.opens), keyof(each.closes), length, depth, lit, 0},
             {cell(each.opens, true), cell(each.closes, true)}});
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
        PlanTable::Row row{plan.clock().startof(date), {daytext(locale, date)}, {}, {daytext(locale, date, true)}};
        const bool isthere = hasday(plan.clock(), date);
        row.keys.push_back(keyof(row.moment));
        if (!isthere) row.cells.insert(row.cells.end(), {nosuchdaycell, "", "", ""});
        if (!isthere) row.keys.insert(row.keys.end(), 4, -2);
        if (isthere) addlightcells(plan, civil, date, changes, row);
        if (isthere) addlightcells(plan, sun, date, changes, row);
        int moon = -1;
        for (const MoonPhase& each : phases)
            if (plan.clock().at(each.moment).date == date) moon = each.phase;
        row.cells.push_back(moon < 0 ? "" : phasewords[moon]);
        row.keys.push_back(moon);
        table.rows.push_back(row);
    }
    return table;
}

std::string tabbedtext(const PlanTable& table, const std::string& title) {
    std::string text = title + "\n";
    const auto addline = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            text += (i > 0 ? "\t" : "") + cells[i];
        text += "\n";
    };
    addline(table.headings);
    for (const PlanTable::Row& row : table.rows) {
        std::vector<std::string> cells = row.cells;
        std::copy(row.dated.begin(), row.dated.end(), cells.begin());
        addline(cells);
    }
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

std::string neededtext(const Passage& passage, const std::string& datum) {
    const double bottom = passage.bottom;
    std::string words = "Bottom at " + chartdatum(datum) + " (write -2 for a sill that dries 2 m).";
    if (bottom < 0) words = "Bottom dries " + levelmetres(-bottom) + ".";
    if (bottom > 0) {
        const std::string depth = levelmetres(bottom);
        words = "Bottom " + depth + " below " + chartdatum(datum) + " (if it dries " + depth + ", write -" +
                depth.substr(0, depth.size() - 2) + ").";
    }
    return words + " Height of tide needed: " + levelmetres(passage.needed()) + ".";
}

std::string accessverdict(const PlannedAccess& access, const Passage& passage, const std::string& whynot) {
    const std::string needed = "the level needed is " + metres(passage.needed(), 2);
    if (!access.greatestheight && whynot == nosuchday) return whynot + "; " + needed + ".";
    if (!access.greatestheight) return "No prediction for these days: " + whynot + "; " + needed + ".";
    const std::string lacking = lackingwords(whynot);
    if (access.never) return "Never in these days: " + neverwords(access, passage) + "." + lacking;
    if (access.always && access.windows.empty())
        return "The tide is always high enough, but not as you wish it; " + needed + "." + lacking;
    if (access.always) return "Always in these days: " + alwayswords(access, passage) + ".";
    if (access.windows.empty()) return "She passes at times, but not as you wish it; " + needed + "." + lacking;
    return {};
}

std::string accesstext(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale,
                       std::optional<Moment> now) {
    constexpr std::size_t told = 3;
    const std::string verdict = accessverdict(access, passage, plan.whynot());
    if (!verdict.empty()) return verdict;
    std::vector<PlannedWindow> windows = access.windows;
    const auto past = now ? std::erase_if(windows, [&](const PlannedWindow& each) { return each.closes < *now; }) : 0;
    const bool allpast = windows.empty();
    if (allpast) windows = access.windows;
    std::string text;
    for (std::size_t i = 0; i < std::min(told, windows.size()); ++i)
        text += (i > 0 ? "; " : "") + windowwords(plan, windows[i], locale);
    text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    if (windows.size() > told) text += "; and " + std::to_string(windows.size() - told) + " more";
    std::string many = (allpast ? "all" : std::to_string(past)) + " ";
    if (access.windows.size() == 1) many.clear();
    if (past > 0) text += (windows.size() > told ? ", " : "; ") + many + "past already";
    return text + "." + lackingwords(plan.whynot());
}

std::string nowtext(const Plan& plan, Moment moment) {
    const auto now = plan.now(moment);
    const std::string when = "Now " + clocktext(plan.clock().at(moment)) + ": ";
    if (!now) return when + "no prediction.";
    const std::string high = waterwords(plan, "High", now->nexthigh, moment),
                      low = waterwords(plan, "Low", now->nextlow, moment);
    const bool highfirst = now->next() && now->next()->water.high;
    return when + metres(now->height) + ", " + tendency(now->rate) + "." + (highfirst ? high + low : low + high);
}

std::string shortnowtext(const Plan& plan, Moment moment) {
    const auto now = plan.now(moment);
    if (!now) return "";
    std::string text = "Now " + metres(now->height) + ", " + tendency(now->rate);
    if (const auto& next = now->next()) {
        const ClockTime time = plan.clock().at(next->moment);
        text += std::string(next->water.high ? ", HW " : ", LW ") + clocktext(time) + " " + time.name +
                (next->water.stand ? " (stand)" : "");
    }
    return text;
}

}  // namespace tarvane
