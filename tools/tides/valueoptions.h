// Options that take a value, as a table: what a command line gives of them, and what is wrong with it in one line. Must
// not know what the values mean.
#pragma once

#include <CLI/CLI.hpp>
#include <span>
#include <string>
#include <vector>

namespace tarvane {

template <class Options>
struct ValueOption {
    const char* option;
    const char* form;
    const char* help;
    std::string (*take)(const std::string&, Options&);  ///< the fault, empty when there is none
    std::size_t most = 1;                               ///< how often it may be given, 1 or 2
};

/// Adds the table's options to a command line, in its order.
template <class Options>
std::vector<CLI::Option*> addvalues(CLI::App& app, std::span<const ValueOption<Options>> table) {
    std::vector<CLI::Option*> values;
    for (const auto& row : table) {
        // a value that is missing or too much is told in our own words, too
        values.push_back(app.add_option(row.option, row.help)->option_text(row.form)->expected(0, 1));
        values.back()->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }
    return values;
}

/// Takes what was given of them.
template <class Options>
std::string takevalues(const std::vector<CLI::Option*>& values, std::span<const ValueOption<Options>> table,
                       Options& options) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        const std::vector<std::string>& given = values[i]->results();
        if (given.size() > row.most)
            return std::string(row.option) + " is given " + (row.most > 1 ? "thrice" : "twice");
        for (const std::string& value : given) {
            if (value.empty()) return std::string(row.option) + " needs a value: " + row.form;
            const std::string fault = row.take(value, options);
            if (!fault.empty()) return fault;
        }
    }
    return "";
}

inline std::string nosuchoption(const std::string& word, const char* command) {
    return "there is no option '" + word + "'; " + command + " --help lists them";
}

/// A command behind `tides`, of options that take a value.
template <class Options>
struct Subcommand {
    const char* name;   ///< "tides fit"
    const char* about;  ///< what it does, above the options in the help
    const char* notes;  ///< and below them
    std::span<const ValueOption<Options>> table;
};

/// Fills `options`; the help, when that is asked for, goes to their answer, and nothing else is asked for then. What is
/// no option with a value goes to `words`, one that looks like an option being refused. The fault, empty when there is
/// none.
template <class Options>
std::string parsesubcommand(const Subcommand<Options>& command, const std::vector<std::string>& arguments,
                            Options& options, std::vector<std::string>& words) {
    CLI::App app{command.about, command.name};
    app.allow_extras();  // told in our own words
    app.set_help_flag("-h,--help", "prints this and exits");
    const std::vector<CLI::Option*> values = addvalues<Options>(app, command.table);
    app.get_formatter()->column_width(30);
    app.footer(command.notes);
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        options.answer = app.help();
        return "";
    } catch (const CLI::ParseError& fault) {
        return fault.what();
    }
    for (const std::string& word : app.remaining()) {
        if (word.starts_with('-') && word != "--") return nosuchoption(word, command.name);
        if (word != "--") words.push_back(word);
    }
    return takevalues<Options>(values, command.table, options);
}

}  // namespace tarvane
