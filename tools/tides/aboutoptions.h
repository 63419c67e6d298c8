// The command line of `tides about`. Must not read files or the clock.
#pragma once

#include <string>
#include <vector>

#include "tides/options.h"

namespace tarvane {

/// Fills `options` from the arguments behind "about", as `parseoptions` does from others.
std::string parseabout(const std::vector<std::string>& arguments, Options& options);

}  // namespace tarvane
