#include "tides/views.h"

#include <array>

#include "dates/summertime.h"
#include "text/numbers.h"

namespace tarvane {

namespace {

constexpr std::array<const View*, 9> allviews{&watersview, &samplesview,    &monthview,  &sunview, &orbitalview,
                                              &listview,   &planwatersview, &accessview, &nowview};

}  // namespace

std::span<const View* const> views() {
    return allviews;
}

std::string portsubject(const std::string& name, std::int16_t number) {
    return name + ", port " + numbertext(number);
}

void predictport(const ViewContext& context, const PortInHand& port, Date date, Prediction& prediction) {
    const TideDay day{yearof(date), monthof(date), static_cast<std::int16_t>(dayofyear(date)),
                      summershift(date, context.settings.summerflag2)};
    predictday(port.port, day, prediction);
    findturningpoints(prediction);
}

void noteabsence(Absences& absences, const PortInHand& port, const Prediction& prediction, Date date) {
    if (prediction.defined) return;
    absences.note("prediction for " + port.subject + ",", prediction.whynot, date);
}

SunHours sunofport(const ViewContext& context, const PortInHand& port, Date date) {
    const HarmonicRecord& record = port.port.record;
    return SunTimes(record.PortLat, record.PortLong, dayof(date), monthof(date), yearof(date),
                    summershift(date, context.settings.summerflag2), zonehoursof(record));
}

int hoursahead(const PortInHand& port, std::int16_t shift) {
    return -zonehoursof(port.port.record) - shift;
}

float includeddepth(const PortInHand& port) {
    return port.port.currentoutput == 1 ? 0 : port.port.userdepth;
}

Date dateofhour(Date day, double hour) {
    return hour < 24 ? day : day + std::chrono::days(1);
}

}  // namespace tarvane
