#include "tides/aboutoptions.h"

#include <array>

#include "tides/commonoptions.h"
#include "tides/valueoptions.h"

namespace tarvane {

namespace {

constexpr std::array<ValueOption<Options>, 3> valueoptions{{
    {"--port", "NUMBER|NAME|all", "the port, in place of the stored one; or all", takeport<Options>},
    {"--area", "AREA|all", "the sea area, by its name or its file, in place of the stored one; or all of them",
     takearea<Options>},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat<Options>},
}};

constexpr const char* notes =
    "How good a port is goes by its high and low waters of a year against a prediction from all constituents of the\n"
    "same gauge. Nine in ten of them are off by no more than 20 minutes and 0.2 m: close; by no more than 45 minutes\n"
    "and 0.4 m: fair; by more: rough. Weather is not counted. CSV and JSON hold the columns of the table beside the\n"
    "area, empty for a port that it doesn't know.\n"
    "Exit status: 0; or 2 with one line on standard error and nothing on standard output.";

constexpr Subcommand<Options> command{
    "tides about",
    "Tells what is known of a port: how good its waters are, where its constants come from, what heights are above,\n"
    "which clocks it keeps, and the constants themselves.\n",
    notes, valueoptions};

}  // namespace

std::string parseabout(const std::vector<std::string>& arguments, Options& options) {
    options.view = &aboutview;
    std::vector<std::string> given;
    const std::string fault = parsesubcommand(command, arguments, options, given);
    if (!fault.empty() || !options.answer.empty()) return fault;
    const std::string words = CLI::detail::join(given, " ");
    if (!words.empty() && options.port)
        return "the port is given twice, as " + inquotes(*options.port) + " and as " + inquotes(words);
    if (!words.empty()) options.port = argumenttext(words);
    return options.allareas() && !options.port ? allareasneedport : "";
}

}  // namespace tarvane
