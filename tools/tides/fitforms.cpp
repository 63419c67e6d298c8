// How a fit is told: to a sailor, as a row of a table of ports, and with all its figures.
#include <cmath>
#include <nlohmann/json.hpp>

#include "adjust/workspace.h"
#include "portdata/coordinates.h"
#include "portdata/portscsv.h"
#include "text/csvrows.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/fitcommand.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

/// With its members in the order of their making.
using Json = nlohmann::ordered_json;

/// The columns of a table of ports, its name and position empty where they were not given.
std::vector<std::string> fieldsof(const FittedPlace& place) {
    std::vector<std::string> fields = portscsvfields(place.record, 1);
    constexpr std::size_t latitude = 2, longitude = 3;
    if (!place.position) fields[latitude] = fields[longitude] = "";
    return fields;
}

std::string portof(const FittedPlace& place, std::size_t i) {
    return numbertext(int{place.numbers[i]}) + " " + plaintext(place.names[i]);
}

/// Four decimals are more than a reading has.
double rounded(double value) {
    return std::round(value * 1e4) / 1e4;
}

Json missesof(const FitMisses& misses) {
    return {
        {"rms", rounded(misses.rms)}, {"greatest", rounded(misses.greatest)}, {"greatesttime", timetext(misses.time)}};
}

}  // namespace

void fitastext(const FittedPlace& place, std::ostream& out) {
    const HarmonicRecord& record = place.record;
    if (!place.name.empty()) out << place.name << "\n";
    if (place.position) {
        out << "Position " << LatitudeEditText(record.PortLat) << "  " << LongitudeEditText(record.PortLong) << "\n";
    }
    out << "Between " << portof(place, 0) << " and " << portof(place, 1) << " of " << plaintext(place.areaname) << ", "
        << (place.position ? "the nearer counting more" : "each counting half") << ",\nfitted to "
        << numbertext(static_cast<int>(place.day.readings.size())) << " heights of " << longdate(place.day.date)
        << ", zone time " << universaltext(-zonehoursof(record)) << "\n\n"
        << fittext(place.fit, place.day.readings) << "\n\n";
    const struct {
        const char *name, *unit;
        float phase, size;
    } rows[] = {{"M2", "m", record.M2g, record.M2Hm}, {"S2", "m", record.S2g, record.S2Hm},
                {"K1", "m", record.K1g, record.K1Hm}, {"O1", "m", record.O1g, record.O1Hm},
                {"F4", "/m", record.SF4, record.LF4}, {"F6", "/m2", record.SF6, record.LF6}};
    out << "Z0" << padleft("", 12) << padleft(format(record.Z0, "0.000"), 10) << " m\n";
    for (const auto& row : rows) {
        out << row.name << padleft(format(row.phase, "0.0"), 8) << " deg" << padleft(format(row.size, "0.0000"), 11)
            << " " << row.unit << "\n";
    }
    out << "\n" << heightscaution << "\n";
}

void fitascsv(const FittedPlace& place, std::ostream& out) {
    out << csvline(portscsvnames()) << csvline(fieldsof(place));
}

void fitasjson(const FittedPlace& place, std::ostream& out) {
    const std::vector<std::string> names = portscsvnames(), fields = fieldsof(place);
    Json result;
    for (std::size_t i = 1; i < names.size(); ++i) {
        const bool text = names[i] == "name" || names[i] == "zone";
        result[names[i]] = fields[i].empty() ? Json() : text ? Json(fields[i]) : Json(val(fields[i]));
    }
    result["area"] = place.areaname;
    for (std::size_t i = 0; i < place.names.size(); ++i)
        result["near"].push_back(Json{{"port", place.numbers[i]}, {"name", place.names[i]}});
    const FitChange &change = place.fit.change, &error = place.fit.uncertainty;
    result["date"] = isodate(place.day.date);
    result["readings"] = place.day.readings.size();
    result["before"] = missesof(place.fit.before);
    result["after"] = missesof(place.fit.after);
    result["level"] = {{"metres", rounded(change.level)}, {"error", rounded(error.level)}};
    result["factor"] = {{"times", rounded(change.factor)}, {"error", rounded(error.factor)}};
    result["shift"] = {{"minutes", rounded(change.shift * 60)}, {"error", rounded(error.shift * 60)}};
    result["leftout"] = Json::array();
    for (const std::size_t i : place.fit.rejected) {
        const HeightRecord& reading = place.day.readings[i];
        result["leftout"].push_back(Json{{"line", place.day.lines[i]},
                                         {"time", timetext(reading.obstime)},
                                         {"height", val(shortest(reading.obsheight))}});
    }
    out << result.dump(1, ' ', false, Json::error_handler_t::replace) << "\n";
}

}  // namespace tarvane
