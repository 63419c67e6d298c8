// The ports of the sea area.
#include <algorithm>

#include "portdata/coordinates.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

std::vector<Column> listcolumns() {
    return {{"port"}, {"name", false}, {"latitude"}, {"longitude"}, {"zone", false}};
}

void listrows(const ViewContext& context, RowWriter& writer, Absences&) {
    for (const PortInHand& each : context.ports) {
        const HarmonicRecord& record = each.port.record;
        writer.row({numbertext(each.port.number), each.name, shortest(record.PortLat), shortest(record.PortLong),
                    record.TimeZoneLetter});
    }
}

void listtext(const ViewContext& context, std::ostream& out) {
    if (context.several) out << (context.opens ? "" : "\n") << plaintext(context.areaname) << "\n";
    std::size_t width = 4;
    for (const PortInHand& port : context.ports)
        width = std::max(width, charactercount(plaintext(port.name)));
    const auto line = [&](const std::vector<std::string>& cells) {
        out << padleft(cells[0], 5) << "  " << padright(cells[1], width) << padleft(cells[2], 11)
            << padleft(cells[3], 11) << "  " << cells[4] << "\n";
    };
    std::vector<std::string> headings;
    for (const Column& column : listcolumns())
        headings.push_back(uppercase(column.name.substr(0, 1)) + column.name.substr(1));
    line(headings);
    for (const PortInHand& port : context.ports) {
        const HarmonicRecord& record = port.port.record;
        line({numbertext(port.port.number), plaintext(port.name), LatitudeEditText(record.PortLat),
              LongitudeEditText(record.PortLong),
              plaintext(record.TimeZoneLetter) + " " + universaltext(hoursahead(port, 0))});
    }
}

}  // namespace

constinit const View listview{
    .option = "--list",
    .help = "the ports of the sea area",
    .needsarea = true,
    .needsport = false,
    .wholemonth = false,
    .columns = listcolumns,
    .rows = listrows,
    .text = listtext,
};

}  // namespace tarvane
