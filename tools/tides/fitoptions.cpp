#include "tides/fitoptions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "portdata/portscsv.h"
#include "text/singlebyte.h"
#include "tides/options.h"
#include "tides/valueoptions.h"

namespace tarvane {

namespace {

std::string takearea(const std::string& value, FitOptions& options) {
    options.area = value;
    return "";
}

std::string takenear(const std::string& value, FitOptions& options) {
    options.near.push_back(argumenttext(value));
    return "";
}

std::string takereadings(const std::string& value, FitOptions& options) {
    options.readings = value;
    return "";
}

/// The whole text as degrees, `most` of either sign at the most.
bool takedegrees(std::string_view text, double most, double& degrees) {
    const auto read = std::from_chars(text.data(), text.data() + text.size(), degrees);
    return read.ec == std::errc{} && read.ptr == text.data() + text.size() && std::abs(degrees) <= most;
}

std::string takeposition(const std::string& value, FitOptions& options) {
    const std::size_t comma = value.find(',');
    Position position;
    const bool taken = comma != std::string::npos &&
                       takedegrees(std::string_view(value).substr(0, comma), 90, position.latitude) &&
                       takedegrees(std::string_view(value).substr(comma + 1), 180, position.longitude);
    if (!taken) return "--position takes degrees north and east with a point, as 50.13,-5.05, not " + inquotes(value);
    options.position = position;
    return "";
}

std::string takename(const std::string& value, FitOptions& options) {
    options.name = trim(argumenttext(value));
    const std::string fault = portnamefault(options.name);
    return fault.empty() ? "" : "--name: " + fault;
}

std::string takeformat(const std::string& value, FitOptions& options) {
    return parseformat(value, options.format);
}

constexpr std::array<ValueOption<FitOptions>, 6> valueoptions{{
    {"--area", "AREA", "the sea area, by its name or its file, in place of the stored one", takearea},
    {"--near", "NUMBER|NAME", "a port by its number, its name or a part of its name; to be given for two", takenear, 2},
    {"--readings", "FILE.csv", "the heights read: a line date,time,height and below it YYYY-MM-DD,hh:mm,metres",
     takereadings},
    {"--position", "LAT,LON", "where the place lies, degrees north and east; the nearer port then counts more",
     takeposition},
    {"--name", "NAME", "what the place is called", takename},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat},
}};

constexpr const char* notes =
    "Times are the ports' zone time, without summer time, 00:00 to 24:00 of one day; heights count from the level "
    "that\n"
    "the constants are wanted for. The start is the mean of the two ports, without --position the plain one. A change\n"
    "of mean level, one factor on all amplitudes and one shift in time are then fitted to ten readings or more over\n"
    "half a tide or more; wild ones are left out and named.\n"
    "CSV is a table of one port as hcbuild takes it; its name and position are empty where they are not given.\n"
    "Nothing is written but to standard output. Exit status: 0; or 2 with one line on standard error.";

}  // namespace

std::string parsefitoptions(const std::vector<std::string>& arguments, FitOptions& options) {
    CLI::App app{"Constants for a place between two ports, fitted to heights read there on one day.\n", "tides fit"};
    app.allow_extras();  // told in our own words
    app.set_help_flag("-h,--help", "prints this and exits");
    const std::vector<CLI::Option*> values = addvalues<FitOptions>(app, valueoptions);
    app.get_formatter()->column_width(30);
    app.footer(notes);
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        options.answer = app.help();
        return "";
    } catch (const CLI::ParseError& fault) {
        return fault.what();
    }
    for (const std::string& unknown : app.remaining())
        return "there is no option " + inquotes(unknown) + "; tides fit --help lists them";
    const std::string fault = takevalues<FitOptions>(values, valueoptions, options);
    if (!fault.empty()) return fault;
    if (options.near.size() != 2) return "tides fit needs two ports, each behind a --near";
    return options.readings.empty() ? "tides fit needs the heights read, a file behind --readings" : "";
}

}  // namespace tarvane
