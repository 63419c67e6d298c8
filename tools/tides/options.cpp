#include "tides/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include "text/numbers.h"
#include "text/singlebyte.h"

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

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

std::string takearea(const std::string& value, Options& options) {
    options.area = value;
    return "";
}

std::string takeport(const std::string& value, Options& options) {
    options.port = validutf8(value) ? value : fromsinglebyte(value);
    return "";
}

std::string takedate(const std::string& value, Options& options) {
    options.date = parseisodate(value);
    return options.date ? "" : quoted(value) + " is no date; write a day that exists as YYYY-MM-DD";
}

std::string takedays(const std::string& value, Options& options) {
    const auto days = wholenumber(value);
    if (!days || *days < 1 || *days > mostdays) {
        return "--days takes a whole number from 1 to " + numbertext(mostdays) + ", not " + quoted(value);
    }
    options.days = *days;
    return "";
}

std::string takesummer(const std::string& value, Options& options) {
    options.summer = value == "on";
    return value == "on" || value == "off" ? "" : "--summer takes on or off, not " + quoted(value);
}

std::string takeformat(const std::string& value, Options& options) {
    struct Name {
        const char* name;
        OutputFormat format;
    };
    constexpr std::array<Name, 3> names{
        {{"text", OutputFormat::text}, {"csv", OutputFormat::csv}, {"json", OutputFormat::json}}};
    const auto row = std::find_if(names.begin(), names.end(), [&](const Name& name) { return value == name.name; });
    if (row == names.end()) return "--format takes text, csv or json, not " + quoted(value);
    options.format = row->format;
    return "";
}

struct ValueOption {
    const char* option;
    const char* form;
    const char* help;
    std::string (*take)(const std::string&, Options&);
};

constexpr std::array<ValueOption, 6> valueoptions{{
    {"--area", "FILE.hc", "the sea area file, in place of the stored one", takearea},
    {"--port", "NUMBER|NAME|all", "a port by its number, its name or a part of its name, or every port", takeport},
    {"--date", "YYYY-MM-DD", "the first day, in place of today", takedate},
    {"--days", "N", "how many days, 1 to 3660", takedays},
    {"--summer", "on|off", "adjust for summer time or not, in place of the stored choice", takesummer},
    {"--format", "text|csv|json", "how the result is written; text when left out", takeformat},
}};

/// Notes a view, of which a command line has one at most.
std::string takeview(const View& view, Options& options) {
    if (options.view == &view) return std::string(view.option) + " is given twice";
    if (options.view) return std::string(options.view->option) + " and " + view.option + " exclude each other";
    options.view = &view;
    return "";
}

}  // namespace

std::string parseoptions(const std::vector<std::string>& arguments, Options& options) {
    if (std::any_of(arguments.begin(), arguments.end(), [](const std::string& word) { return word == "--help"; })) {
        options.help = true;
        return "";
    }
    std::set<std::string> given;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        const auto view = std::find_if(views().begin(), views().end(),
                                       [&](const View& row) { return !word.empty() && word == row.option; });
        std::string fault;
        if (view != views().end()) {
            fault = takeview(*view, options);
        } else {
            const auto option = std::find_if(valueoptions.begin(), valueoptions.end(),
                                             [&](const ValueOption& row) { return word == row.option; });
            if (option == valueoptions.end()) {
                return "there is no option " + quoted(word) + "; tides --help lists them";
            }
            if (!given.insert(word).second) return word + " is given twice";
            if (i + 1 == arguments.size() || arguments[i + 1].empty() || arguments[i + 1].starts_with("--")) {
                return word + " needs a value: " + option->form;
            }
            fault = option->take(arguments[++i], options);
        }
        if (!fault.empty()) return fault;
    }
    if (!options.view) options.view = &views().front();
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

std::string usagetext() {
    constexpr std::size_t helpcolumn = 26;
    const auto line = [](const std::string& left, const std::string& help) {
        return "  " + left + std::string(helpcolumn - std::min(helpcolumn - 1, left.size()), ' ') + help + "\n";
    };
    std::string text =
        "usage: tides [--area FILE.hc] [--port NUMBER|NAME|all] [--date YYYY-MM-DD] [--days N]\n"
        "             [--summer on|off] [--samples | --month | --sun | --orbital | --list] [--format text|csv|json]\n\n"
        "Tides of Tarvane Tides on the terminal, from the program's own files, none of which it writes.\n"
        "Without options: the stored sea area, port and summer choice, today.\n\n";
    for (const ValueOption& row : valueoptions)
        text += line(std::string(row.option) + " " + row.form, row.help);
    text += "\nWhat is shown:\n";
    for (const View& view : views())
        text += line(*view.option ? view.option : "(none of these)", view.help);
    return text +
           "\n--list and --orbital are about no port: --port is ignored with them, and --date and --days with --list.\n"
           "--month is about the month that --date lies in: --days is ignored with it, and the summer time of --date\n"
           "holds for every day of the month.\n"
           "A time of 00:00 behind the day's other tides is midnight at the day's end.\n"
           "Exit status: 0, or 2 with one line on standard error and nothing on standard output.\n";
}

}  // namespace tarvane
