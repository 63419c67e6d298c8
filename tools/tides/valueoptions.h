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

}  // namespace tarvane
