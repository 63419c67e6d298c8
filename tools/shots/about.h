// Pictures of what is known of a port, and of its check against an official table.
#pragma once

#include <functional>

#include "shots/stage.h"

namespace tarvane::shots {

void takeabout(Stage& stage, const std::function<void(QWidget&, const QString&)>& take);

}  // namespace tarvane::shots
