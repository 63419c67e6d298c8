#include "tides/fitcommand.h"

#include "adjust/constantrows.h"
#include "files/wholefiles.h"
#include "portdata/portscsv.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "tides/options.h"
#include "tides/portchoice.h"
#include "tides/runtides.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

/// The phases whose plain mean points the other way, by the names of a table of ports.
std::string phasesacrossnorth(const HarmonicRecord& first, const HarmonicRecord& second) {
    constexpr std::size_t firstconstant = 5;
    const std::vector<std::string> names = portscsvnames();
    std::string found;
    for (std::size_t i = 0; i < constantrows.size(); ++i) {
        if (acrossnorth(constantrows[i], first, second))
            found += (found.empty() ? "" : ", ") + names[firstconstant + i];
    }
    return found;
}

/// The two ports, and what lies between them.
std::string takeports(const FitOptions& options, const AreaInHand& area, FittedPlace& place) {
    std::array<HarmonicRecord, 2> ports;
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const PortChoice choice = chooseports(area.names, options.near[i], area.name);
        if (!choice.fault.empty()) return choice.fault;
        if (choice.numbers.size() != 1) return "--near takes one port, not " + inquotes(options.near[i]);
        place.numbers[i] = choice.numbers[0];
        place.names[i] = area.names[static_cast<std::size_t>(choice.numbers[0] - 1)];
        ports[i] = area.records[static_cast<std::size_t>(choice.numbers[0] - 1)];
    }
    const auto& [first, second] = ports;
    if (first.TimeZoneLetter != second.TimeZoneLetter) {
        return place.names[0] + " is in zone " + first.TimeZoneLetter + " and " + place.names[1] + " in zone " +
               second.TimeZoneLetter + ": their phases are of different clocks, and there is no mean of them";
    }
    const auto& position = options.position;
    if (!position) place.acrossnorth = phasesacrossnorth(first, second);
    place.record = recordof(position ? distancemeans(first, second, position->latitude, position->longitude)
                                     : plainmeans(first, second));
    place.record.TimeZoneLetter = first.TimeZoneLetter;
    return "";
}

std::string takereadings(const std::string& path, DayOfReadings& day) {
    if (!canopen(path) || !wholefile(path)) return "the readings " + path + " can't be read";
    day = readingsof(wholetext(path));
    return day.fault.empty() ? "" : "the readings " + path + ", " + day.fault;
}

/// Puts what was found into the place's record, with as many decimals as the workshop's boxes have.
void takeconstants(const HarmonicConstants& found, HarmonicRecord& record) {
    const double values[] = {found.Z0,  found.M2g,  found.M2Hm, found.S2g, found.S2Hm, found.K1g, found.K1Hm,
                             found.O1g, found.O1Hm, found.SF4,  found.LF4, found.SF6,  found.LF6};
    ConstantTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = format(values[i], constantrows[i].phase ? "0.0#" : "0.000#");
    const std::string zone = record.TimeZoneLetter;
    record = recordof(texts);
    record.TimeZoneLetter = zone;
}

std::string fitplace(const FitOptions& options, const TidesEnvironment& environment, FittedPlace& place) {
    Settings settings;
    std::string fault;
    const ProgramFolders folders = foldersof(environment);
    if (!options.area) fault = readsettings(folders, settings);
    if (!fault.empty()) return fault;
    AreaInHand area;
    fault = options.area ? readtypedarea(folders, *options.area, area) : readarea(settings.hcfile, area);
    if (fault.empty()) fault = takeports(options, area, place);
    if (fault.empty()) fault = takereadings(options.readings, place.day);
    if (!fault.empty()) return fault;
    std::vector<Reading> readings;
    for (const HeightRecord& each : place.day.readings)
        readings.push_back({each.obstime, each.obsheight});
    const Date date = place.day.date;
    place.fit = fitheights(seasonalconstants(place.record, 0), yearof(date), dayofyear(date), readings);
    if (!place.fit.refusal.empty()) return place.fit.refusal;
    takeconstants(place.fit.constants, place.record);
    place.areaname = area.name;
    place.name = options.name;
    place.position = options.position;
    place.record.PortName = place.name;
    if (place.position) {
        place.record.PortLat = static_cast<float>(place.position->latitude);
        place.record.PortLong = static_cast<float>(place.position->longitude);
    }
    return "";
}

}  // namespace

int runfit(const std::vector<std::string>& arguments, const TidesEnvironment& environment, std::ostream& out,
           std::ostream& err) {
    FitOptions options;
    FittedPlace place;
    std::string fault = parsefitoptions(arguments, options);
    if (fault.empty() && !options.answer.empty()) return printanswer(options.answer, out, err);
    if (fault.empty()) fault = fitplace(options, environment, place);
    if (fault.empty()) {
        if (!place.acrossnorth.empty()) {
            err << "tides: the plain mean of " << place.acrossnorth
                << " points the other way, north lying between the two ports' phases; --position takes it on the "
                   "circle\n";
        }
        if (options.format == OutputFormat::text) fitastext(place, out);
        if (options.format == OutputFormat::csv) fitascsv(place, out);
        if (options.format == OutputFormat::json) fitasjson(place, out);
        if (out.flush()) return 0;
        fault = "the result could not be written";
    }
    err << "tides: " << plaintext(fault) << "\n";
    return refused;
}

}  // namespace tarvane
