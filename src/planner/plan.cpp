#include "planner/plan.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::hours;
using std::chrono::minutes;

/// So many days are looked at ahead of a plan and behind it: ranges and springs are told by what lies around.
constexpr int margin = 9;

/// So far ahead of a window the water is sought that it opens behind.
constexpr auto yearback = days(366);

Date spanstart(Moment begins, std::int16_t zonehours) {
    return floor<days>(begins - hours(zonehours)) - days(margin);
}

int spandays(Moment begins, Moment ends) {
    return static_cast<int>(std::chrono::ceil<days>(ends - begins).count()) + 2 * margin + 1;
}

void shift(Stretches& stretches, double by) {
    for (Stretch& each : stretches) {
        each.from += by;
        each.to += by;
    }
}

/// The mean moon's upper and lower passages since 2000, less the port's lag: high waters of a port with one tide like
/// another stand near whole numbers, low waters near halves.
long tidenumber(const HarmonicRecord& port, Moment moment, bool high) {
    constexpr double moonhours = 28.9841042;  // degrees an hour
    constexpr double atstart = 136.5;         // twice the angle from the mean moon at 2000-01-01 00:00
    constexpr Moment start{std::chrono::sys_days{std::chrono::year{2000} / 1 / 1}};
    const double zonetime = static_cast<double>((moment - start).count()) / 3600 - zonehoursof(port);
    const double lag = std::isfinite(port.M2g) ? double{port.M2g} : 0;
    const double turns = (atstart + moonhours * zonetime - lag) / 360;
    return std::lround(high ? turns : turns - 0.5);
}

/// The moment from which a span's hours are counted.
Moment originof(const HarmonicRecord& port, Date first) {
    return Moment(first) + hours(zonehoursof(port));
}

Moment atminute(Moment origin, double spanhours) {
    return origin + minutes(std::lround(spanhours * 60));
}

std::vector<PlannedWater> namedwaters(const HarmonicRecord& port, const TideSpan& tides) {
    std::vector<PlannedWater> waters;
    std::array<std::optional<TideName>, 2> last;  // by kind
    for (const Water& water : watersof(tides, meanspringrange(port))) {
        PlannedWater each{atminute(originof(port, tides.firstday()), water.hours), water};
        std::optional<TideName>& before = last.at(water.high ? 1 : 0);
        each.name = {tidenumber(port, each.moment, water.high), water.high};
        if (before && before->tide == each.name.tide) each.name.nth = before->nth + 1;
        before = each.name;
        waters.push_back(each);
    }
    return waters;
}

/// The last water between two moments at which she doesn't pass.
std::optional<PlannedWater> lastbarring(const std::vector<PlannedWater>& waters, Moment from, Moment to,
                                        const Passage& passage) {
    const double floor = passage.needed(), ceiling = passage.ceiling().value_or(HUGE_VAL);
    const auto bars = [&](const PlannedWater& each) {
        return each.water.height < floor || each.water.height > ceiling;
    };
    const auto behind = std::upper_bound(waters.begin(), waters.end(), to,
                                         [](Moment moment, const PlannedWater& each) { return moment < each.moment; });
    const auto found = std::find_if(std::make_reverse_iterator(behind), waters.rend(), bars);
    return found == waters.rend() || found->moment < from ? std::nullopt : std::optional(*found);
}

/// Of the lunar day about a moment, by all its heights: where waters double or stand, ranges from water to water tell
/// nothing of springs. Nothing beside a day without a prediction.
double rangeabout(const TideSpan& tides, double at) {
    constexpr double aside = 12.42;
    return tides.spreadrange(at - aside, at + aside).value_or(0);
}

/// The highest of the high waters that belong to one tide: those within a quarter of a lunar day.
Moment highestabout(const std::vector<PlannedWater>& waters, const PlannedWater& high) {
    const PlannedWater* highest = &high;
    for (const PlannedWater& each : waters)
        if (each.water.high && std::chrono::abs(each.moment - high.moment) < minutes(372) &&
            each.water.height > highest->water.height)
            highest = &each;
    return highest->moment;
}

}  // namespace

bool wished(const PortClock& clock, const PlannedWindow& window, const WindowWishes& wishes) {
    if (!wished(window.window, wishes)) return false;
    const Date last = clock.at(window.closes - minutes(1)).date;
    for (Date date = clock.at(window.opens).date; date <= last; date += days(1))
        if (wishes.weekdays >> std::chrono::weekday(date).c_encoding() & 1U) return true;
    return false;
}

bool hasday(const PortClock& clock, Date date) {
    return clock.startof(date) < clock.startof(date + days(1));
}

Plan::Plan(const PlanOf& of, const Zones& zones)
    : of_(of),
      clock_(of.clock, zonehoursof(of.port), of.iana, zones),
      begins_(clock_.startof(of.first)),
      ends_(clock_.startof(of.first + days(of.days))),
      origin_(originof(of.port, spanstart(begins_, zonehoursof(of.port)))),
      tides_(of.port, spanstart(begins_, zonehoursof(of.port)), spandays(begins_, ends_)) {
    if (lacksdays()) whynot_ = tides_.whynot();
    for (int i = 0; i < of.days && *whynot_ == '\0'; ++i)
        if (!hasday(clock_, of.first + days(i))) whynot_ = nosuchday;
    const Date first = floor<days>(origin_);
    light_ = lightof(of.port.PortLat, of.port.PortLong, first, tides_.days() + 1);
    const double offset = static_cast<double>((Moment(first) - origin_).count()) / 3600;
    shift(light_.day, offset);
    shift(light_.civil, offset);
    around_ = namedwaters(of.port, tides_);
    for (const PlannedWater& each : around_)
        if (each.moment >= begins_ && each.moment < ends_) waters_.push_back(each);
}

/// The last of all waters within a year before a moment at which she doesn't pass, be it outside the plan: a window may
/// have been open for weeks.
std::optional<PlannedWater> Plan::openingbefore(Moment moment, const Passage& passage) const {
    constexpr int atonce = 30;  // days
    const Moment earliest = moment - yearback;
    // A span's first waters may share a name with some ahead of it.
    if (const auto near = lastbarring(around_, std::max(origin_ + days(1), earliest), moment, passage)) return near;
    Date start = tides_.firstday();
    while (originof(of_.port, start) > earliest) {
        start -= days(atonce);
        const TideSpan earlier(of_.port, start - days(1), atonce + margin);
        const Moment from = std::max(originof(of_.port, start), earliest);
        if (const auto far = lastbarring(namedwaters(of_.port, earlier), from, moment, passage)) return far;
    }
    return std::nullopt;
}

void Plan::nameopening(PlannedWindow& window, const Passage& passage) const {
    const auto opening = openingbefore(window.opens, passage);
    if (!opening) return;
    window.opening = opening->name;
    if (spanhours(opening->moment) >= 0) {
        window.part = partof(tides_, opening->moment, window.opens, passage);
        return;
    }
    // Days beyond both, for the windows at their ends.
    const Date first = spanstart(opening->moment, zonehoursof(of_.port)) + days(margin - 2);
    const int count = static_cast<int>(std::chrono::ceil<days>(window.opens - Moment(first)).count()) + 2;
    window.part = partof(TideSpan(of_.port, first, count), opening->moment, window.opens, passage);
}

/// Which of the windows since a water one is that opens at a moment or is open there since the start of the plan.
int Plan::partof(const TideSpan& tides, Moment water, Moment opens, const Passage& passage) const {
    const Moment origin = originof(of_.port, tides.firstday());
    const auto hoursof = [&](Moment moment) { return static_cast<double>((moment - origin).count()) / 3600; };
    const double from = hoursof(water), to = hoursof(opens);
    if (from >= to) return 0;
    // Windows since that water, whether the plan holds them or not; of one that the plan cuts the last is a part.
    const std::vector<Window> before = accessof(tides, {from, to}, passage, {}, {}).windows;
    const bool itself = !before.empty() && opens - (origin + minutes(before.back().closes)) <= minutes(1);
    return static_cast<int>(before.size()) - (itself ? 1 : 0);
}

/// Whether a day of the span that lies within the plan has no prediction: those around may.
bool Plan::lacksdays() const {
    for (Moment moment = begins_; moment < ends_; moment += days(1))
        if (!height(moment)) return true;
    return begins_ < ends_ && !height(ends_ - minutes(1));
}

double Plan::spanhours(Moment moment) const {
    return static_cast<double>((moment - origin_).count()) / 3600;
}

/// To the nearest minute.
Moment Plan::momentof(double spanhours) const {
    return atminute(origin_, spanhours);
}

PlannedAccess Plan::access(const Passage& passage, const WindowWishes& wishes, bool twilight) const {
    if (begins_ == ends_) return {{}, true, true, {}, {}};
    const Access found =
        accessof(tides_, {spanhours(begins_), spanhours(ends_)}, passage, twilight ? light_.civil : light_.day, {});
    PlannedAccess access{{}, found.always, found.never, found.greatestheight, found.leastheight};
    for (const Window& window : found.windows)
        access.windows.push_back({origin_ + minutes(window.opens), origin_ + minutes(window.closes), window});
    std::erase_if(access.windows, [&](const PlannedWindow& window) { return !wished(clock_, window, wishes); });
    return access;
}

std::vector<std::pair<Moment, Moment>> Plan::light(bool twilight) const {
    std::vector<std::pair<Moment, Moment>> within;
    for (const Stretch& each : twilight ? light_.civil : light_.day) {
        const Moment from = std::max(momentof(each.from), begins_), to = std::min(momentof(each.to), ends_);
        if (from < to) within.emplace_back(from, to);
    }
    return within;
}

const std::vector<SpringTide>& Plan::springsandneaps() const {
    if (!springtides_) springtides_ = findspringsandneaps();
    return *springtides_;
}

std::vector<SpringTide> Plan::findspringsandneaps() const {
    constexpr auto aside = days(5);
    const double springrange = meanspringrange(of_.port);
    // With mainly one tide a day the greatest ranges come with the moon's declination.
    const double twotides = double{of_.port.M2Hm} + double{of_.port.S2Hm};
    const double onetide = double{of_.port.K1Hm} + double{of_.port.O1Hm};
    if (!(springrange > 0) || onetide > 1.5 * twotides) return {};
    std::vector<double> shares(around_.size(), 0);
    for (std::size_t i = 0; i < around_.size(); ++i)
        if (around_[i].water.high) shares[i] = rangeabout(tides_, spanhours(around_[i].moment)) / springrange;
    std::vector<SpringTide> found;
    for (std::size_t i = 0; i < around_.size(); ++i) {
        const PlannedWater& each = around_[i];
        if (!each.water.high || each.moment < begins_ || each.moment >= ends_ || shares[i] <= 0) continue;
        bool greatest = true, least = true;
        for (std::size_t j = 0; j < around_.size(); ++j) {
            if (j == i || !around_[j].water.high || shares[j] <= 0 ||
                std::chrono::abs(around_[j].moment - each.moment) > aside)
                continue;
            // Of equal ones the first counts.
            greatest = greatest && (j < i ? shares[j] < shares[i] : shares[j] <= shares[i]);
            least = least && (j < i ? shares[j] > shares[i] : shares[j] >= shares[i]);
        }
        if (greatest || least) found.push_back({highestabout(waters_, each), greatest, shares[i]});
    }
    return found;
}

std::optional<TideNow> Plan::now(Moment moment) const {
    const auto at = height(moment);
    if (!at) return std::nullopt;
    TideNow now{*at, rate(moment).value_or(0), {}, {}};
    for (const PlannedWater& each : around_) {
        if (each.moment <= moment || each.water.slight) continue;
        std::optional<PlannedWater>& next = each.water.high ? now.nexthigh : now.nextlow;
        if (!next) next = each;
    }
    return now;
}

}  // namespace tarvane
