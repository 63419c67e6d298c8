// What is known of ports: where their constants come from, how good they are, what heights are above and which clocks
// they keep.
#include "atlas/aboutlines.h"
#include "portdata/aboutwords.h"
#include "text/numbers.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

constexpr std::size_t textcolumns = 9;  // behind the number; figures follow

std::vector<Column> aboutcolumns() {
    std::vector<Column> columns;
    for (const std::string& name : aboutcolumnnames())
        columns.push_back({name, columns.empty() || columns.size() >= textcolumns});
    return columns;
}

/// The cells of a port of the user's own: no figure of the one that ships is his.
std::vector<std::string> owncells(const PortKnown& known) {
    PortAbout own;
    own.timezone = known.iana();
    own.source = ownwords(*known.own);
    std::vector<std::string> cells = aboutfields(own);
    for (std::size_t i = textcolumns; i < cells.size(); ++i)
        cells[i].clear();
    return cells;
}

void aboutrows(const ViewContext& context, RowWriter& writer, Absences&) {
    for (const PortInHand& port : context.ports) {
        const PortKnown& known = port.known;
        std::vector<std::string> cells(aboutcolumnnames().size());
        if (known.own)
            cells = owncells(known);
        else if (known.about)
            cells = aboutfields(*known.about);
        cells[0] = numbertext(port.port.number);
        cells[1] = port.name;
        writer.row(cells);
    }
}

void abouttext(const ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        AboutOf of{context.settings.hcfile, context.areaname, port.port.number, port.port.record, port.known, {}};
        of.check = checkof(context.plan.known.notes, of.hcfile, of.port, of.number);
        const AboutSheet sheet = aboutsheet(of, context.plan.now, *context.plan.zones);
        portheading(context, port, out);
        out << "\n";
        for (const AboutLine& line : sheet.lines)
            out << line.caption << ": " << plaintext(line.text) << "\n";
        for (const AboutLine& line : sheet.constants)
            out << "  " << line.caption << " (" << line.text << ")\n";
    }
    conclusion(context, "All data are derived and should therefore be considered as approximate", out);
}

}  // namespace

constinit const View aboutview{
    .option = "",
    .help = "what is known of a port",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = aboutcolumns,
    .rows = aboutrows,
    .text = abouttext,
    .planned = true,
    .presentmoment = true,
};

}  // namespace tarvane
