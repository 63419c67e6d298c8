#include "diamonds/daystreams.h"

#include <cmath>

#include "dates/isomoments.h"
#include "portdata/records.h"
#include "text/numbers.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

const char* const noranges = "The port has no spring and neap ranges: its M2 or S2 is 0 or no amplitude";
const char* const nohighwater = "No high water on this day";

/// A time of the day's curve, or one some hours off it, on the calendar.
ClockMoment momentof(Date day, double time) {
    // By whole minutes: an hour's sum can miss midnight by a hair.
    const double minutes = std::round(time * 60), days = std::floor(minutes / 1440);
    return {day + std::chrono::days(static_cast<int>(days)), (minutes - 1440 * days) / 60};
}

TideStreams streamsof(const DiamondRecord& diamond, const DayStreams& day, Date date, const TimedValue& highwater) {
    TideStreams tide{momentof(date, highwater.time), highwater.height, {}};
    for (std::size_t i = 0; i < streamhours; ++i) {
        const int hour = static_cast<int>(i) - static_cast<int>(highwaterplace);
        const Stream& stream = diamond.streams[i];
        tide.rows[i] = {hour, momentof(date, highwater.time + hour), stream.StreamDir,
                        streamrate(stream, day.range, day.means)};
    }
    return tide;
}

std::string isotext(const ClockMoment& moment, int hoursahead) {
    return isomoment(moment.date, timetext(moment.time), std::chrono::hours(hoursahead));
}

}  // namespace

std::optional<MeanRanges> meanranges(const HarmonicRecord& port) {
    const double m2 = port.M2Hm, s2 = port.S2Hm;
    // Written so that what is no number doesn't pass either.
    if (!(m2 > 0 && s2 > 0 && std::isfinite(m2 + s2))) return std::nullopt;
    return MeanRanges{2 * std::abs(m2 - s2), 2 * (m2 + s2)};
}

Beyond beyondmeans(double range, const MeanRanges& means) {
    if (range > means.spring) return Beyond::springs;
    return range < means.neap ? Beyond::neaps : Beyond::nothing;
}

const char* beyondword(Beyond beyond) {
    constexpr const char* words[] = {"", "springs", "neaps"};
    return words[static_cast<std::size_t>(beyond)];
}

double streamrate(const Stream& stream, double range, const MeanRanges& means) {
    const double neap = stream.NeapRate, spring = stream.SpringRate;
    const double rate = neap + (spring - neap) * (range - means.neap) / (means.spring - means.neap);
    return rate < 0 ? 0 : rate;
}

DayStreams daystreams(const DiamondRecord& diamond, const Prediction& prediction) {
    DayStreams day;
    const HarmonicRecord& port = prediction.port.record;
    day.hoursahead = -zonehoursof(port) - prediction.day.summer;
    day.range = prediction.dayrange;
    const auto means = meanranges(port);
    if (!prediction.defined) day.whynot = prediction.whynot;
    if (day.whynot.empty() && !means) day.whynot = noranges;
    if (!day.whynot.empty()) return day;
    day.means = *means;
    day.beyond = beyondmeans(day.range, day.means);
    const Date date = makedate(prediction.day.tideyear, 1, 1) + std::chrono::days(prediction.day.dayofyear - 1);
    for (int i = 1; i <= prediction.turningcount; ++i)
        if (ishighwater(prediction, i))
            day.tides.push_back(streamsof(diamond, day, date, prediction.turningpoints[static_cast<std::size_t>(i)]));
    if (day.tides.empty()) day.whynot = nohighwater;
    return day;
}

std::string hourtext(int hour) {
    return hour == 0 ? "HW" : (hour > 0 ? "+" : "") + numbertext(hour);
}

std::string directiontext(double direction) {
    return format(direction, "000");
}

std::vector<std::string> streamcolumns() {
    return {"highwater", "hour", "moment", "direction", "rate", "beyond"};
}

std::vector<std::vector<std::string>> streamcells(const DayStreams& day) {
    std::vector<std::vector<std::string>> cells;
    for (const TideStreams& tide : day.tides)
        for (const StreamRow& row : tide.rows)
            cells.push_back({isotext(tide.highwater, day.hoursahead), numbertext(row.hour),
                             isotext(row.moment, day.hoursahead), numbertext(static_cast<float>(row.direction)),
                             format(row.rate, "0.00"), beyondword(day.beyond)});
    return cells;
}

}  // namespace tarvane
