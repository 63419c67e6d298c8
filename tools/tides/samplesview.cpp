// The day's curve every ten minutes, with each constituent's part.
#include "engine/constituents.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

constexpr int sampledecimals = 9;
constexpr std::size_t lastrow = 145;  // of 24:00

std::vector<Column> samplescolumns() {
    std::vector<Column> columns{{"port"}, {"date", false}, {"row"}, {"hours"}, {"height"}};
    for (const Constituent& constituent : constituents)
        columns.push_back({lowercase(constituent.name)});
    columns.push_back({"moment", false});
    columns.push_back({"depth"});
    return columns;
}

void samplesrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        const std::string number = numbertext(port.port.number);
        const std::string depth = shortest(includeddepth(port));
        eachday(context, [&](Date day) {
            predictport(context, port, day, prediction);
            if (!prediction.defined) return noteabsence(absences, port, prediction, day);
            const int ahead = hoursahead(port, prediction.day.summer);
            for (std::size_t row = 1; row <= lastrow; ++row) {
                const TimedValue& sample = prediction.curvesamples[row];
                std::vector<std::string> cells{number, isodate(day), numbertext(static_cast<int>(row)),
                                               fixed(sample.time, sampledecimals),
                                               fixed(sample.height, sampledecimals)};
                for (const Constituent& constituent : constituents)
                    cells.push_back(fixed((prediction.*constituent.layer)[row].height, sampledecimals));
                cells.push_back(
                    isomoment(dateofhour(day, sample.time), timetext(sample.time), std::chrono::hours(ahead)));
                cells.push_back(depth);
                writer.row(cells);
            }
        });
    }
}

void daytext(const PortInHand& port, const Prediction& prediction, std::ostream& out) {
    out << datumline(port) << "\n" << padleft("Row", 4) << padleft("Time", 7) << padleft("Height", 9);
    for (const Constituent& constituent : constituents)
        out << padleft(constituent.name, 8);
    out << "\n";
    for (std::size_t row = 1; row <= lastrow; ++row) {
        const TimedValue& sample = prediction.curvesamples[row];
        out << padleft(numbertext(static_cast<int>(row)), 4) << padleft(timetext(sample.time), 7)
            << padleft(format(sample.height, "0.000"), 9);
        for (const Constituent& constituent : constituents)
            out << padleft(format((prediction.*constituent.layer)[row].height, "0.000"), 8);
        out << "\n";
    }
}

void samplestext(const ViewContext& context, std::ostream& out) {
    daystext(context, out,
             [&](const PortInHand& port, const Prediction& prediction, Date) { daytext(port, prediction, out); });
}

}  // namespace

constinit const View samplesview{
    .option = "--samples",
    .help = "the day's curve every ten minutes, with each constituent's part",
    .needsarea = true,
    .needsport = true,
    .wholemonth = false,
    .columns = samplescolumns,
    .rows = samplesrows,
    .text = samplestext,
};

}  // namespace tarvane
