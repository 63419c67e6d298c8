#include "output/yeartides.h"

#include <algorithm>
#include <cmath>

#include "dates/calendar.h"
#include "engine/height.h"
#include "output/juliandate.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr double lasthour = 50;
constexpr double minutestep = 1.0 / 60;

Date dateofjulian(double julian) {
    const JulianMoment moment = juliantodate(julian);
    return makedate(moment.year, moment.month, moment.day);
}

std::optional<AnglesAndFactors> constantsof(Date date) {
    return orbitalconstants(yearof(date), dayofyear(date));
}

std::size_t samplesofrun() {
    std::size_t count = 0;
    for (double t = 0; t <= lasthour; t += minutestep)
        ++count;
    return count;
}

bool allfinite(const std::vector<TimedValue>& samples) {
    return std::all_of(samples.begin(), samples.end(),
                       [](const TimedValue& sample) { return std::isfinite(sample.height); });
}

}  // namespace

std::optional<int> yearrun(const HarmonicRecord& port, double julian, std::vector<TimedValue>& samples) {
    const Date date = dateofjulian(julian);
    const auto before = constantsof(dateofjulian(julian - 1)), day = constantsof(date);
    if (!before || !day) return std::nullopt;
    const HarmonicConstants constants = seasonalconstants(port, monthof(date));
    const HeightInputs inputs{constants, *before, *day, speedsandrates(*before, *day), constants.Z0 + constants.DeltaZ0,
                              0,         1};
    std::vector<HeightParts> heights(samplesofrun());
    sampleheights(inputs, 0, minutestep, heights);
    samples.assign(heights.size() + 1, {});
    double t = 0;
    for (std::size_t i = 0; i < heights.size(); ++i, t += minutestep)
        samples[i] = {t, heights[i].height};
    return dayofyear(date);
}

std::vector<TimedValue> hightimes(const std::vector<TimedValue>& samples, double& range) {
    std::vector<TimedValue> turning, highs;
    for (std::size_t i = 1; i + 2 < samples.size(); ++i) {
        const double left = samples[i].height, right = samples[i + 2].height;
        const TimedValue& middle = samples[i + 1];
        const double time = middle.time + 1E-06;
        // kept: a low water has no upper limit, so those of the next day's first hours come in
        if (left > middle.height && middle.height < right && time > 24) turning.push_back(middle);
        if (left < middle.height && middle.height > right && time > 24 && time < 48) {
            turning.push_back(middle);
            highs.push_back({middle.time - 24, middle.height});
        }
    }
    double greatest = -9999, least = 9999;
    // kept: the day's first turning point is not looked at
    for (std::size_t i = 1; i < turning.size(); ++i) {
        greatest = std::max(greatest, turning[i].height);
        least = std::min(least, turning[i].height);
    }
    range = greatest - least;
    return highs;
}

YearTides startyeartides(const HarmonicRecord& port, int year) {
    YearTides run;
    run.port = port;
    run.year = year;
    run.julian = juliandate(1, 1, year, 0, 0, 0);
    run.next.daynumber = 1;
    run.next.year = year;
    return run;
}

int daysofrun(const YearTides& run) {
    return daysinyear(run.year) + daysinyear(run.year + 1);
}

bool addday(YearTides& run) {
    std::vector<TimedValue> samples;
    const std::optional<int> number = yearrun(run.port, run.julian, samples);
    run.whynot = !number ? noconstants : !allfinite(samples) ? brokenrecord : "";
    if (*run.whynot) return false;
    run.tidedayofyear = *number;
    YearTideRow row = run.next;
    const std::vector<TimedValue> highs = hightimes(samples, row.range);
    if (!highs.empty()) row.firsthw = run.julian + highs[0].time / 24;
    if (highs.size() > 1) row.secondhw = run.julian + highs[1].time / 24;
    run.rows.push_back(row);
    // kept: the number rises behind a day's row, but not behind the first, so that the first year's lag by one from
    // there
    if (run.rows.size() > 1) ++run.next.daynumber;
    run.julian += 1;
    const JulianMoment next = juliantodate(run.julian);
    run.next.year = next.year;
    if (next.month == 1 && next.day == 1) run.next.daynumber = 1;
    return true;
}

std::string yeartidesfile(const std::vector<YearTideRow>& rows) {
    std::string text = "id,YearNo,DayNo,Range,FirstHW,SecondHW\r\n";
    // kept: the last day is computed and not written
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        const YearTideRow& row = rows[i];
        text += numbertext(static_cast<int>(i + 1)) + "," + numbertext(row.year) + "," + numbertext(row.daynumber) +
                "," + numbertext(row.range) + "," + numbertext(row.firsthw) + "," + numbertext(row.secondhw) + "\r\n";
    }
    return text;
}

}  // namespace tarvane
