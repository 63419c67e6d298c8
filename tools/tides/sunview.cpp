// Dawns, sunrise, sunset and dusks.
#include <array>

#include "dates/summertime.h"
#include "sunmoon/sunmonth.h"
#include "text/numbers.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

struct SunEventColumn {
    const char* name;
    double SunHours::*hours;
};

constexpr std::array<SunEventColumn, 8> events{{
    {"astrodawn", &SunHours::astrodawn},
    {"nautdawn", &SunHours::nautdawn},
    {"civildawn", &SunHours::civildawn},
    {"sunrise", &SunHours::sunrise},
    {"sunset", &SunHours::sunset},
    {"civildusk", &SunHours::civildusk},
    {"nautdusk", &SunHours::nautdusk},
    {"astrodusk", &SunHours::astrodusk},
}};

constexpr int hourdecimals = 9;

std::vector<Column> suncolumns() {
    std::vector<Column> columns{{"port"}, {"date", false}};
    for (const SunEventColumn& event : events)
        columns.push_back({event.name});
    return columns;
}

void sunrows(const ViewContext& context, RowWriter& writer, Absences&) {
    for (const PortInHand& port : context.ports) {
        eachday(context, [&](Date date) {
            const SunHours sun = sunofport(context, port, date);
            std::vector<std::string> cells{numbertext(port.port.number), isodate(date)};
            for (const SunEventColumn& event : events)
                cells.push_back(fixed(sun.*event.hours, hourdecimals));
            writer.row(cells);
        });
    }
}

void suntext(const ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        out << "\n" << padright("Date", 10);
        for (const SunEventColumn& event : events)
            out << padleft(event.name, 11);
        out << "\n";
        eachday(context, [&](Date date) {
            const SunHours sun = sunofport(context, port, date);
            out << isodate(date);
            for (const SunEventColumn& event : events)
                out << padleft(eventtext(sun.*event.hours), 11);
            out << (summershift(date, context.settings.summerflag2) ? "  summer time" : "") << "\n";
        });
    }
    conclusion(context, "All data are derived and should therefore be considered as approximate", out);
}

}  // namespace

constinit const View sunview{
    .option = "--sun",
    .help = "dawns, sunrise, sunset and dusks",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = suncolumns,
    .rows = sunrows,
    .text = suntext,
};

}  // namespace tarvane
