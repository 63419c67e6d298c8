#include "atlas/portcheck.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

#include "engine/waters.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;

constexpr minutes furthest = hours(3);
constexpr std::size_t leastforhint = 3;

/// The moment at which a clock shows that; the earlier of two. Nothing where it never does.
std::optional<Moment> momentat(const PortClock& clock, Date date, int minute) {
    const Moment shown = date + minutes(minute);
    std::optional<Moment> earliest;
    for (const minutes ahead : {clock.at(shown - hours(36)).ahead, clock.at(shown + hours(36)).ahead}) {
        const Moment moment = shown - ahead;
        const ClockTime back = clock.at(moment);
        if (back.date == date && back.minute == minute && (!earliest || moment < *earliest)) earliest = moment;
    }
    return earliest;
}

/// Finds the predicted waters about moments, each day's once.
class Predicted {
  public:
    explicit Predicted(const HarmonicRecord& port) : port_(port), zone_(hours(zonehoursof(port))) {}

    /// The nearest water of a kind within some hours; its height in metres.
    std::optional<CheckedWater> nearest(Moment moment, WaterKind kind) {
        const Date day = std::chrono::floor<days>(moment - zone_);
        std::optional<CheckedWater> best;
        for (const Date date : {day - days(1), day, day + days(1)})
            for (const CheckedWater& water : watersof(date)) {
                if (kind != WaterKind::either && water.high != (kind == WaterKind::high)) continue;
                if (best && std::chrono::abs(water.predicted - moment) >= std::chrono::abs(best->predicted - moment))
                    continue;
                best = water;
            }
        return best;
    }

  private:
    const std::vector<CheckedWater>& watersof(Date date) {
        const auto [found, isnew] = known_.try_emplace(date);
        if (isnew)
            for (const Water& water : tarvane::watersof(port_, date, 1)) {
                CheckedWater& each = found->second.emplace_back();
                each.predicted = date + zone_ + minutes(std::llround(water.hours * 60));
                each.height = water.height;
                each.high = water.high;
            }
        return found->second;
    }

    const HarmonicRecord& port_;
    const hours zone_;
    std::map<Date, std::vector<CheckedWater>> known_;
};

/// A line before it is compared.
struct CheckLine {
    std::string fault;
    Moment moment{};
    double height = 0;
    WaterKind kind = WaterKind::either;
};

/// The date that lines have which come without one.
struct DateBefore {
    std::optional<Date> date;
    std::size_t unread = 0;  ///< the number of the line whose date isn't one; 0 without
};

std::string takedate(const TableWater& line, std::size_t number, DateBefore& before) {
    if (!trim(line.date).empty()) {
        before = {readisodate(line.date), 0};
        if (!before.date) before.unread = number;
        const bool nothing = trim(line.time + line.height).empty();
        if (!before.date && nothing) return linefault(line.date);
        return datefault(line.date);
    }
    if (before.unread != 0)
        return "No date: that of line " + numbertext(static_cast<int>(before.unread)) + " isn't understood";
    return before.date ? "" : datefault("");
}

CheckLine readline(const TableWater& line, std::size_t number, const PortClock& clock, DateBefore& before) {
    if (trim(line.date + line.time + line.height + line.kind).empty()) return {.fault = emptyline};
    if (const std::string fault = takedate(line, number, before); !fault.empty()) return {.fault = fault};
    const auto minute = readtime(line.time);
    if (!minute) return {.fault = "No time: type one such as 06:12"};
    const auto height = readheight(line.height);
    if (line.height.ends_with(doubtfulheight))
        return {.fault = "In which unit is this height? Type metres such as 5.4"};
    if (!height) return {.fault = "No height: type metres such as 5.4"};
    const auto kind = readkind(line.kind);
    if (!kind) return {.fault = "Type high or low, or nothing"};
    const auto moment = momentat(clock, *before.date + days(*minute / 1440), *minute % 1440);
    if (!moment) return {.fault = "The clocks leave this time out on that day"};
    return {"", *moment, *height, *kind};
}

CheckedWater compare(const CheckLine& line, Predicted& predicted) {
    CheckedWater water{.fault = line.fault};
    if (!water.fault.empty()) return water;
    const auto nearest = predicted.nearest(line.moment, line.kind);
    const char* kind = line.kind == WaterKind::either ? "" : line.kind == WaterKind::high ? "high " : "low ";
    if (!nearest || std::chrono::abs(nearest->predicted - line.moment) > furthest) {
        water.fault = std::string("No ") + kind + "water is predicted within 3 hours";
        return water;
    }
    water = *nearest;
    water.given = line.moment;
    water.minutes = static_cast<int>(std::chrono::duration_cast<minutes>(water.predicted - line.moment).count());
    water.metres = water.height - line.height;
    return water;
}

struct Spread {
    double mean = 0, deviation = 0;
};

Spread spreadof(const std::vector<double>& values) {
    Spread spread;
    const double count = static_cast<double>(values.size());
    for (const double value : values)
        spread.mean += value / count;
    for (const double value : values)
        spread.deviation += (value - spread.mean) * (value - spread.mean) / count;
    spread.deviation = std::sqrt(spread.deviation);
    return spread;
}

/// What all waters share is seldom the port's: another datum, another clock.
std::string hintof(const Spread& time, const Spread& height) {
    constexpr double leastminutes = 25, mostscatter = 12, leastmetres = 0.05;
    std::string hint;
    if (std::abs(height.mean) >= leastmetres && height.deviation <= std::abs(height.mean) / 2)
        hint = "The table's heights are " + fixed(std::abs(height.mean), 2) + " m " +
               (height.mean < 0 ? "above" : "below") + " the prediction's on average: another datum?";
    if (std::abs(time.mean) >= leastminutes && time.deviation <= mostscatter)
        hint += (hint.empty() ? "" : " ") + std::string("The table's times are ") + fixed(std::abs(time.mean), 0) +
                " minutes " + (time.mean < 0 ? "behind" : "ahead of") + " the prediction's on average: another clock?";
    return hint;
}

void conclude(CheckResult& result, const PortClock& clock) {
    std::vector<double> times, heights;
    int first = 0, last = 0;
    for (const CheckedWater& water : result.waters) {
        if (!water.fault.empty()) continue;
        times.push_back(water.minutes);
        heights.push_back(water.metres);
        const int year = yearof(clock.at(water.given).date);
        first = times.size() == 1 ? year : std::min(first, year);
        last = std::max(last, year);
        result.worstminutes = std::max(result.worstminutes, std::abs(times.back()));
        result.worstmetres = std::max(result.worstmetres, std::abs(heights.back()));
    }
    result.compared = static_cast<int>(times.size());
    if (times.empty()) return;
    const Spread time = spreadof(times), height = spreadof(heights);
    result.meanminutes = time.mean;
    result.meanmetres = height.mean;
    result.years = numbertext(first) + (first == last ? "" : " to " + numbertext(last));
    if (times.size() >= leastforhint) result.hint = hintof(time, height);
}

}  // namespace

PortClock clockof(TableClock choice, const HarmonicRecord& port, const std::string& iana, const Zones& zones) {
    constexpr std::array choices{ClockChoice::zone, ClockChoice::port, ClockChoice::ut};
    return {choices.at(static_cast<std::size_t>(choice)), zonehoursof(port), iana, zones};
}

std::string addedwords(std::size_t added, const std::vector<int>& leftout) {
    constexpr std::size_t most = 3;
    std::string words = added == 1 ? "1 line added" : numbertext(static_cast<int>(added)) + " lines added";
    if (leftout.empty()) return words;
    const bool one = leftout.size() == 1, more = leftout.size() > most;
    words += one ? "; line " : "; lines ";
    const std::size_t named = std::min(most, leftout.size());
    for (std::size_t i = 0; i < named; ++i)
        words += (i == 0 ? "" : i + 1 < named || more ? ", " : " and ") + numbertext(leftout[i]);
    if (more) words += " and " + numbertext(static_cast<int>(leftout.size() - most)) + " more";
    return words + " left out: see Note";
}

CheckResult checkwaters(const HarmonicRecord& port, const std::string& iana, const TableCheck& check,
                        const Zones& zones) {
    const PortClock clock = clockof(check.clock, port, iana, zones);
    Predicted predicted(port);
    CheckResult result;
    DateBefore before;
    for (const TableWater& line : check.waters)
        result.waters.push_back(compare(readline(line, result.waters.size() + 1, clock, before), predicted));
    conclude(result, clock);
    return result;
}

std::string differencewords(double late, double high) {
    const double whole = std::round(late), hundredths = std::round(high * 100) / 100;
    const bool intime = whole == 0, ashigh = hundredths == 0;
    const std::string time = intime ? "on time" : fixed(std::abs(whole), 0) + " min " + (whole < 0 ? "early" : "late");
    if (ashigh) return time + " and as high as the table";
    const std::string height = fixed(std::abs(hundredths), 2) + " m too " + (hundredths < 0 ? "low" : "high");
    return time + (intime ? " but " : " and ") + height;
}

std::string checkwords(const CheckResult& result) {
    if (result.compared == 0) return "";
    const bool one = result.compared == 1;
    std::string words = "Checked by you against " + numbertext(result.compared) + (one ? " water of " : " waters of ") +
                        result.years + ": " + (one ? "" : "on the mean ") + "the prediction is " +
                        differencewords(result.meanminutes, result.meanmetres);
    if (one) return words;
    const double worstminutes = std::round(result.worstminutes),
                 worstmetres = std::round(result.worstmetres * 100) / 100;
    std::string worst = worstminutes > 0 ? fixed(worstminutes, 0) + " min" : "";
    if (worstmetres > 0) worst += (worst.empty() ? "" : " and ") + fixed(worstmetres, 2) + " m";
    return words + "; " + (worst.empty() ? "none is off by more" : "at worst it is off by " + worst);
}

}  // namespace tarvane
