#include "tides/views.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "dates/summertime.h"
#include "text/numbers.h"

namespace tarvane {

namespace {

constexpr std::array<const View*, 6> allviews{&watersview, &samplesview, &monthview, &sunview, &orbitalview, &listview};

/// A number from 0 on with leading zeros; plain digits, as there are two dates and a zone in every row.
std::string digits(int number, std::size_t atleast) {
    std::string text;
    for (; number > 0 || text.size() < atleast; number /= 10)
        text.insert(text.begin(), static_cast<char>('0' + number % 10));
    return text;
}

}  // namespace

std::span<const View* const> views() {
    return allviews;
}

void predictport(const ViewContext& context, const PortInHand& port, Date date, Prediction& prediction) {
    const TideDay day{yearof(date), monthof(date), static_cast<std::int16_t>(dayofyear(date)),
                      summershift(date, context.settings.summerflag2)};
    predictday(port.port, day, prediction);
    findturningpoints(prediction);
}

void noteabsence(Absences& absences, const PortInHand& port, const Prediction& prediction, Date date) {
    if (prediction.defined) return;
    absences.note("prediction for " + port.name + ", port " + numbertext(port.port.number) + ",", prediction.whynot,
                  date);
}

SunHours sunofport(const ViewContext& context, const PortInHand& port, Date date) {
    const HarmonicRecord& record = port.port.record;
    return SunTimes(record.PortLat, record.PortLong, dayof(date), monthof(date), yearof(date),
                    summershift(date, context.settings.summerflag2), zonehoursof(record));
}

bool ishighwater(const Prediction& prediction, int turningpoint) {
    const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(turningpoint)];
    const auto row = static_cast<std::size_t>(std::lround(point.time * 6) + 1);
    return point.height > prediction.curvesamples[row - 1].height;
}

int hoursahead(const PortInHand& port, std::int16_t shift) {
    return -zonehoursof(port.port.record) - shift;
}

float includeddepth(const PortInHand& port) {
    return port.port.currentoutput == 1 ? 0 : port.port.userdepth;
}

std::string isodate(Date date) {
    return digits(yearof(date), 4) + "-" + digits(monthof(date), 2) + "-" + digits(dayof(date), 2);
}

Date dateofhour(Date day, double hour) {
    return hour < 24 ? day : day + std::chrono::days(1);
}

std::string momenttext(Date date, const std::string& clock, int hoursahead) {
    return isodate(date) + "T" + clock + (hoursahead < 0 ? "-" : "+") + digits(std::abs(hoursahead), 2) + ":00";
}

}  // namespace tarvane
