// The command line of `tides streams`: what it may hold, and what is wrong with one. Must not read files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "tides/rows.h"

namespace tarvane {

struct StreamsOptions {
    std::string answer;       ///< what --help prints, and nothing else is asked for
    std::string diamondfile;  ///< as given
    std::string letter;       ///< of the diamond, UTF-8
    std::optional<std::string> area;
    std::optional<std::string> port;  ///< UTF-8
    std::optional<Date> date;
    std::optional<bool> summer;
    OutputFormat format = OutputFormat::text;
};

/// Fills `options` from the arguments behind "streams". The fault in one line, empty when there is none.
std::string parsestreamsoptions(const std::vector<std::string>& arguments, StreamsOptions& options);

}  // namespace tarvane
