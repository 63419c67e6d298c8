// The command line of `tides fit`: what it may hold, and what is wrong with one. Must not read files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tides/rows.h"

namespace tarvane {

struct Position {
    double latitude = 0, longitude = 0;  ///< degrees, north and east positive
};

struct FitOptions {
    std::string answer;  ///< what --help prints, and nothing else is asked for
    std::optional<std::string> area;
    std::vector<std::string> near;  ///< the two ports, UTF-8
    std::string readings;           ///< path of the table
    std::optional<Position> position;
    std::string name;  ///< of the place, UTF-8; empty when not given
    OutputFormat format = OutputFormat::text;
};

/// Fills `options` from the arguments behind "fit". The fault in one line, empty when there is none.
std::string parsefitoptions(const std::vector<std::string>& arguments, FitOptions& options);

}  // namespace tarvane
