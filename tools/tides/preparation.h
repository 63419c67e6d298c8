// From a command line to what its view works on: the areas read, the ports picked out, the days and the boat. Must not
// show any of it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tides/environment.h"
#include "tides/options.h"
#include "tides/views.h"

namespace tarvane {

/// Fills `contexts`, one for each area that has ports asked for, in the areas' order. The fault in one line, empty when
/// there is none; of all areas one that can't be read is told on `err` and passed over.
std::string prepare(const Options& options, const TidesEnvironment& environment, std::vector<ViewContext>& contexts,
                    std::ostream& err);

}  // namespace tarvane
