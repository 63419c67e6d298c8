// What is known of ports: where their constants come from, how good they are, what heights are above and which clocks
// they keep.
#include <cmath>

#include "engine/constituents.h"
#include "planner/plantexts.h"
#include "planner/waters.h"
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

std::optional<PortAbout> knownof(const ViewContext& context, const PortInHand& port) {
    return aboutport(context.plan.about, port.port.record, port.port.number);
}

void aboutrows(const ViewContext& context, RowWriter& writer, Absences&) {
    for (const PortInHand& port : context.ports) {
        const auto about = knownof(context, port);
        std::vector<std::string> cells = about ? aboutfields(*about) : std::vector<std::string>(aboutcolumns().size());
        cells[0] = numbertext(port.port.number);
        cells[1] = port.name;
        writer.row(cells);
    }
}

void knownlines(const PortAbout& about, std::ostream& out) {
    const std::string datum = datumwords(about.datum);
    out << "How good: " << gradeword(gradeof(about)) << "; " << errorwords(about) << "\n";
    out << "Heights are above " << plaintext(about.datum) << (datum.empty() ? "" : ", " + datum)
        << ", as the gauge's record has it: not official chart datum\n";
    out << "Constants from " << plaintext(about.source) << ", " << plaintext(recordwords(about)) << "; "
        << plaintext(about.licence) << ", modified\n";
    if (!about.country.empty()) out << "Country, as the source has it: " << plaintext(about.country) << "\n";
    if (about.meanrange > 0) out << "Mean range of a full prediction for 2026: " << metres(about.meanrange, 2) << "\n";
}

void abouttext(const ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        const auto about = knownof(context, port);
        const HarmonicRecord& record = port.port.record;
        portheading(context, port, out);
        out << "\n";
        if (about)
            knownlines(*about, out);
        else
            out << trustwords(about) << "\n";
        const PortClock clock(ClockChoice::port, zonehoursof(record), about ? about->timezone : "",
                              *context.plan.zones);
        const ClockTime now = clock.at(context.plan.now);
        out << "The " << clock.description() << " shows " << clocktext(now) << " " << now.name << " ("
            << utname(now.ahead) << ") on " << longdate(now.date) << "\n";
        out << "Mean range at springs " << metres(meanspringrange(record), 2) << ", at neaps "
            << metres(std::abs(meanneaprange(record)), 2) << ", by M2 and S2\n";
        for (const Constituent& constituent : constituents)
            out << "  " << constituent.name << constituent.constant(record) << "\n";
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
