#include "tides/fitoptions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "portdata/portscsv.h"
#include "text/singlebyte.h"
#include "tides/commonoptions.h"
#include "tides/valueoptions.h"

namespace tarvane {

namespace {

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

constexpr std::array<ValueOption<FitOptions>, 6> valueoptions{{
    {"--area", "AREA", "the sea area, by its name or its file, in place of the stored one", takearea<FitOptions>},
    {"--near", "NUMBER|NAME", "a port by its number, its name or a part of its name; to be given for two", takenear, 2},
    {"--readings", "FILE.csv", "the heights read: a line date,time,height and below it YYYY-MM-DD,hh:mm,metres",
     takereadings},
    {"--position", "LAT,LON", "where the place lies, degrees north and east; the nearer port then counts more",
     takeposition},
    {"--name", "NAME", "what the place is called", takename},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat<FitOptions>},
}};

constexpr const char* notes =
    "Times are the ports' zone time, without summer time, 00:00 to 24:00 of one day; heights count from the level "
    "that\n"
    "the constants are wanted for. The start is the mean of the two ports, without --position the plain one. A change\n"
    "of mean level, one factor on all amplitudes and one shift in time are then fitted to ten readings or more over\n"
    "half a tide or more; wild ones are left out and named.\n"
    "CSV is a table of one port as hcbuild takes it; its name and position are empty where they are not given.\n"
    "Nothing is written but to standard output. Exit status: 0; or 2 with one line on standard error.";

constexpr Subcommand<FitOptions> command{
    "tides fit", "Constants for a place between two ports, fitted to heights read there on one day.\n", notes,
    valueoptions};

}  // namespace

std::string parsefitoptions(const std::vector<std::string>& arguments, FitOptions& options) {
    std::vector<std::string> words;
    const std::string fault = parsesubcommand(command, arguments, options, words);
    if (!fault.empty() || !options.answer.empty()) return fault;
    if (!words.empty()) return nosuchoption(words.front(), command.name);
    if (options.near.size() != 2) return "tides fit needs two ports, each behind a --near";
    return options.readings.empty() ? "tides fit needs the heights read, a file behind --readings" : "";
}

}  // namespace tarvane
