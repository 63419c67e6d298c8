// The notes on the user's own ports as a text, and back. Must not read files.
#pragma once

#include <string>

#include "portdata/ownports.h"

namespace tarvane {

/// What isn't understood is left out, and `state.whole` is false then. An empty text holds none.
OwnPorts ownportsof(const std::string& text);

std::string ownportstext(const OwnPorts& ports);

}  // namespace tarvane
