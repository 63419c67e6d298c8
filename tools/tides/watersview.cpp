// The high and low waters of each day.
#include "engine/springs.h"
#include "sunmoon/sunmonth.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

constexpr int heightdecimals = 4;

std::vector<Column> waterscolumns() {
    return {{"port"},   {"name", false}, {"date", false},   {"time", false},
            {"height"}, {"kind", false}, {"moment", false}, {"depth"}};
}

const char* kindof(const Prediction& prediction, int turningpoint) {
    return ishighwater(prediction, turningpoint) ? "high" : "low";
}

void watersrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        const std::string number = numbertext(port.port.number);
        const std::string depth = shortest(includeddepth(port));
        eachday(context, [&](Date day) {
            predictport(context, port, day, prediction);
            noteabsence(absences, port, prediction, day);
            for (int i = 1; i <= prediction.turningcount; ++i) {
                const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
                const std::string clock = timetext(point.time);
                const Date date = dateofhour(day, point.time);
                writer.row({number, port.name, isodate(date), clock, fixed(point.height, heightdecimals),
                            kindof(prediction, i),
                            isomoment(date, clock, std::chrono::hours(hoursahead(port, prediction.day.summer))),
                            depth});
            }
        });
    }
}

void predictiontext(const PortInHand& port, const Prediction& prediction, Date day, std::ostream& out) {
    out << datumline(port) << "\n";
    for (int i = 1; i <= prediction.turningcount; ++i) {
        const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
        const std::string clock = timetext(point.time);
        const Date date = dateofhour(day, point.time);
        out << "  " << clock << padleft(format(point.height, "0.00"), 8) << "  " << kindof(prediction, i)
            << (date == day ? "" : ", on " + longdate(date)) << "\n";
    }
    if (prediction.turningcount == 0) out << "  No high or low water on this day\n";
    out << "Range " << format(prediction.dayrange, "0.00") << " m\n";
    const auto lag = findspringslag(prediction);
    const std::string status = lag ? springstext(*lag) : "";
    out << (status.empty() ? "Springs or neaps: this day's curve does not tell" : status) << "\n";
}

void waterstext(const ViewContext& context, std::ostream& out) {
    daystext(
        context, out,
        [&](const PortInHand& port, const Prediction& prediction, Date day) {
            predictiontext(port, prediction, day, out);
        },
        [&](const PortInHand& port, Date day) {
            const SunHours sun = sunofport(context, port, day);
            out << "Sunrise " << eventtext(sun.sunrise) << "  Sunset " << eventtext(sun.sunset) << "\n";
        });
}

}  // namespace

constinit const View watersview{
    .option = "",
    .help = "the high and low waters of each day",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = waterscolumns,
    .rows = watersrows,
    .text = waterstext,
};

}  // namespace tarvane
