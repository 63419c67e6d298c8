#include "atlas/portcheck.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <tuple>

#include "dates/isomoments.h"
#include "dates/typeddate.h"
#include "engine/waters.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;

constexpr minutes furthest = hours(3);
constexpr double mostmetres = 30;
constexpr std::size_t leastforhint = 3;

enum class Kind { either, high, low };

std::string lowered(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::optional<Kind> kindof(const std::string& typed) {
    const std::string word = lowered(trim(typed));
    const auto among = [&](std::initializer_list<const char*> words) {
        return std::find(words.begin(), words.end(), word) != words.end();
    };
    if (word.empty()) return Kind::either;
    if (among({"high", "hw", "h", "high water"})) return Kind::high;
    if (among({"low", "lw", "l", "low water"})) return Kind::low;
    return std::nullopt;
}

bool digits(const std::string& text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Minutes of the day: "6:12", "06:12", "0612".
std::optional<int> timeof(const std::string& typed) {
    const std::string text = trim(typed);
    const std::size_t colon = text.find(':');
    const bool parted = colon != std::string::npos;
    if (!parted && !digits(text, 3, 4)) return std::nullopt;
    const std::string hour = text.substr(0, parted ? colon : text.size() - 2);
    const std::string minute = text.substr(parted ? colon + 1 : text.size() - 2);
    if (!digits(hour, 1, 2) || !digits(minute, 2, 2)) return std::nullopt;
    const int whole = std::stoi(hour) * 60 + std::stoi(minute);
    return std::stoi(minute) < 60 && whole < 24 * 60 ? std::optional(whole) : std::nullopt;
}

/// Metres: "5.4", "5,4", "5.4 m".
std::optional<double> heightof(const std::string& typed) {
    std::string text = lowered(trim(typed));
    if (!text.empty() && text.back() == 'm') text = trim(text.substr(0, text.size() - 1));
    std::replace(text.begin(), text.end(), ',', '.');
    if (text.starts_with('+')) text.erase(0, 1);
    double height = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), height);
    const bool number = !text.empty() && read.ec == std::errc() && read.ptr == text.data() + text.size();
    return number && std::abs(height) <= mostmetres ? std::optional(height) : std::nullopt;
}

/// "2026-07-14", a day that there is.
std::optional<Date> dateof(const std::string& typed) {
    const std::string text = trim(typed);
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const std::string year = text.substr(0, 4), month = text.substr(5, 2), day = text.substr(8);
    if (!digits(year, 4, 4) || !digits(month, 2, 2) || !digits(day, 2, 2) || std::stoi(year) == 0) return std::nullopt;
    const Date date = makedate(std::stoi(year), std::stoi(month), std::stoi(day));
    return isodate(date) == text ? std::optional(date) : std::nullopt;
}

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
    std::optional<CheckedWater> nearest(Moment moment, Kind kind) {
        const Date day = std::chrono::floor<days>(moment - zone_);
        std::optional<CheckedWater> best;
        for (const Date date : {day - days(1), day, day + days(1)})
            for (const CheckedWater& water : watersof(date)) {
                if (kind != Kind::either && water.high != (kind == Kind::high)) continue;
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
struct LineRead {
    std::string fault;
    Moment moment{};
    double height = 0;
    Kind kind = Kind::either;
};

LineRead readline(const TableWater& line, const PortClock& clock, std::optional<Date>& date) {
    if (trim(line.date + line.time + line.height + line.kind).empty()) return {.fault = emptyline};
    if (!trim(line.date).empty()) date = dateof(line.date);
    if (!date) return {.fault = "No date: type one such as 2026-07-14"};
    const auto minute = timeof(line.time);
    if (!minute) return {.fault = "No time: type one such as 06:12"};
    const auto height = heightof(line.height);
    if (!height) return {.fault = "No height: type metres such as 5.4"};
    const auto kind = kindof(line.kind);
    if (!kind) return {.fault = "Type high or low, or nothing"};
    const auto moment = momentat(clock, *date, *minute);
    if (!moment) return {.fault = "The clocks leave this time out on that day"};
    return {"", *moment, *height, *kind};
}

CheckedWater compare(const LineRead& line, Predicted& predicted) {
    CheckedWater water{.fault = line.fault};
    if (!water.fault.empty()) return water;
    const auto nearest = predicted.nearest(line.moment, line.kind);
    const char* kind = line.kind == Kind::either ? "" : line.kind == Kind::high ? "high " : "low ";
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

std::vector<std::string> fieldsof(std::string line) {
    // A comma may be a decimal one: it parts fields only where a field shows that it can't be.
    const bool parts = line.find(';') == std::string::npos && line.find('\t') == std::string::npos &&
                       line.find(' ') == std::string::npos;
    for (char& c : line)
        if (c == '\t' || c == ';' || c == '\r' || (c == ',' && parts)) c = ' ';
    std::vector<std::string> fields;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(' ', at)) != std::string::npos) {
        const std::size_t end = std::min(line.find(' ', at), line.size());
        std::string field = line.substr(at, end - at);
        while (!field.empty() && field.back() == ',')
            field.pop_back();
        if (!field.empty()) fields.push_back(field);
        at = end;
    }
    return fields;
}

/// The field that is the time: one with a colon, else the last four figures that a height follows.
std::size_t timeplace(const std::vector<std::string>& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].find(':') != std::string::npos && timeof(fields[i])) return i;
    for (std::size_t i = fields.size(); i-- > 0;)
        if (timeof(fields[i]) && i + 1 < fields.size() && heightof(fields[i + 1])) return i;
    return fields.size();
}

TableWater lineof(const std::vector<std::string>& fields) {
    TableWater water;
    const std::size_t time = timeplace(fields);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string& field = fields[i];
        const bool word = kindof(field).has_value();
        if (word && water.kind.empty())
            water.kind = *kindof(field) == Kind::high ? "high" : "low";
        else if (i == time)
            water.time = field;
        else if (i < time)
            water.date += (water.date.empty() ? "" : " ") + field;
        else if (water.height.empty())
            water.height = field;
    }
    if (!water.height.empty() && heightof(water.height))
        if (lowered(water.height).ends_with('m')) water.height.pop_back();
    return water;
}

}  // namespace

PortClock clockof(TableClock choice, const HarmonicRecord& port, const std::string& iana, const Zones& zones) {
    constexpr std::array choices{ClockChoice::zone, ClockChoice::port, ClockChoice::ut};
    return {choices.at(static_cast<std::size_t>(choice)), zonehoursof(port), iana, zones};
}

CheckResult checkwaters(const HarmonicRecord& port, const std::string& iana, const TableCheck& check,
                        const Zones& zones) {
    const PortClock clock = clockof(check.clock, port, iana, zones);
    Predicted predicted(port);
    CheckResult result;
    std::optional<Date> date;
    for (const TableWater& line : check.waters)
        result.waters.push_back(compare(readline(line, clock, date), predicted));
    conclude(result, clock);
    return result;
}

std::string differencewords(double late, double high) {
    const double whole = std::round(late), hundredths = std::round(high * 100) / 100;
    std::string words = whole == 0 ? "on time" : fixed(std::abs(whole), 0) + " min " + (whole < 0 ? "early" : "late");
    words += ", ";
    words += hundredths == 0 ? "as high" : fixed(std::abs(hundredths), 2) + " m " + (hundredths < 0 ? "low" : "high");
    return words;
}

std::string checkwords(const CheckResult& result) {
    if (result.compared == 0) return "";
    return "Checked by you against " + numbertext(result.compared) +
           (result.compared == 1 ? " water of " : " waters of ") + result.years + ": the prediction is on the mean " +
           differencewords(result.meanminutes, result.meanmetres) + "; at worst it differs by " +
           fixed(result.worstminutes, 0) + " min, " + fixed(result.worstmetres, 2) + " m";
}

std::string tidydate(const std::string& typed, const DateConventions& conventions, const Locale& locale, Date today) {
    if (trim(typed).empty()) return "";
    const ReadDate read = readdate(typed, conventions, locale, today);
    return read.date ? isodate(*read.date) : typed;
}

std::vector<TableWater> pastedwaters(const std::string& text) {
    std::vector<TableWater> waters;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, end - at);
        at = end + 1;
        if (line.find_first_of("0123456789") != std::string::npos) waters.push_back(lineof(fieldsof(line)));
    }
    return waters;
}

}  // namespace tarvane
