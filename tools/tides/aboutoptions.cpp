#include "tides/aboutoptions.h"

#include <array>

#include "tides/valueoptions.h"

namespace tarvane {

namespace {

std::string takearea(const std::string& value, Options& options) {
    options.area = value;
    return "";
}

std::string takeport(const std::string& value, Options& options) {
    options.port = argumenttext(value);
    return "";
}

std::string takeformat(const std::string& value, Options& options) {
    return parseformat(value, options.format);
}

constexpr std::array<ValueOption<Options>, 3> valueoptions{{
    {"--port", "NUMBER|NAME|all", "the port, in place of the stored one; or all", takeport},
    {"--area", "AREA|all", "the sea area, by its name or its file, in place of the stored one; or all of them", takearea},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat},
}};

constexpr const char* notes =
    "How good a port is goes by its high and low waters of a year against a prediction from all constituents of the\n"
    "same gauge. Nine in ten of them are off by no more than 20 minutes and 0.2 m: close; by no more than 45 minutes\n"
    "and 0.4 m: fair; by more: rough. Weather is not counted. CSV and JSON hold the columns of the table beside the\n"
    "area, empty for a port that it doesn't know.\n"
    "Exit status: 0; or 2 with one line on standard error and nothing on standard output.";

}  // namespace

std::string parseabout(const std::vector<std::string>& arguments, Options& options) {
    CLI::App app{
        "Tells what is known of a port: how good its waters are, where its constants come from, what heights are "
        "above,\n"
        "which clocks it keeps, and the constants themselves.\n",
        "tides about"};
    app.allow_extras();  // told in our own words
    app.set_help_flag("-h,--help", "prints this and exits");
    const auto values = addvalues<Options>(app, valueoptions);
    app.get_formatter()->column_width(30);
    app.footer(notes);
    options.view = &aboutview;
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        options.answer = app.help();
        return "";
    } catch (const CLI::ParseError& fault) {
        return fault.what();
    }
    const std::string fault = takevalues<Options>(values, valueoptions, options);
    if (!fault.empty()) return fault;
    std::string words;
    for (const std::string& word : app.remaining()) {
        if (word.starts_with('-') && word != "--")
            return "there is no option " + inquotes(word) + "; tides about --help lists them";
        if (word != "--") words += (words.empty() ? "" : " ") + word;
    }
    if (!words.empty() && options.port)
        return "the port is given twice, as " + inquotes(*options.port) + " and as " + inquotes(words);
    if (!words.empty()) options.port = argumenttext(words);
    return options.allareas() && !options.port ? allareasneedport : "";
}

}  // namespace tarvane
