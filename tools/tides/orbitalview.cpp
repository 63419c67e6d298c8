// The day's angles and factors, the same for every port.
#include <array>

#include "engine/orbital.h"
#include "text/numbers.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

struct GroupColumns {
    const char* anglename;
    std::int16_t AnglesAndFactors::*angle;
    const char* factorname;
    double AnglesAndFactors::*factor;
};

constexpr std::array<GroupColumns, 4> groups{{
    {"ma", &AnglesAndFactors::ma, "mf", &AnglesAndFactors::mf},
    {"sa", &AnglesAndFactors::sa, "sf", &AnglesAndFactors::sf},
    {"ka", &AnglesAndFactors::ka, "kf", &AnglesAndFactors::kf},
    {"oa", &AnglesAndFactors::oa, "of", &AnglesAndFactors::of},
}};

constexpr int factordecimals = 12;

std::vector<Column> orbitalcolumns() {
    std::vector<Column> columns{{"date", false}};
    for (const GroupColumns& group : groups) {
        columns.push_back({group.anglename});
        columns.push_back({group.factorname});
    }
    return columns;
}

void orbitalrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    eachday(context, [&](Date date) {
        const auto constants = orbitalconstants(yearof(date), dayofyear(date));
        if (!constants) return absences.note("angles and factors", noconstants, date);
        std::vector<std::string> cells{isodate(date)};
        for (const GroupColumns& group : groups) {
            cells.push_back(numbertext((*constants).*group.angle));
            cells.push_back(fixed((*constants).*group.factor, factordecimals));
        }
        writer.row(cells);
    });
}

void orbitaltext(const ViewContext& context, std::ostream& out) {
    out << padright("Date", 10);
    for (const GroupColumns& group : groups)
        out << padleft(group.anglename, 6) << padleft(group.factorname, 9);
    out << "\n";
    eachday(context, [&](Date date) {
        out << isodate(date);
        const auto constants = orbitalconstants(yearof(date), dayofyear(date));
        if (!constants) {
            out << "  " << noconstants << "\n";
            return;
        }
        for (const GroupColumns& group : groups) {
            out << padleft(numbertext((*constants).*group.angle), 6)
                << padleft(format((*constants).*group.factor, "0.0000"), 9);
        }
        out << "\n";
    });
}

}  // namespace

constinit const View orbitalview{
    .option = "--orbital",
    .help = "the day's angles and factors, the same for every port",
    .needsarea = false,
    .needsport = false,
    .wholemonth = false,
    .columns = orbitalcolumns,
    .rows = orbitalrows,
    .text = orbitaltext,
};

}  // namespace tarvane
