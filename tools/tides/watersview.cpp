// The high and low waters of each day.
#include <array>

#include "dates/summertime.h"
#include "engine/daywaters.h"
#include "engine/springs.h"
#include "sunmoon/sunmonth.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/inorder.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

constexpr int heightdecimals = 4;
constexpr int midnightrow = 145;  // of the day's samples: 24:00
constexpr std::size_t daysofpart = 366;

std::vector<Column> waterscolumns() {
    return {{"port"},   {"name", false}, {"date", false},   {"time", false},
            {"height"}, {"kind", false}, {"moment", false}, {"depth"}};
}

const char* kindof(bool high) {
    return high ? "high" : "low";
}

/// A day as the waters of every port need it.
struct DayAsked {
    TideDay day;
    std::optional<OrbitalSpan> span;
    Date date{};
    std::string text;  ///< of the date
};

/// The days asked for, and the one behind them, on which a midnight at their end falls.
std::vector<DayAsked> daysasked(const ViewContext& context) {
    std::vector<DayAsked> days;
    for (int i = 0; i <= context.days; ++i) {
        const Date date = context.first + std::chrono::days(i);
        const TideDay day{yearof(date), monthof(date), static_cast<std::int16_t>(dayofyear(date)),
                          summershift(date, context.settings.summerflag2)};
        days.push_back({day, spanofday(day), date, isodate(date)});
    }
    return days;
}

/// The clock times of the samples' rows.
const std::vector<std::string>& rowclocks() {
    static const std::vector<std::string> clocks = [] {
        std::vector<std::string> texts;
        for (int row = 0; row <= midnightrow; ++row)
            texts.push_back(row == 0 ? "" : timetext(DayWater{.row = row}.time()));
        return texts;
    }();
    return clocks;
}

/// What is made of some days of a port apart from the others.
struct WaterRows {
    RowText rows;
    Absences absences;
};

void takedays(const PortInHand& port, std::span<const DayAsked> days, WaterRows& made) {
    const std::string number = numbertext(port.port.number), depth = shortest(includeddepth(port));
    std::string moment, height;
    for (std::size_t i = 0; i + 1 < days.size(); ++i) {
        const DayAsked& asked = days[i];
        const DayWaters found = daywaters(port.port, asked.day, asked.span);
        if (!found.defined) made.absences.note("prediction for " + port.subject + ",", found.whynot, asked.date);
        const std::string zone = isomoment(asked.date, "", std::chrono::hours(hoursahead(port, asked.day.summer)))
                                     .substr(asked.text.size() + 1);
        for (const DayWater& water : std::span(found.waters).first(static_cast<std::size_t>(found.count))) {
            const std::string& clock = rowclocks()[static_cast<std::size_t>(water.row)];
            const std::string& date = water.row < midnightrow ? asked.text : days[i + 1].text;
            moment.assign(date).append("T").append(clock).append(zone);
            height = fixed(water.height, heightdecimals);
            made.rows.row(std::array<std::string_view, 8>{number, port.name, date, clock, height, kindof(water.high),
                                                          moment, depth});
        }
    }
}

void watersrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    const std::vector<DayAsked> days = daysasked(context);
    const std::size_t parts = (static_cast<std::size_t>(context.days) + daysofpart - 1) / daysofpart;
    inorder<WaterRows>(
        parts * context.ports.size(),
        [&](std::size_t place) {
            WaterRows made{writer.apart(), {}};
            const std::size_t first = place % parts * daysofpart;
            const std::size_t count = std::min(daysofpart + 1, days.size() - first);
            takedays(context.ports[place / parts], std::span(days).subspan(first, count), made);
            return made;
        },
        [&](const WaterRows& made) {
            writer.add(made.rows);
            absences.add(made.absences);
        });
}

void predictiontext(const PortInHand& port, const Prediction& prediction, Date day, std::ostream& out) {
    out << datumline(port) << "\n";
    for (int i = 1; i <= prediction.turningcount; ++i) {
        const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
        const std::string clock = timetext(point.time);
        const Date date = dateofhour(day, point.time);
        out << "  " << clock << padleft(format(point.height, "0.00"), 8) << "  " << kindof(ishighwater(prediction, i))
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
