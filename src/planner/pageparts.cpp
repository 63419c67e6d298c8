#include "planner/pageparts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "planner/plantexts.h"
#include "portdata/aboutwords.h"
#include "portdata/recordfiles.h"
#include "sunmoon/lunarphases.h"
#include "text/programcaption.h"

namespace tarvane {
namespace {

using std::chrono::hours;
using std::chrono::minutes;

constexpr const char* pagecaution =
    "Predicted from a few constants; wind, air pressure and rivers are not counted. Not for navigation: official "
    "tables "
    "and charts come first.";

std::string decimal(double value, int decimals) {
    return metres(value, decimals).substr(0, metres(value, decimals).size() - 2);
}

/// "50°39'N", whole minutes.
std::string anglewords(double degrees, const char* positive, const char* negative) {
    const long whole = std::lround(std::abs(degrees) * 60);
    char text[32];
    std::snprintf(text, sizeof text, "%ld\u00B0%02ld'%s", whole / 60, whole % 60, degrees < 0 ? negative : positive);
    return text;
}

/// The minute at which a clock's offset becomes another one between two moments.
Moment changebetween(const PortClock& clock, Moment from, Moment to) {
    while (to - from > minutes(1)) {
        const Moment middle = from + std::chrono::floor<minutes>((to - from) / 2);
        (clock.at(middle).ahead == clock.at(from).ahead ? from : to) = middle;
    }
    return to;
}

void setchange(const PortClock& clock, DayFacts& day) {
    if (clockchangeson(clock, day.date))
        day.change = changebetween(clock, day.begins - minutes(1), day.ends - minutes(1));
}

void setmissing(const Plan& plan, DayFacts& day) {
    int told = 0, asked = 0;
    for (Moment moment = day.begins; moment < day.ends; moment += hours(1), ++asked)
        told += plan.height(moment).has_value();
    if (day.begins == day.ends)
        day.missing = "no such day";
    else if (told == 0)
        day.missing = "no prediction";
    else if (day.waters.empty())
        day.missing = told < asked ? "partly no prediction" : "no high or low water";
    else if (told < asked)
        day.missing = "partly no prediction";
}

/// Sets what plans tell in lists of their own: each entry to its day.
void spread(PagePlan& pages) {
    const auto dayat = [&pages](Moment moment) -> DayFacts* {
        for (DayFacts& day : pages.days)
            if (moment >= day.begins && moment < day.ends) return &day;
        return nullptr;
    };
    const Plan& plan = pages.plan;
    for (const PlannedWater& water : plan.waters())
        if (DayFacts* day = dayat(water.moment)) day->waters.push_back(water);
    for (const MoonPhase& moon : phasesbetween(plan.begins(), plan.ends()))
        if (DayFacts* day = dayat(moon.moment)) day->moon = moon.phase;
    for (const SpringTide& tide : plan.springsandneaps())
        if (DayFacts* day = dayat(tide.moment)) day->tide = tide;
    for (const auto& [from, to] : plan.light(false)) {
        DayFacts *rising = dayat(from), *setting = dayat(to);
        if (rising && from > plan.begins()) rising->sunrise = from;
        if (setting && to < plan.ends()) setting->sunset = to;
        for (DayFacts& day : pages.days) {
            const Moment noon = day.begins + (day.ends - day.begins) / 2;
            day.sunatnoon = day.sunatnoon || (from <= noon && noon < to);
        }
    }
}

HeightScale heightsof(const Plan& plan) {
    HeightScale scale{HUGE_VAL, -HUGE_VAL};
    const auto take = [&scale](double height) {
        scale.least = std::min(scale.least, height);
        scale.greatest = std::max(scale.greatest, height);
    };
    for (const PlannedWater& each : plan.waters())
        take(each.water.height);
    for (Moment moment = plan.begins(); moment < plan.ends(); moment += hours(1))
        if (const auto height = plan.height(moment)) take(*height);
    if (scale.least > scale.greatest) return {};
    const double room = std::max(0.1, 0.04 * (scale.greatest - scale.least));
    return {scale.least - room, scale.greatest + room};
}

/// Whether a day has times before a change of the clock and behind it.
bool inmidday(const DayFacts& day) {
    return day.change && *day.change > day.begins;
}

/// "On Sun 25 Oct the clock goes back from UT+2 to UT+1 at 03:00."
std::string changewords(const PagePlan& pages, const DayFacts& day) {
    const PortClock& clock = pages.plan.clock();
    const ClockTime before = clock.at(*day.change - minutes(1)), after = clock.at(*day.change);
    ClockTime shown = before;
    shown.minute = (before.minute + 1) % (24 * 60);
    return " On " + daytext(pages.locale, day.date) + " the clock goes " +
           (after.ahead > before.ahead ? "forward" : "back") + " from " + utname(before.ahead) + " to " +
           utname(after.ahead) + " at " + clocktext(shown);
}

std::string clocksentences(const PagePlan& pages, const FootOf& foot) {
    const PortClock& clock = pages.plan.clock();
    std::string words = timesby(clock);
    words.front() = 'T';
    if (clock.description().find("UT") == std::string::npos && clock.description() != "universal time")
        words += ", " + utname(clock.at(pages.days[foot.first].begins).ahead);
    words += ".";
    for (std::size_t i = foot.first; i < foot.last; ++i) {
        if (!pages.days[i].change) continue;
        words += changewords(pages, pages.days[i]);
        if (foot.marked) words += ": that day is marked *";
        if (foot.marked && inmidday(pages.days[i])) words += ", and so are its times after it";
        words += ".";
    }
    return words;
}

/// Why days are without a prediction.
std::string missingwords(const PagePlan& pages, const FootOf& foot) {
    for (std::size_t i = foot.first; i < foot.last; ++i)
        if (pages.days[i].missing.find("prediction") != std::string::npos || !pages.days[i].exists())
            return (pages.days[i].exists() ? " No prediction: " : " No such day: ") + std::string(pages.plan.whynot()) +
                   ".";
    return "";
}

/// "on Sat, Sun", from Monday on.
std::string weekdaywords(const Locale& locale, Weekdays wished) {
    constexpr int sunday = 7;
    std::string words;
    for (int day = 1; day <= sunday; ++day)
        if (wished >> (day % sunday) & 1U)
            words += (words.empty() ? "on " : ", ") + locale.dayabbreviation(day % sunday);
    return words;
}

/// " Windows of 1 h 00 min at least, wholly in daylight, on Sat, Sun."
std::string wishwords(const PagePlan& pages) {
    const WindowWishes& wishes = pages.of.wishes;
    std::string words;
    const auto add = [&words](const std::string& more) { words += (words.empty() ? " " : ", ") + more; };
    if (wishes.leastminutes > 0) add("of " + durationtext(minutes(wishes.leastminutes)) + " at least");
    if (wishes.daylight != Daylight::none)
        add(std::string(wishes.daylight == Daylight::whole ? "wholly" : "partly") + " in " +
            (pages.of.twilight ? "daylight or twilight" : "daylight"));
    if (wishes.weekdays != everyweekday) add(weekdaywords(pages.locale, wishes.weekdays));
    return words.empty() ? "" : " Windows" + words + ".";
}

}  // namespace

PagePlan::PagePlan(const PageOf& page, Date first, int count, const Zones& zones, const Locale& names)
    : of(page), locale(names), plan({page.port, page.iana, first, count, page.clock}, zones) {
    for (int i = 0; i < count; ++i) {
        DayFacts day;
        day.date = first + std::chrono::days(i);
        day.begins = plan.clock().startof(day.date);
        day.ends = plan.clock().startof(day.date + std::chrono::days(1));
        setchange(plan.clock(), day);
        days.push_back(day);
    }
    spread(*this);
    for (DayFacts& day : days)
        setmissing(plan, day);
    heights = heightsof(plan);
    if (of.passage) access = plan.access(*of.passage, of.wishes, of.twilight);
}

std::string watertime(const PagePlan& pages, const DayFacts& day, Moment moment) {
    const bool behind = inmidday(day) && moment >= *day.change;
    return clocktext(pages.plan.clock().at(moment)) + (behind ? "*" : "");
}

std::string waterheight(const Water& water) {
    return decimal(water.height, 1);
}

TextLook waterlook(const Water& water, double size) {
    return {coloursof(Lighting::day).text, size, water.high, Anchor::left};
}

std::string passagewords(const PagePlan& pages) {
    if (!pages.of.passage) return "";
    const Passage& passage = *pages.of.passage;
    std::string words = "Draught " + metres(passage.draught);
    if (passage.clearance > 0) words += " and " + metres(passage.clearance) + " under the keel";
    words += passage.bottom < 0
                 ? " over a bottom that dries " + metres(-passage.bottom)
                 : " over a bottom " + metres(passage.bottom) + " below " + chartdatum(pages.of.known.datum());
    words += ": " + metres(passage.needed()) + " of tide needed";
    if (const auto ceiling = passage.ceiling())
        words += ", and no more than " + metres(*ceiling) + " for a mast of " + metres(passage.airdraught) +
                 " under the bridge";
    return words + "." + wishwords(pages);
}

std::string placewords(const PageOf& of) {
    std::string words = anglewords(of.port.PortLat, "N", "S") + " " + anglewords(of.port.PortLong, "E", "W");
    if (of.number > 0) words += ", no. " + std::to_string(of.number);
    std::string area = of.area;
    if (area.ends_with(".hc") || area.ends_with(".HC")) area.resize(area.size() - 3);
    if (!area.empty()) words += (of.number > 0 ? " of " : ", ") + area;
    return words;
}

void fittedtext(Canvas& canvas, Place place, std::string text, TextLook look, double width) {
    while (look.size > pagetype::least && canvas.textwidth(text, look) > width)
        --look.size;
    if (canvas.textwidth(text, look) > width) {
        const std::string more = "\u2026";
        while (!text.empty() && canvas.textwidth(text + more, look) > width) {
            while (text.size() > 1 && (text.back() & 0xC0) == 0x80)
                text.pop_back();
            text.pop_back();
        }
        text += more;
    }
    canvas.text(place, text, look);
}

std::vector<std::string> wrapped(const Canvas& canvas, const std::string& text, const TextLook& look, double width) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find(' ', at);
        if (end == std::string::npos) end = text.size();
        const std::string word = text.substr(at, end - at);
        at = end + 1;
        if (word.empty()) continue;
        if (!lines.empty() && canvas.textwidth(lines.back() + " " + word, look) <= width)
            lines.back() += " " + word;
        else
            lines.push_back(word);
    }
    return lines;
}

double paragraph(Canvas& canvas, const Area& area, const std::string& text, const TextLook& look) {
    double y = area.top;
    for (const std::string& line : wrapped(canvas, text, look, area.width())) {
        canvas.text({area.left, y}, line, look);
        y += canvas.textheight(look);
    }
    return y;
}

void hairline(Canvas& canvas, Place from, Place to, Rgb colour, double width) {
    const Place places[] = {from, to};
    canvas.line(places, {colour, width});
}

double pagehead(Canvas& canvas, const Area& area, const PagePlan& pages, const std::string& what) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook title{look.text, pagetype::title, true};
    TextLook right{look.curve, pagetype::title, true, Anchor::right};
    const TextLook lesser{look.faint, pagetype::lesser};
    constexpr double gap = 24;
    while (right.size > pagetype::heading && canvas.textwidth(what, right) > area.width() / 2)
        --right.size;
    const double room = area.width() - canvas.textwidth(what, right) - gap;
    fittedtext(canvas, {area.left, area.top}, trimmedname(pages.of.port), title, room);
    canvas.text({area.right, area.top}, what, right);
    const double below = area.top + canvas.textheight(title);
    fittedtext(canvas, {area.left, below}, placewords(pages.of), lesser, area.width());
    const double end = below + canvas.textheight(lesser) + 4;
    hairline(canvas, {area.left, end}, {area.right, end}, look.text, 1);
    return end + 8;
}

double pagefoot(Canvas& canvas, const Area& area, const PagePlan& pages, const FootOf& foot) {
    const Colours& look = coloursof(Lighting::day);
    const TextLook type{look.faint, pagetype::least};
    const TextLook maker{look.faint, pagetype::least, false, Anchor::right};
    const std::string trust = trustclause(pages.of.known);
    const std::string words = clocksentences(pages, foot) + missingwords(pages, foot) + " Heights in metres above " +
                              chartdatum(pages.of.known.datum()) + (trust.empty() ? "" : "; " + trust) + ". " +
                              (foot.more.empty() ? "" : foot.more + " ") + pagecaution;
    const std::string name = std::string(programname) + (foot.page.empty() ? "" : ", " + foot.page);
    const double room = area.width() - canvas.textwidth(name, maker) - 20;
    const auto lines = wrapped(canvas, words, type, room);
    const double top = area.bottom - static_cast<double>(lines.size()) * canvas.textheight(type);
    paragraph(canvas, {area.left, top, area.left + room, area.bottom}, words, type);
    canvas.text({area.right, top}, name, maker);
    hairline(canvas, {area.left, top - 4}, {area.right, top - 4}, look.grid);
    return top - 8;
}

void smallcurve(Canvas& canvas, const Area& area, const PagePlan& pages, Moment from, Moment to, minutes step) {
    const Colours& look = coloursof(Lighting::day);
    const double length = static_cast<double>((to - from).count());
    const double span = pages.heights.greatest - pages.heights.least;
    std::vector<Place> curve;
    const auto paint = [&] {
        if (curve.size() < 2) return curve.clear();
        std::vector<Place> water = curve;
        water.push_back({curve.back().x, area.bottom});
        water.push_back({curve.front().x, area.bottom});
        canvas.fill(water, look.curve, 0.14);
        canvas.line(curve, {look.curve, 1});
        curve.clear();
    };
    for (Moment moment = from;; moment = std::min(moment + step, to)) {
        const auto height = pages.plan.height(moment);
        if (!height) paint();
        const double across = static_cast<double>((moment - from).count()) / length;
        if (height)
            curve.push_back({area.left + area.width() * across,
                             area.bottom - area.height() * (*height - pages.heights.least) / span});
        if (moment >= to) break;
    }
    paint();
}

}  // namespace tarvane
