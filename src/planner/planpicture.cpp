#include "planner/planpicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "dates/dateformats.h"
#include "planner/planlabels.h"
#include "planner/plantexts.h"
#include "sunmoon/lunarphases.h"

namespace tarvane {
namespace {

using pictureparts::floorof;
using pictureparts::inset;
using pictureparts::strokeof;
using pictureparts::textlook;

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;

/// On paper, which is the day.
void paintdark(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    const auto fillbetween = [&](const std::vector<std::pair<Moment, Moment>>& light, Rgb colour) {
        Moment dark = scale.from;
        const auto fillto = [&](Moment end) {
            if (dark < end) canvas.fill(Area{scale.x(dark), scale.plot.top, scale.x(end), scale.plot.bottom}, colour);
        };
        for (const auto& [begins, ends] : light) {
            fillto(std::min(begins, scale.to));
            dark = std::max(dark, ends);
        }
        fillto(scale.to);
    };
    fillbetween(picture.plan.light(false), picture.look.twilight);
    fillbetween(picture.plan.light(true), picture.look.night);
}

/// The least step of a ladder that keeps marks so far apart, or its last.
template <std::size_t count>
double stepof(const std::array<double, count>& ladder, double perunit, double apart) {
    const auto step = std::find_if(ladder.begin(), ladder.end(), [&](double each) { return each * perunit >= apart; });
    return step == ladder.end() ? ladder.back() : *step;
}

/// Of heights: beyond the ladder by powers of ten, for a record whose constants are out of all measure.
double heightstep(double permetre, double apart) {
    constexpr std::array ladder{0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0};
    double step = stepof(ladder, permetre, apart);
    while (permetre > 0 && step * permetre < apart)
        step *= 10;
    return step;
}

constexpr double mostheights = 1000;  // lines; more would stand in a plot without height

void paintheights(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    const TextLook look = textlook(picture, picture.look.faint, Anchor::right);
    const double tall = canvas.textheight(look);
    const double step = heightstep(scale.plot.height() / (scale.greatest - scale.least), 2 * tall);
    const double first = std::ceil(scale.least / step), last = std::floor(scale.greatest / step);
    if (!(last - first < mostheights)) return;
    for (int i = 0; i <= static_cast<int>(last - first); ++i) {
        const double height = (first + i) * step, y = scale.y(height);
        if (y - tall / 2 < scale.plot.top + tall || y + tall / 2 > scale.plot.bottom) continue;
        const std::array places{Place{scale.plot.left, y}, Place{scale.plot.right, y}};
        canvas.line(places, {picture.look.grid, 0.5});
        std::string text = metres(height, step < 1 ? 1 : 0);
        text.resize(text.size() - 2);  // the unit stands at the top
        canvas.text({scale.plot.left - inset, y - tall / 2}, text, look);
    }
    canvas.text({scale.plot.left - inset, scale.plot.top}, "m", look);
}

/// Calls `act` with each full hour of the clock within the part shown.
template <typename Act>
void eachhour(const PlanPicture& picture, const PlanScale& scale, Act act) {
    // Clocks stand whole quarters of an hour off universal time.
    for (Moment at = std::chrono::ceil<hours>(scale.from - hours(1)); at <= scale.to; at += minutes(15)) {
        if (at < scale.from) continue;
        const ClockTime time = picture.plan.clock().at(at);
        if (time.minuteofhour() == 0) act(at, time.hour());
    }
}

void painthours(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    constexpr std::array ladder{1.0, 2.0, 3.0, 6.0, 12.0, 24.0};
    const TextLook look = textlook(picture, picture.look.faint, Anchor::middle);
    const double perhour = scale.plot.width() / (static_cast<double>((scale.to - scale.from).count()) / 3600);
    const double digits = canvas.textwidth("00", look);
    const int step = static_cast<int>(stepof(ladder, perhour, digits * 1.8));
    if (step >= 24) return;
    double behind = -HUGE_VAL;
    eachhour(picture, scale, [&](Moment at, int hour) {
        const double x = scale.x(at);
        const std::array places{Place{x, scale.plot.top}, Place{x, scale.plot.bottom}};
        if (hour == 0 || hour % step != 0) return;
        canvas.line(places, {picture.look.grid, 0.5});
        // An hour that comes twice may have room for its name once.
        if (x + digits / 2 > picture.area.right || x - digits / 2 < behind) return;
        behind = x + 0.8 * digits;
        canvas.text({x, scale.plot.bottom + inset / 2}, (hour < 10 ? "0" : "") + std::to_string(hour), look);
    });
}

/// What a day is within the springs and neaps and the phases of the moon.
struct DayHead {
    Date date{};
    double left = 0, right = 0;
    int phase = -1;  ///< of the moon; negative for none
    std::string tide;
};

std::vector<DayHead> dayheads(const PlanPicture& picture, const PlanScale& scale) {
    const PortClock& clock = picture.plan.clock();
    const auto phases = phasesbetween(picture.plan.begins(), picture.plan.ends());
    const auto& springs = picture.plan.springsandneaps();
    std::vector<DayHead> heads;
    for (Date date = clock.at(scale.from).date; clock.startof(date) < scale.to; date += days(1)) {
        DayHead head{date, scale.x(std::max(clock.startof(date), scale.from)),
                     scale.x(std::min(clock.startof(date + days(1)), scale.to)), -1, ""};
        for (const MoonPhase& each : phases)
            if (clock.at(each.moment).date == date) head.phase = each.phase;
        for (const SpringTide& each : springs)
            if (clock.at(each.moment).date == date) head.tide = each.springs ? "springs" : "neaps";
        heads.push_back(head);
    }
    return heads;
}

/// From head to foot of the plot, but for where words stand.
void upright(Canvas& canvas, const PlanScale& scale, double x, const Worded& worded, const LineLook& look) {
    Worded across;
    for (const Area& each : worded)
        if (each.left < x && x < each.right) across.push_back(each);
    std::sort(across.begin(), across.end(), [](const Area& one, const Area& other) { return one.top < other.top; });
    across.push_back({x, scale.plot.bottom, x, scale.plot.bottom});
    double top = scale.plot.top;
    for (const Area& each : across) {
        const std::array piece{Place{x, top}, Place{x, each.top}};
        if (top < each.top) canvas.line(piece, look);
        top = std::max(top, each.bottom);
    }
}

/// The first of some names that has room.
void paintfirst(Canvas& canvas, Place place, const std::vector<std::string>& names, double room, const TextLook& look) {
    const auto name = std::find_if(names.begin(), names.end(),
                                   [&](const auto& each) { return canvas.textwidth(each, look) <= room; });
    if (name != names.end()) canvas.text(place, *name, look);
}

/// "Wed", or "W" where not all of a week's have room so.
std::vector<std::string> weekdaynames(const Canvas& canvas, const PlanPicture& picture, double room) {
    const TextLook look = textlook(picture, 0, Anchor::middle, true);
    std::vector<std::string> names, letters;
    for (int weekday = 0; weekday < 7; ++weekday) {
        names.push_back(picture.locale.dayabbreviation(weekday));
        letters.push_back(picture.locale.dayletter(weekday));
    }
    const auto hasroom = [&](const std::string& name) { return canvas.textwidth(name, look) <= room; };
    return std::all_of(names.begin(), names.end(), hasroom) ? names : letters;
}

void paintheads(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const Worded& worded) {
    const double line = canvas.textheight(textlook(picture, 0)), radius = picture.textsize * 0.42;
    const double top = scale.plot.top - scale.headrows() * line - inset;
    canvas.fill(Area{scale.plot.left, top, scale.plot.right, scale.plot.top}, picture.look.band);
    constexpr double tight = 3;  // of the room between two heads, for what is the same in every one
    const bool ownrow = scale.headrows() > 2;
    std::vector<std::string> daynames;
    if (ownrow) daynames = weekdaynames(canvas, picture, scale.dayroom() + tight);
    const TextLook small = textlook(picture, picture.look.faint, Anchor::middle);
    const bool longtides = canvas.textwidth("springs", small) <= scale.dayroom();
    bool monthless = true;
    for (DayHead& head : dayheads(picture, scale)) {
        const auto weekday = std::chrono::weekday(head.date);
        const bool weekend = weekday == std::chrono::Saturday || weekday == std::chrono::Sunday;
        const TextLook look = textlook(picture, picture.look.text, Anchor::middle, weekend);
        const double room = head.right - head.left - inset, middle = (head.left + head.right) / 2;
        if (ownrow) paintfirst(canvas, {middle, top + inset / 2}, {daynames[weekday.c_encoding()]}, room + tight, look);
        std::vector<std::string> names;
        // A day that is seen in part may have room for a shorter name alone.
        for (const std::string& each : {scale.dayform, std::string(ownrow ? "d" : "ddd d"), std::string("d")})
            names.push_back(formatdate(picture.locale, head.date, each));
        paintfirst(canvas, {middle, top + inset / 2 + (ownrow ? line : 0)}, names, room, look);
        // With the moon's room beside it; the short form where the whole word is too wide.
        const double moon = head.phase < 0 ? 0 : 2 * radius + inset / 2;
        if (!head.tide.empty() && (!longtides || canvas.textwidth(head.tide, small) + moon > room))
            head.tide = head.tide == "springs" ? "sp" : "np";
        // Numbers alone need their month somewhere: where nothing else is told, and on a day as wide as it.
        monthless = monthless || dayof(head.date) == 1;
        const std::string month = formatdate(picture.locale, head.date, "mmm");
        if (ownrow && monthless && head.tide.empty() && head.phase < 0 && canvas.textwidth(month, small) <= room) {
            head.tide = month;
            monthless = false;
        }
        const double wide = canvas.textwidth(head.tide, small), lower = scale.plot.top - inset / 2 - line;
        const bool told = !head.tide.empty() && wide <= room, both = told && moon > 0 && wide + moon <= room;
        if (told) canvas.text({both ? middle - moon / 2 : middle, lower}, head.tide, small);
        if (head.phase >= 0 && room > 2 * radius && (both || !told))
            paintmoon(canvas, {both ? middle + (wide + moon) / 2 - radius : middle, lower + line / 2}, radius,
                      head.phase, picture.look);
        const std::array edge{Place{head.right, top}, Place{head.right, scale.plot.top}};
        canvas.line(edge, {picture.look.grid, 1});
        // Of the day, not of the hour: some days begin without a midnight.
        upright(canvas, scale, head.left, worded, {picture.look.faint, 1});
    }
}

void paintwindows(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const CurvePieces& curve) {
    if (!picture.passage || !picture.access) return;
    const double foot = floorof(picture, scale);
    const HatchLook look{picture.look.passable, picture.look.hatch, 0.7 * strokeof(picture)};
    for (const PlannedWindow& window : picture.access->windows)
        for (const std::vector<Place>& piece : curvebetween(curve, scale.x(window.opens), scale.x(window.closes)))
            canvas.fillhatched(piece, foot, look);
}

void paintseabed(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    if (!picture.passage || picture.passage->bottom >= 0) return;
    const double y = std::max(scale.y(-picture.passage->bottom), scale.plot.top);
    if (y < scale.plot.bottom)
        canvas.fill(Area{scale.plot.left, y, scale.plot.right, scale.plot.bottom}, picture.look.seabed);
}

void paintcurve(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const CurvePieces& pieces) {
    for (const std::vector<Place>& piece : pieces)
        canvas.line(piece, {picture.look.curve, 2 * strokeof(picture)});
    if (!pieces.empty()) return;
    const TextLook look = textlook(picture, picture.look.text, Anchor::middle);
    canvas.text({(scale.plot.left + scale.plot.right) / 2, (scale.plot.top + scale.plot.bottom) / 2},
                picture.plan.whynot(), look);
}

/// Beside the title, which ends at `from`, as large as it can be.
void painttrustline(Canvas& canvas, const PlanPicture& picture, double from) {
    constexpr double least = 0.65, gap = 12;
    TextLook look{picture.look.faint, picture.textsize, false, Anchor::right};
    const double right = picture.area.right - 2 * inset;
    while (look.size > least * picture.textsize && canvas.textwidth(picture.trust, look) > right - from - gap)
        look.size -= 0.05 * picture.textsize;
    if (!picture.trust.empty() && canvas.textwidth(picture.trust, look) <= right - from - gap)
        canvas.text({right, picture.area.top + inset}, picture.trust, look);
}

}  // namespace

Worded paintplan(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    const CurvePieces curve = curvepieces(picture, scale);
    const PlanLabels labels = planlabels(canvas, picture, scale, curve);
    const Worded worded = areasof(canvas, labels);
    canvas.fill(picture.area, picture.look.paper);
    if (!picture.title.empty()) {
        const TextLook look{picture.look.text, picture.textsize * 1.25, true, Anchor::left};
        canvas.text({scale.plot.left, picture.area.top + inset}, picture.title, look);
        painttrustline(canvas, picture, scale.plot.left + canvas.textwidth(picture.title, look));
    }
    paintdark(canvas, picture, scale);
    paintwindows(canvas, picture, scale, curve);
    paintheads(canvas, picture, scale, worded);
    paintheights(canvas, picture, scale);
    painthours(canvas, picture, scale);
    paintseabed(canvas, picture, scale);
    paintcurve(canvas, picture, scale, curve);
    paintplanlabels(canvas, picture, scale, labels);
    return worded;
}

void paintnow(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const Worded& worded, Moment now) {
    if (now < scale.from || now > scale.to) return;
    upright(canvas, scale, scale.x(now), worded, {picture.look.now, 1.5 * strokeof(picture)});
}

void paintcursor(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const Worded& worded, Moment at,
                 const std::vector<std::string>& words) {
    if (at < scale.from || at > scale.to) return;
    const double x = scale.x(at), radius = picture.textsize / 3;
    upright(canvas, scale, x, worded, {picture.look.cursor, strokeof(picture)});
    std::vector<Place> dot;
    if (const auto height = picture.plan.height(at))
        for (int i = 0; i < 24; ++i) {
            const double turn = i * std::numbers::pi / 12;
            dot.push_back({x + radius * std::cos(turn), scale.y(*height) + radius * std::sin(turn)});
        }
    if (!dot.empty()) canvas.fill(dot, picture.look.cursor);
    const TextLook look = textlook(picture, picture.look.text);
    double width = 0;
    for (const std::string& each : words)
        width = std::max(width, canvas.textwidth(each, look));
    const double tall = canvas.textheight(look), left = x + 3 * inset;
    const bool onleft = left + width + 3 * inset > scale.plot.right;
    Area bubble{left, scale.plot.top + inset, left + width + 2 * inset,
                scale.plot.top + 3 * inset + tall * static_cast<double>(words.size())};
    if (onleft) bubble = {x - 3 * inset - width - 2 * inset, bubble.top, x - 3 * inset, bubble.bottom};
    canvas.fill(bubble, picture.look.band);
    const std::array frame{Place{bubble.left, bubble.top}, Place{bubble.right, bubble.top},
                           Place{bubble.right, bubble.bottom}, Place{bubble.left, bubble.bottom},
                           Place{bubble.left, bubble.top}};
    canvas.line(frame, {picture.look.cursor, 1});
    for (std::size_t i = 0; i < words.size(); ++i)
        canvas.text({bubble.left + inset, bubble.top + inset + tall * static_cast<double>(i)}, words[i], look);
}

void paintmoon(Canvas& canvas, Place middle, double radius, int phase, const Colours& look) {
    std::vector<Place> rim, half;
    for (int i = 0; i <= 36; ++i) {
        const double turn = i * std::numbers::pi / 18;
        rim.push_back({middle.x + radius * std::cos(turn), middle.y + radius * std::sin(turn)});
        // Of the dark half: on the left at the first quarter, on the right at the last.
        const double side = phase == 1 ? std::numbers::pi / 2 : -std::numbers::pi / 2, along = side + turn / 2;
        half.push_back({middle.x + radius * std::cos(along), middle.y + radius * std::sin(along)});
    }
    const bool darkpaper = contrast(look.paper, 0) < contrast(look.faint, 0);
    const Rgb dark = darkpaper ? look.paper : look.faint, lit = darkpaper ? look.faint : look.paper;
    canvas.fill(rim, phase == 0 ? dark : lit);
    if (phase == 1 || phase == 3) canvas.fill(half, dark);
    canvas.line(rim, {look.faint, radius / 6});
}

}  // namespace tarvane
