#include "tides/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ostream>

#include "text/numbers.h"
#include "text/programcaption.h"
#include "text/singlebyte.h"
#include "tides/commonoptions.h"
#include "tides/runtides.h"
#include "tides/valueoptions.h"

namespace tarvane {

namespace {

/// A whole number of plain digits; nothing for any other text.
std::optional<int> wholenumber(std::string_view text) {
    int number = 0;
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{}) return std::nullopt;
    return number;
}

std::string takedays(const std::string& value, Options& options) {
    const auto days = wholenumber(value);
    if (!days || *days < 1 || *days > mostdays) {
        return "--days takes a whole number from 1 to " + numbertext(mostdays) + ", not " + inquotes(value);
    }
    options.days = *days;
    options.daysgiven = true;
    return "";
}

std::string takeformat(const std::string& value, Options& options) {
    if (value != "ics") return parseformat(value, options.format);
    options.format = OutputFormat::ics;
    return "";
}

template <std::string (*take)(const std::string&, PlanOptions&)>
std::string takeplan(const std::string& value, Options& options) {
    return take(value, options.plan);
}

constexpr std::size_t boatoptions = 7;  // from here on those of a boat's passage

constexpr std::array<ValueOption<Options>, 14> valueoptions{{
    {"--area", "AREA|all", "the sea area, by its name or its file, in place of the stored one; or all of them",
     takearea},
    {"--port", "NUMBER|NAME|all", "a port by its number, its name or a part of its name, or every port",
     takeport<Options>},
    {"--date", "YYYY-MM-DD", "the first day, in place of today", takedate<Options>},
    {"--days", "N", "how many days, 1 to 3660", takedays},
    {"--summer", "on|off", "adjust for summer time or not, in place of the stored choice", takesummer<Options>},
    {"--format", "text|csv|json|ics", "how the result is written; text when left out", takeformat},
    {"--clock", "port|ut|zone", "the clock of --waters, --access and --now; the port's own when left out",
     takeplan<takeclock>},
    {"--draught", "M", "the boat's draught in metres, in place of the stored one", takeplan<takedraught>},
    {"--clearance", "M", "metres to be kept under the keel, in place of the stored ones", takeplan<takeclearance>},
    {"--bottom", "M", "the depth of the shallowest place below chart datum, negative where it dries",
     takeplan<takebottom>},
    {"--ceiling", "M", "the height of tide that mustn't be exceeded, as under a bridge", takeplan<takeceiling>},
    {"--daylight", "none|part|whole", "windows with the sun up for part or the whole of them", takeplan<takedaylight>},
    {"--least", "MINUTES", "windows of so many minutes at least", takeplan<takeleast>},
    {"--weekdays", "sat,sun", "windows on one of these days of the week", takeplan<takeweekdays>},
}};

/// What a description of the command line leaves behind, in the order of the tables.
struct CommandLine {
    CLI::App app{
        "Tides of Tarvane Tides on the terminal, from the program's own files, none of which it writes.\n"
        "Without options: the stored sea area, port and summer choice, today.\n",
        "tides"};
    std::vector<CLI::Option*> values, flags;
    CLI::Option* portwords = nullptr;
};

constexpr const char* notes =
    "PORT is found as a person types it: accents, hyphens and \"St\" for \"Saint\" make no difference, and several\n"
    "words need no quotes. --list and --orbital are about no port: PORT is ignored with them, and --date and --days\n"
    "with --list. --month is about the month that --date lies in: --days is ignored with it, and the summer time of\n"
    "--date holds for every day of the month.\n"
    "A tide at midnight belongs to the day that begins then. In CSV and JSON \"moment\" is the time with the hours\n"
    "that it is ahead of universal time, 2026-07-14T05:40+01:00, and \"depth\" the charted depth in metres that the\n"
    "height includes, 0 with heights above chart datum. Days without a prediction are left out there and named on\n"
    "standard error, in a line for each port and reason.\n"
    "--waters, --access and --now go by the port's own clock, changed on the day that the place changes it, and by "
    "heights\n"
    "above chart datum; days are days of that clock. Metres may have a comma for the point. --format ics writes a\n"
    "calendar of --waters or --access.\n"
    "With --area all a port is meant by its name wherever it lies, a name that several ports have being refused with\n"
    "their areas; CSV and JSON have a column \"area\" behind the others. Depths set by the user are those of each "
    "area.\n"
    "\"tides fit\" fits constants to heights read on the spot; tides fit --help tells how.\n"
    "\"tides about\" tells what is known of a port and how good it is; tides about --help tells how.\n"
    "\"tides streams\" shows the streams at a tidal diamond; tides streams --help tells how.\n"
    "Exit status: 0; or 2 with one line on standard error and nothing on standard output, and when CSV or JSON would\n"
    "hold nothing because every day is without a prediction.";

void describe(CommandLine& line) {
    CLI::App& app = line.app;
    app.allow_extras();  // told in our own words
    app.set_help_flag("-h,--help", "prints this and exits");
    app.set_version_flag("--version", programversion, "prints the version and exits");
    line.portwords = app.add_option("PORT", "a port by its number, its name or a part of its name; or all, every port");
    line.portwords->expected(-1)->option_text("NUMBER|NAME|all");
    line.portwords->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    line.values = addvalues<Options>(app, valueoptions);
    for (std::size_t i = boatoptions; i < line.values.size(); ++i)
        line.values[i]->group("With --access");
    for (const View* view : views().subspan(1))
        line.flags.push_back(app.add_flag(view->option, view->help)->group("What is shown"));
    app.get_formatter()->column_width(30);
    app.footer(notes);
}

/// Notes the view, of which a command line has one at most.
std::string takeview(const CommandLine& line, Options& options) {
    options.view = views().front();
    for (std::size_t i = 0; i < line.flags.size(); ++i) {
        const View* view = views()[i + 1];
        const std::vector<std::string>& given = line.flags[i]->results();
        if (given.empty()) continue;
        if (given.size() > 1) return std::string(view->option) + " is given twice";
        if (given[0] != "true") return std::string(view->option) + " takes no value";
        if (options.view != views().front()) {
            return std::string(options.view->option) + " and " + view->option + " exclude each other";
        }
        options.view = view;
    }
    return "";
}

std::string takegiven(const CommandLine& line, Options& options) {
    const std::string fault = takevalues<Options>(line.values, valueoptions, options);
    if (!fault.empty()) return fault;
    if (line.portwords->count() == 0) return "";
    const std::string words = CLI::detail::join(line.portwords->results(), " ");
    if (options.port) return "the port is given twice, as " + inquotes(*options.port) + " and as " + inquotes(words);
    return takeport<Options>(words, options);
}

/// Options that the view has no use for but a reader would think it had.
std::string checkview(const CommandLine& line, const Options& options) {
    const View& view = *options.view;
    const std::string name = view.option;
    if (options.format == OutputFormat::ics && !view.calendar) return "--format ics goes with --waters and --access";
    if (options.plan.clock && !view.planned) return "--clock goes with --waters, --access and --now";
    if (view.planned && options.summer) return name + " takes no --summer: times are those that --clock asks for";
    if (view.presentmoment && (options.date || options.daysgiven))
        return name + " is about the present moment: it takes no --date and no --days";
    for (std::size_t i = boatoptions; i < line.values.size(); ++i)
        if (line.values[i]->count() > 0 && !view.hasboat)
            return std::string(valueoptions.at(i).option) + " goes with --access";
    if (options.allareas() && view.needsport && !options.port) return allareasneedport;
    if (view.hasboat && !options.plan.bottom)
        return "--access needs --bottom: the depth of the shallowest place below chart datum, negative where it dries";
    return "";
}

}  // namespace

std::string parseoptions(const std::vector<std::string>& arguments, Options& options) {
    CommandLine line;
    describe(line);
    try {
        line.app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        options.answer = line.app.help();
        return "";
    } catch (const CLI::CallForVersion&) {
        options.answer = std::string(programname) + " " + trim(programversion) + "\n";
        return "";
    } catch (const CLI::ParseError& fault) {
        return fault.what();
    }
    for (const std::string& unknown : line.app.remaining())
        if (unknown != "--") return nosuchoption(unknown, "tides");
    std::string fault = takeview(line, options);
    if (fault.empty()) fault = takegiven(line, options);
    return fault.empty() ? checkview(line, options) : fault;
}

std::string inquotes(const std::string& text) {
    return "'" + text + "'";
}

int printanswer(const std::string& answer, std::ostream& out, std::ostream& err) {
    if (out << answer << std::flush) return 0;
    err << "tides: the result could not be written\n";
    return refused;
}

std::string argumenttext(const std::string& argument) {
    return validutf8(argument) ? argument : fromsinglebyte(argument);
}

std::string parseformat(const std::string& value, OutputFormat& format) {
    struct Name {
        const char* name;
        OutputFormat format;
    };
    constexpr std::array<Name, 3> names{
        {{"text", OutputFormat::text}, {"csv", OutputFormat::csv}, {"json", OutputFormat::json}}};
    const auto row = std::find_if(names.begin(), names.end(), [&](const Name& name) { return value == name.name; });
    if (row == names.end()) return "--format takes text, csv or json, not " + inquotes(value);
    format = row->format;
    return "";
}

std::optional<Date> parseisodate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto year = wholenumber(text.substr(0, 4));
    const auto month = wholenumber(text.substr(5, 2));
    const auto day = wholenumber(text.substr(8, 2));
    if (!year || !month || !day || *year < 1 || *month < 1 || *month > 12) return std::nullopt;
    if (*day < 1 || *day > DaysInMonth(*year, *month)) return std::nullopt;
    return makedate(*year, *month, *day);
}

}  // namespace tarvane
