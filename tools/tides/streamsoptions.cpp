#include "tides/streamsoptions.h"

#include <array>

#include "tides/options.h"
#include "tides/valueoptions.h"

namespace tarvane {

namespace {

std::string takediamond(const std::string& value, StreamsOptions& options) {
    const std::size_t colon = value.rfind(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 == value.size())
        return "--diamond takes a file and the diamond's letter, as solent.l20:A, not " + inquotes(value);
    options.diamondfile = value.substr(0, colon);
    options.letter = argumenttext(value.substr(colon + 1));
    return "";
}

std::string takearea(const std::string& value, StreamsOptions& options) {
    options.area = value;
    return "";
}

std::string takeport(const std::string& value, StreamsOptions& options) {
    options.port = argumenttext(value);
    return "";
}

std::string takedate(const std::string& value, StreamsOptions& options) {
    options.date = parseisodate(value);
    return options.date ? "" : inquotes(value) + " is no date; write a day that exists as YYYY-MM-DD";
}

std::string takesummer(const std::string& value, StreamsOptions& options) {
    options.summer = value == "on";
    return value == "on" || value == "off" ? "" : "--summer takes on or off, not " + inquotes(value);
}

std::string takeformat(const std::string& value, StreamsOptions& options) {
    return parseformat(value, options.format);
}

constexpr std::array<ValueOption<StreamsOptions>, 6> valueoptions{{
    {"--diamond", "FILE:ID", "the diamond: its file (.l20, .l30 or .l40) and its letter", takediamond},
    {"--area", "AREA", "the sea area, by its name or its file, in place of the stored one", takearea},
    {"--port", "NUMBER|NAME", "the diamond's reference port, in place of the stored port", takeport},
    {"--date", "YYYY-MM-DD", "the day, in place of today", takedate},
    {"--summer", "on|off", "adjust for summer time or not, in place of the stored choice", takesummer},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat},
}};

constexpr const char* notes =
    "A file that isn't where it is said to be is looked for among the program's files. The hours, six before to six\n"
    "after, belong to each high water that the day's table lists, and run into the days before and after it. Rates\n"
    "stand between the neap and the spring rate as the day's range does between the port's mean neap and mean\n"
    "spring range, twice the difference and the sum of M2 and S2; \"beyond\" tells which of the two the range lies\n"
    "beyond, the rate being extrapolated then, and is empty between them. Rates are in the unit of the file, means\n"
    "over an hour, and approximate.\n"
    "Nothing is written but to standard output. Exit status: 0; or 2 with one line on standard error.";

}  // namespace

std::string parsestreamsoptions(const std::vector<std::string>& arguments, StreamsOptions& options) {
    CLI::App app{"The tidal streams at a diamond through the hours of a day's high waters.\n", "tides streams"};
    app.allow_extras();  // told in our own words
    app.set_help_flag("-h,--help", "prints this and exits");
    const std::vector<CLI::Option*> values = addvalues<StreamsOptions>(app, valueoptions);
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
        return "there is no option " + inquotes(unknown) + "; tides streams --help lists them";
    const std::string fault = takevalues<StreamsOptions>(values, valueoptions, options);
    if (!fault.empty()) return fault;
    return options.letter.empty() ? "tides streams needs a diamond, behind --diamond as FILE:ID" : "";
}

}  // namespace tarvane
