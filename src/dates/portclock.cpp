#include "dates/portclock.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>

#include "dates/isomoments.h"
#include "dates/summertime.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::duration_cast;
using std::chrono::floor;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

/// The program's own rule of summer time, by whole days of the clock that it makes.
seconds ruleahead(Moment moment, seconds zoneahead) {
    const bool summer = IsSummerDate(floor<days>(moment + zoneahead)) != 0 &&
                        IsSummerDate(floor<days>(moment + zoneahead + hours(1))) != 0;
    return zoneahead + (summer ? hours(1) : hours(0));
}

}  // namespace

std::string utname(seconds ahead) {
    if (ahead == seconds(0)) return "UT";
    const auto whole = std::abs(duration_cast<minutes>(ahead).count());
    std::string name = std::string(ahead < seconds(0) ? "UT-" : "UT+") + std::to_string(whole / 60);
    if (whole % 60 != 0) name += (whole % 60 < 10 ? ":0" : ":") + std::to_string(whole % 60);
    return name;
}

std::string zonename(const ZoneOffset& offset) {
    const bool letters =
        !offset.abbreviation.empty() && std::isalpha(static_cast<unsigned char>(offset.abbreviation[0]));
    return letters ? offset.abbreviation : utname(offset.ahead);
}

std::string clocktext(const ClockTime& time) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", time.hour(), time.minuteofhour());
    return text;
}

std::string isomoment(const ClockTime& time) {
    return isomoment(time.date, clocktext(time), time.ahead);
}

PortClock::PortClock(ClockChoice choice, std::int16_t zonehours, const std::string& iana, const Zones& zones)
    : zoneahead_(hours(-zonehours)), iana_(iana), zones_(zones) {
    const auto fix = [&](seconds ahead, const std::string& words) {
        fixed_ = true;
        fixedahead_ = ahead;
        fixedname_ = utname(ahead);
        description_ = words;
    };
    if (choice == ClockChoice::computer) iana_ = zones.computerszone();
    const bool known = !iana_.empty() && zones.offsetat(iana_, Moment{});
    if (choice == ClockChoice::ut) fix(seconds(0), "universal time");
    if (choice == ClockChoice::zone) fix(zoneahead_, "zone time (" + utname(zoneahead_) + ")");
    if (choice == ClockChoice::computer && known) description_ = "this computer's clock (" + iana_ + ")";
    if (choice == ClockChoice::computer && !known) fix(seconds(0), "universal time (this computer's zone isn't known)");
    if (choice == ClockChoice::port) {
        byrule_ = !known;
        description_ = known ? "port's clock (" + iana_ + ")"
                             : "port's clock by its zone (" + utname(zoneahead_) + ") and European summer time";
    }
}

seconds PortClock::aheadat(Moment moment, std::string* name) const {
    if (fixed_ || byrule_) {
        const seconds ahead = fixed_ ? fixedahead_ : ruleahead(moment, zoneahead_);
        if (name) *name = utname(ahead);
        return ahead;
    }
    if (!known_ || moment < known_->from || moment >= known_->until) known_ = zones_.offsetat(iana_, moment);
    if (name) *name = zonename(*known_);
    return known_->ahead;
}

ClockTime PortClock::at(Moment moment) const {
    ClockTime time;
    const seconds ahead = aheadat(moment, &time.name);
    const Moment shown = moment + ahead;
    time.date = floor<days>(shown);
    time.minute = static_cast<int>(floor<minutes>(shown - time.date).count());
    time.ahead = floor<minutes>(ahead);
    return time;
}

Moment PortClock::startof(Date date) const {
    // The offset a day earlier and a day later bound what midnight can have; the earlier moment that shows the date.
    const Moment guess = Moment(date);
    Moment start = guess - aheadat(guess - hours(36), nullptr);
    const Moment other = guess - aheadat(guess + hours(36), nullptr);
    if (other < start) start = other;
    while (at(start).date < date)
        start += minutes(15);
    return start;
}

}  // namespace tarvane
