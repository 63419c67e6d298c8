#include "tides/streamsoptions.h"

#include <array>

#include "tides/commonoptions.h"
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

constexpr std::array<ValueOption<StreamsOptions>, 6> valueoptions{{
    {"--diamond", "FILE:ID", "the diamond: its file (.l20, .l30 or .l40) and its letter", takediamond},
    {"--area", "AREA", "the sea area, by its name or its file, in place of the stored one", takearea<StreamsOptions>},
    {"--port", "NUMBER|NAME", "the diamond's reference port, in place of the stored port", takeport<StreamsOptions>},
    {"--date", "YYYY-MM-DD", "the day, in place of today", takedate<StreamsOptions>},
    {"--summer", "on|off", "adjust for summer time or not, in place of the stored choice", takesummer<StreamsOptions>},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat<StreamsOptions>},
}};

constexpr const char* notes =
    "A file that isn't where it is said to be is looked for among the program's files. The hours, six before to six\n"
    "after, belong to each high water that the day's table lists, and run into the days before and after it. Rates\n"
    "stand between the neap and the spring rate as the day's range does between the port's mean neap and mean\n"
    "spring range, twice the difference and the sum of M2 and S2; \"beyond\" tells which of the two the range lies\n"
    "beyond, the rate being extrapolated then, and is empty between them. Rates are in the unit of the file, means\n"
    "over an hour, and approximate.\n"
    "Nothing is written but to standard output. Exit status: 0; or 2 with one line on standard error.";

constexpr Subcommand<StreamsOptions> command{
    "tides streams", "The tidal streams at a diamond through the hours of a day's high waters.\n", notes, valueoptions};

}  // namespace

std::string parsestreamsoptions(const std::vector<std::string>& arguments, StreamsOptions& options) {
    std::vector<std::string> words;
    const std::string fault = parsesubcommand(command, arguments, options, words);
    if (!fault.empty() || !options.answer.empty()) return fault;
    if (!words.empty()) return nosuchoption(words.front(), command.name);
    return options.letter.empty() ? "tides streams needs a diamond, behind --diamond as FILE:ID" : "";
}

}  // namespace tarvane
